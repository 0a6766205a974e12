#pragma once

#include "rtf/FormatActions.h"
#include "rtf/Writer.h"

#include <algorithm>
#include <cstdint>

/// What the control words of tables and of borders do.
namespace corvellane::rtf::actions {

inline void tableDepth(Writer& writer, const Token& token)
{
    constexpr std::int32_t deepest = 16;
    writer.changeParagraph().tableDepth = static_cast<std::uint8_t>(std::clamp(token.parameterOr(1), 0, deepest));
}

/// Says nothing of a paragraph that stands deeper.
inline void inTable(Writer& writer, const Token& token)
{
    const std::uint8_t depth = writer.paragraph().tableDepth;
    writer.changeParagraph().tableDepth = token.parameterOr(1) != 0 ? std::max<std::uint8_t>(depth, 1) : 0;
}

inline std::uint8_t nestedDepth(const Writer& writer)
{
    return std::max<std::uint8_t>(writer.paragraph().tableDepth, 2);
}

inline void cell(Writer& writer, const Token&)
{
    if (writer.group().destination == Destination::body) {
        writer.endCell(1);
    }
}

inline void nestedCell(Writer& writer, const Token&)
{
    if (writer.group().destination == Destination::body) {
        writer.endCell(nestedDepth(writer));
    }
}

inline void row(Writer& writer, const Token&)
{
    if (writer.group().destination == Destination::body) {
        writer.endRow(1);
    }
}

inline void nestedRow(Writer& writer, const Token&)
{
    if (writer.group().destination == Destination::body) {
        writer.rows.isNested = true;
        writer.endRow(nestedDepth(writer));
    }
    writer.rows.isNested = false;
}

inline void nestedRowFormat(Writer& writer, const Token&)
{
    writer.rows.isNested = true;
}

inline void rowDefaults(Writer& writer, const Token&)
{
    writer.rows.begin();
}

inline void cellEdge(Writer& writer, const Token& token)
{
    writer.endCellFormat(token.parameter);
}

/// The paddings of a row and of its cells are 16 bits wide.
template <auto Member, Side At>
void inset(Writer& writer, const Token& token)
{
    change(writer, Member)[At] = static_cast<std::int16_t>(std::clamp(token.parameter, 0, INT16_MAX));
}

/// Half the gap between cells is to the left of their text and half to its right.
inline void cellGap(Writer& writer, const Token& token)
{
    inset<&RowFormat::inset, Side::left>(writer, token);
    inset<&RowFormat::inset, Side::right>(writer, token);
}

/// The words that follow describe these borders; a bit for each Side, and for a row's inner ones.
template <BorderTarget Target, std::uint8_t Sides>
void border(Writer& writer, const Token&)
{
    writer.borderTarget = Target;
    writer.borderSides = Sides;
}

constexpr std::uint8_t allSides = 0b1111;
constexpr std::uint8_t bit(Side side)
{
    return static_cast<std::uint8_t>(1U << side);
}

template <typename Change>
void changeBorders(Writer& writer, Change change)
{
    const auto changeAll = [&](auto& borders, unsigned first) {
        for (std::size_t side = 0; side < borders.size(); ++side) {
            if ((writer.borderSides >> (side + first) & 1U) != 0) {
                change(borders[side]);
            }
        }
    };
    switch (writer.borderTarget) {
    case BorderTarget::none:
        break;
    case BorderTarget::character:
        change(writer.changeCharacter().look.frame);
        break;
    case BorderTarget::paragraph:
        changeAll(writer.changeParagraph().borders, 0);
        break;
    case BorderTarget::cell:
        changeAll(writer.rows.cell().borders, 0);
        break;
    case BorderTarget::row:
        changeAll(writer.rows.row().borders, 0);
        changeAll(writer.rows.row().innerBorders, 4);
        break;
    }
}

template <LineStyle Style>
void borderStyle(Writer& writer, const Token&)
{
    changeBorders(writer, [](Border& border) {
        border.style = Style;
        border.isSaid = true;
    });
}

inline void borderWidth(Writer& writer, const Token& token)
{
    const auto width = static_cast<std::uint8_t>(std::clamp(token.parameter, 0, UINT8_MAX));
    changeBorders(writer, [=](Border& border) { border.width = width; });
}

inline void borderSpace(Writer& writer, const Token& token)
{
    const auto space = static_cast<std::uint8_t>(std::clamp(token.parameter / 20, 0, 31));
    changeBorders(writer, [=](Border& border) { border.space = space; });
}

inline void borderColor(Writer& writer, const Token& token)
{
    const Color color = token.parameter == 0 ? Color() : writer.colors.color(token.parameter);
    changeBorders(writer, [=](Border& border) { border.color = color; });
}

} // namespace corvellane::rtf::actions
