#include "rtf/AttributedText.h"

#include <algorithm>

namespace corvellane::rtf {

std::vector<TabStop> AttributedText::tabsOf(const ParagraphFormat& format) const
{
    std::vector<TabStop> stops;
    for (std::uint32_t next = format.lastTab; next != 0; next = stops.back().previous) {
        stops.push_back(tabStops[next - 1]);
    }
    std::ranges::reverse(stops);
    return stops;
}

} // namespace corvellane::rtf
