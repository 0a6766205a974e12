#pragma once

#include <optional>
#include <string_view>

namespace corvellane {

/// Whether the file manager takes requests of this program, as the last probe found it.
enum class FinderAccess { unknown, denied, allowed };

constexpr std::string_view rawValue(FinderAccess access)
{
    switch (access) {
    case FinderAccess::denied:
        return "0";
    case FinderAccess::allowed:
        return "1";
    default:
        return "-1";
    }
}

/// Absent when `text` is not exactly the raw value of one.
constexpr std::optional<FinderAccess> finderAccessFromRawValue(std::string_view text)
{
    for (const FinderAccess access : {FinderAccess::unknown, FinderAccess::denied, FinderAccess::allowed}) {
        if (rawValue(access) == text) {
            return access;
        }
    }
    return std::nullopt;
}

} // namespace corvellane
