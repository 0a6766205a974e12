#pragma once

#include "rtf/Lexer.h"
#include "rtf/Writer.h"

#include <algorithm>
#include <cstdint>
#include <type_traits>

/// What the control words do that format text, paragraphs and the cells of tables.
namespace corvellane::rtf::actions {

constexpr std::int32_t largestSize = 0x7FFF;

template <typename Value>
Value& change(Writer& writer, Value CharacterState::* member)
{
    return writer.changeCharacter().*member;
}

template <typename Value>
Value& change(Writer& writer, Value TextAttributes::* member)
{
    return writer.changeCharacter().look.*member;
}

template <typename Value>
Value& change(Writer& writer, Value ParagraphFormat::* member)
{
    return writer.changeParagraph().*member;
}

template <typename Value>
Value& change(Writer& writer, Value RowFormat::* member)
{
    return writer.rows.row().*member;
}

template <typename Value>
Value& change(Writer& writer, Value CellFormat::* member)
{
    return writer.rows.cell().*member;
}

template <typename Value>
Value& change(Writer& writer, Value ListLevel::* member)
{
    return writer.lists.level().*member;
}

template <typename Value>
Value& change(Writer& writer, Value Writer::* member)
{
    return writer.*member;
}

/// The member is `On` unless the parameter is 0.
template <auto Member, auto On = true>
void set(Writer& writer, const Token& token)
{
    change(writer, Member) = token.parameterOr(1) != 0 ? On : decltype(On){};
}

/// The member is the parameter.
template <auto Member>
void number(Writer& writer, const Token& token)
{
    change(writer, Member) = token.parameter;
}

/// The member is the parameter within what it holds.
template <auto Member, std::int32_t Most>
void smallNumber(Writer& writer, const Token& token)
{
    auto& value = change(writer, Member);
    value = static_cast<std::remove_reference_t<decltype(value)>>(std::clamp(token.parameter, 0, Most));
}

/// East Asian characters are drawn in that font, where it is the one of theirs.
inline void chooseFont(Writer& writer, const Token& token)
{
    const std::int32_t font = writer.fonts().find(token.parameter);
    if (writer.fontIsEastAsian) {
        writer.changeCharacter().eastAsianFont = font;
    }
}

inline void font(Writer& writer, const Token& token)
{
    if (writer.group().destination == Destination::fontTable) {
        writer.changeFonts().beginEntry(token.parameter);
    } else {
        writer.changeCharacter().font = writer.fonts().find(token.parameter);
        writer.fontIsEastAsian = false;
    }
}

inline void plain(Writer& writer, const Token&)
{
    const std::uint32_t link = writer.character().look.link;
    CharacterState& state = writer.changeCharacter() = {};
    state.look.link = link;
    state.font = writer.fonts().find(0);
}

/// Half points upwards times `Sign`.
template <int Sign>
void offset(Writer& writer, const Token& token)
{
    writer.changeCharacter().look.baselineOffset = Sign * std::clamp(token.parameterOr(6), -largestSize, largestSize);
}

/// A size that is none changes nothing.
inline void size(Writer& writer, const Token& token)
{
    if (!token.hasParameter) {
        writer.changeCharacter().look.size = TextAttributes().size;
    } else if (token.parameter > 0) {
        writer.changeCharacter().look.size = std::min(token.parameter, largestSize);
    }
}

/// Between letters: `Unit` twips for each of the parameter.
template <int Unit>
void letterSpacing(Writer& writer, const Token& token)
{
    writer.changeCharacter().look.letterSpacing = std::clamp(token.parameter, -largestSize, largestSize) * Unit;
}

inline void color(Writer& writer, const Token& token)
{
    const bool none = token.parameter == 0 && writer.isCocoa;
    writer.changeCharacter().look.color = none ? Color() : writer.colors.color(token.parameter);
}

/// The text editor of macOS means none by the colour 1 of a word for which `OneIsNone`.
template <bool OneIsNone>
void background(Writer& writer, const Token& token)
{
    const bool none = token.parameter == 0 || (token.parameter == 1 && OneIsNone && writer.isCocoa);
    writer.changeCharacter().look.background = none ? Color() : writer.colors.color(token.parameter);
}

/// A colour in which the ground is painted, where 0 is none.
template <auto Member>
void ground(Writer& writer, const Token& token)
{
    change(writer, Member) = token.parameter == 0 ? Color() : writer.colors.color(token.parameter);
}

/// A grey, as many hundredths of a per cent black.
template <auto Member>
void shade(Writer& writer, const Token& token)
{
    Color& color = change(writer, Member);
    const std::int32_t black = std::clamp(token.parameter, 0, 10000);
    if (!color.isSet && black != 0) {
        const auto part = static_cast<std::uint8_t>(255 - (255 * black / 10000));
        color = {true, part, part, part};
    }
}

inline void paragraphDefaults(Writer& writer, const Token&)
{
    writer.changeParagraph() = {};
    writer.tabKind = TabKind::left;
    writer.tabLeader = TabLeader::none;
}

template <auto Member, auto Value>
void choose(Writer& writer, const Token&)
{
    change(writer, Member) = Value;
}

/// The smallest number that there is means nothing.
inline void lineHeight(Writer& writer, const Token& token)
{
    writer.changeParagraph().line = token.parameter == INT32_MIN ? 0 : token.parameter;
}

inline void largestLineHeight(Writer& writer, const Token& token)
{
    if (token.parameter > 0) {
        writer.changeParagraph().line = -token.parameter;
    }
}

inline void listNumber(Writer& writer, const Token& token)
{
    if (writer.group().destination == Destination::lists) {
        writer.lists.setNumber(token.parameter);
    } else {
        writer.changeParagraph().list
            = static_cast<std::uint16_t>(std::clamp(token.parameter, 0, int{Lists::mostLists}));
    }
}

inline void tabStop(Writer& writer, const Token& token)
{
    writer.addTab(token.parameter);
}

} // namespace corvellane::rtf::actions
