#pragma once

#include "base/Enumerators.h"

#include <optional>
#include <string_view>

namespace corvellane {

/// Whether the file manager takes requests of this program, as the last probe found it.
enum class FinderAccess { unknown, denied, allowed };

/// Empty for what is no access.
constexpr std::string_view rawValue(FinderAccess access)
{
    switch (access) {
    case FinderAccess::unknown:
        return "-1";
    case FinderAccess::denied:
        return "0";
    case FinderAccess::allowed:
        return "1";
    }
    return {};
}

/// Absent when `text` is not exactly the raw value of one.
constexpr std::optional<FinderAccess> finderAccessFromRawValue(std::string_view text)
{
    for (const FinderAccess access : enumerators<FinderAccess, rawValue>) {
        if (rawValue(access) == text) {
            return access;
        }
    }
    return std::nullopt;
}

} // namespace corvellane
