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
    return std::ranges::all_of(text, [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

/// UTF-8 sorts by its bytes as its scalar values do.
std::string sortKey(std::string_view name)
{
    if (isAscii(name)) {
        return std::string(name);
    }
    const std::string text(name);
    const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> composed(
        utf8proc_NFC(reinterpret_cast<const utf8proc_uint8_t*>(text.c_str())), &std::free);
    return composed ? reinterpret_cast<const char*>(composed.get()) : text;
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
    std::ranges::sort(entries);
    std::ranges::transform(entries, locations.begin(), [](Entry& entry) { return std::move(entry.location); });
    return locations;
}

} // namespace corvellane
