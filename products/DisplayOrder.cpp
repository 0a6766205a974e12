#include "products/DisplayOrder.h"

#include "base/PathNames.h"

#include <utf8proc.h>

#include <algorithm>
#include <compare>
#include <cstdlib>
#include <memory>
#include <utility>

namespace corvellane {
namespace {

struct Entry {
    std::string key;
    std::string location;

    auto operator<=>(const Entry&) const = default;
};

bool isAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

/// UTF-8 sorts by its bytes as its scalar values do.
std::string sortKey(std::string_view name)
{
    if (isAscii(name)) {
        return std::string(name);
    }
    utf8proc_uint8_t* composed = nullptr;
    const auto length = utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(name.data()),
        static_cast<utf8proc_ssize_t>(name.size()), &composed,
        static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_COMPOSE));
    const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> owner(composed, &std::free);
    if (length < 0) {
        return std::string(name);
    }
    return {reinterpret_cast<const char*>(composed), static_cast<std::size_t>(length)};
}

} // namespace

std::vector<std::string> inDisplayOrder(std::vector<std::string> locations)
{
    std::vector<Entry> entries;
    entries.reserve(locations.size());
    for (std::string& location : locations) {
        std::string key = sortKey(lastPathComponent(location));
        entries.push_back({std::move(key), std::move(location)});
    }
    std::sort(entries.begin(), entries.end());
    std::transform(
        entries.begin(), entries.end(), locations.begin(), [](Entry& entry) { return std::move(entry.location); });
    return locations;
}

} // namespace corvellane
