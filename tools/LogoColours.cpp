#include "tools/LogoColours.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <set>

namespace corvellane {
namespace {

constexpr std::string_view spaces = " \t\r\n";

std::string inSmallLetters(std::string_view text)
{
    std::string small(text);
    std::ranges::transform(small, small.begin(), [](unsigned char letter) { return std::tolower(letter); });
    return small;
}

/// One spelling for the commonest of a colour; empty for what is no colour.
std::string colourNamed(std::string_view value)
{
    std::string name = inSmallLetters(value);
    if (name.size() == 4 && name.front() == '#') {
        name = {'#', name[1], name[1], name[2], name[2], name[3], name[3]};
    }
    constexpr auto none = std::to_array<std::string_view>({"", "none", "transparent", "inherit"});
    if (std::ranges::find(none, name) != none.end() || name.starts_with("url(")) {
        return {};
    }
    if (name == "black" || name == "currentcolor") {
        return "#000000";
    }
    return name == "white" ? "#ffffff" : name;
}

/// What a property is set to, as an attribute or in a style: the value behind `name`, "=" or ":", and a quote.
/// Absent values are npos.
struct Setting {
    std::string_view value;
    std::size_t end = std::string_view::npos;
};

Setting nextSetting(std::string_view text, std::string_view name, std::size_t from)
{
    for (auto at = text.find(name, from); at != std::string_view::npos; at = text.find(name, at + 1)) {
        const auto sign = text.find_first_not_of(spaces, at + name.size());
        const bool isWhole = at == 0 || std::string_view(" \t\r\n;\"'{").find(text[at - 1]) != std::string_view::npos;
        if (sign == std::string_view::npos || !isWhole || (text[sign] != '=' && text[sign] != ':')) {
            continue;
        }
        const auto start = std::min(text.find_first_not_of(" \t\r\n\"'", sign + 1), text.size());
        const auto end = std::min(text.find_first_of(" \t\r\n\"';}/>", start), text.size());
        return {text.substr(start, end - start), end};
    }
    return {};
}

bool isShape(std::string_view tag)
{
    constexpr auto shapes
        = std::to_array<std::string_view>({"path", "rect", "circle", "ellipse", "polygon", "polyline", "line", "text"});
    const auto name = tag.substr(0, tag.find_first_of(" \t\r\n/>"));
    return std::ranges::find(shapes, name) != shapes.end();
}

class Painter {
public:
    /// What stands between "<" and ">".
    void see(std::string_view tag)
    {
        const bool isEnd = tag.starts_with('/');
        if (isEnd || tag.starts_with('!') || tag.starts_with('?')) {
            fills_.resize(fills_.size() - (isEnd && fills_.size() > 1 ? 1 : 0));
            return;
        }
        addAll(tag);
        const bool namesFill = nextSetting(tag, "fill", 0).end != std::string_view::npos;
        const bool isFilled = fills_.back() || namesFill;
        const bool isStyled = nextSetting(tag, "class", 0).end != std::string_view::npos;
        if (isShape(tag) && !isFilled && !isStyled) {
            colours_.insert("#000000");
        }
        if (tag.starts_with("image")) {
            colours_.insert("image");
        }
        if (!tag.ends_with('/')) {
            fills_.push_back(isFilled);
        }
    }

    /// A tag, or a style sheet.
    void addAll(std::string_view text)
    {
        for (const std::string_view name : {"fill", "stroke", "stop-color", "flood-color", "color"}) {
            for (Setting set = nextSetting(text, name, 0); set.end != std::string_view::npos;
                set = nextSetting(text, name, set.end)) {
                colours_.insert(colourNamed(set.value));
            }
        }
    }

    std::vector<std::string> finish()
    {
        colours_.erase("");
        return {colours_.begin(), colours_.end()};
    }

private:
    std::set<std::string> colours_;
    /// Whether the elements that stand open, or one around them, name a fill.
    std::vector<bool> fills_{false};
};

} // namespace

std::vector<std::string> coloursOf(std::string_view svg)
{
    Painter painter;
    while (!svg.empty()) {
        const auto start = svg.find('<');
        painter.addAll(svg.substr(0, start));
        svg.remove_prefix(std::min(start, svg.size()));
        const std::string_view closing = svg.starts_with("<!--") ? "-->" : ">";
        const auto end = svg.find(closing);
        painter.see(svg.substr(0, end).substr(std::min<std::size_t>(svg.size(), 1)));
        svg.remove_prefix(end == std::string_view::npos ? svg.size() : end + closing.size());
    }
    return painter.finish();
}

bool isPng(std::string_view bytes)
{
    return bytes.starts_with("\x89PNG\r\n\x1a\n");
}

bool hasTransparency(std::string_view png)
{
    constexpr std::size_t placeOfColourType = 25;
    constexpr unsigned alpha = 4;
    const bool hasAlpha
        = png.size() > placeOfColourType && (static_cast<unsigned char>(png[placeOfColourType]) & alpha) != 0;
    return hasAlpha || png.substr(0, png.find("IDAT")).find("tRNS") != std::string_view::npos;
}

} // namespace corvellane
