#include "rtf/RtfState.h"

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
    const double line = state[ParagraphLength::line];
    if (line == 0) {
        return {};
    }
    if (state.lineIsMultiple != 0) {
        return {LineHeight::Kind::multiple, std::abs(line) / lineUnitsPerLine};
    }
    return {line > 0 ? LineHeight::Kind::atLeast : LineHeight::Kind::exactly, std::abs(line) / twipsPerPoint};
}

} // namespace

TextAttributes textAttributes(const CharacterState& state)
{
    TextAttributes attributes{
        .family = static_cast<std::uint32_t>(state.font),
        .size = state.size / 2.0,
        .bold = state.is(CharacterFlag::bold),
        .italic = state.is(CharacterFlag::italic),
        .underline = state.is(CharacterFlag::underline),
        .strike = state.is(CharacterFlag::strike),
        .color = color(state.color),
        .background = color(state.background),
        .script = static_cast<VerticalPosition>(state.script),
        .baselineOffset = state.offset / 2.0,
        .capitals = static_cast<Capitals>(state.capitals),
        .link = std::nullopt,
    };
    if (state.link != 0) {
        attributes.link = state.link - 1;
    }
    return attributes;
}

ParagraphFormat paragraphFormat(const ParagraphState& state)
{
    return {
        .alignment = static_cast<Alignment>(state.alignment),
        .leftIndent = state[ParagraphLength::left] / twipsPerPoint,
        .rightIndent = state[ParagraphLength::right] / twipsPerPoint,
        .firstLineIndent = state[ParagraphLength::firstLine] / twipsPerPoint,
        .spaceBefore = state[ParagraphLength::before] / twipsPerPoint,
        .spaceAfter = state[ParagraphLength::after] / twipsPerPoint,
        .lineHeight = lineHeight(state),
        .lastTab = state.lastTab,
        .pageBreakBefore = state.pageBreakBefore != 0,
    };
}

TabStop tabStop(const TabState& state)
{
    return {state.position / twipsPerPoint, static_cast<TabKind>(state.kind), state.previous};
}

} // namespace corvellane::rtf
