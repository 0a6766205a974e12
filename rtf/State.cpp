#include "rtf/State.h"

#include <cstdlib>

namespace corvellane::rtf {
namespace {

constexpr double twipsPerPoint = 20;
constexpr double lineUnitsPerLine = 240;

std::optional<Color> color(std::uint32_t packed)
{
    if (packed == 0) {
        return std::nullopt;
    }
    return Color{static_cast<std::uint8_t>(packed >> 16U), static_cast<std::uint8_t>(packed >> 8U),
        static_cast<std::uint8_t>(packed)};
}

LineHeight lineHeight(const ParagraphState& state)
{
    const double line = state.line;
    if (line == 0) {
        return {};
    }
    if (state.lineIsMultiple) {
        return {LineHeight::Kind::multiple, std::abs(line) / lineUnitsPerLine};
    }
    return {line > 0 ? LineHeight::Kind::atLeast : LineHeight::Kind::exactly, std::abs(line) / twipsPerPoint};
}

} // namespace

TextAttributes textAttributes(const CharacterState& state)
{
    return {
        .family = static_cast<std::uint32_t>(state.font),
        .size = state.size / 2.0,
        .bold = state.bold,
        .italic = state.italic,
        .underline = state.underline,
        .strike = state.strike,
        .color = color(state.color),
        .background = color(state.background),
        .script = state.script,
        .baselineOffset = state.offset / 2.0,
        .capitals = state.capitals,
        .link = state.link != 0 ? std::optional(state.link - 1) : std::nullopt,
    };
}

ParagraphFormat paragraphFormat(const ParagraphState& state)
{
    return {
        .alignment = state.alignment,
        .leftIndent = state.left / twipsPerPoint,
        .rightIndent = state.right / twipsPerPoint,
        .firstLineIndent = state.firstLine / twipsPerPoint,
        .spaceBefore = state.before / twipsPerPoint,
        .spaceAfter = state.after / twipsPerPoint,
        .lineHeight = lineHeight(state),
        .lastTab = state.lastTab,
        .pageBreakBefore = state.pageBreakBefore,
    };
}

TabStop toTabStop(const TabState& state)
{
    return {state.position / twipsPerPoint, state.kind, state.previous};
}

} // namespace corvellane::rtf
