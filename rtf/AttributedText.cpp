#include "rtf/AttributedText.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace corvellane::rtf {
namespace {

/// What is chained from its last link on, from its first.
template <typename Link>
std::vector<Link> chain(const std::vector<Link>& links, std::uint32_t last)
{
    std::vector<Link> result;
    for (std::uint32_t next = last; next != 0; next = result.back().previous) {
        result.push_back(links[next - 1]);
    }
    std::ranges::reverse(result);
    return result;
}

/// The number of the stretch, from the one at `from` on, that the byte at `place` is in.
std::uint32_t stretchAt(const std::vector<Stretch>& stretches, std::uint32_t from, std::uint32_t place)
{
    while (stretches[from].end <= place) {
        ++from;
    }
    return from;
}

} // namespace

LineHeight ParagraphFormat::lineHeight() const
{
    if (line == 0) {
        return {};
    }
    if (lineIsMultiple) {
        return {LineHeight::Kind::multiple, std::abs(line)};
    }
    return {line > 0 ? LineHeight::Kind::atLeast : LineHeight::Kind::exactly, std::abs(line)};
}

std::vector<Paragraph> AttributedText::paragraphs() const
{
    static constexpr std::array all{mark::paragraph, mark::cell, mark::row};
    constexpr std::string_view marks(all.data(), all.size());
    std::vector<Paragraph> result;
    Paragraph next;
    std::uint32_t format = 0;
    for (std::size_t end = text.find_first_of(marks); end != std::string::npos;
        end = text.find_first_of(marks, next.begin)) {
        next.end = static_cast<std::uint32_t>(end);
        if (text[end] != mark::row) {
            next.firstRun = stretchAt(runs, next.firstRun, next.begin);
            format = stretchAt(formatStretches, format, next.end);
            const std::uint32_t endRun = stretchAt(runs, next.firstRun, next.end);
            next.format = formatStretches[format].index;
            next.endAttributes = runs[endRun].index;
            result.push_back(next);
            next.firstRun = endRun;
        }
        next.begin = next.end + 1;
    }
    return result;
}

std::vector<Run> AttributedText::runsOf(const Paragraph& paragraph) const
{
    std::vector<Run> result;
    std::uint32_t place = paragraph.begin;
    for (std::uint32_t run = paragraph.firstRun; place < paragraph.end; ++run) {
        const std::uint32_t end = std::min(runs[run].end, paragraph.end);
        result.push_back({std::string_view(text).substr(place, end - place), runs[run].index});
        place = end;
    }
    return result;
}

std::vector<TabStop> AttributedText::tabsOf(const ParagraphFormat& format) const
{
    return chain(tabStops, format.lastTab);
}

std::vector<CellFormat> AttributedText::cellsOf(const RowFormat& format) const
{
    return chain(cellFormats, format.lastCell);
}

} // namespace corvellane::rtf
