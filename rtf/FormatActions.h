#pragma once

#include "rtf/Lexer.h"
#include "rtf/Writer.h"

#include <algorithm>
#include <cstdint>

namespace corvellane::rtf::actions {

constexpr std::int32_t largestSize = 0x7FFF;

template <typename Value>
Value& change(Writer& writer, Value CharacterState::* member)
{
    return writer.changeCharacter().*member;
}

template <typename Value>
Value& change(Writer& writer, Value ParagraphState::* member)
{
    return writer.changeParagraph().*member;
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

inline void plain(Writer& writer, const Token&)
{
    const std::uint32_t link = writer.character().link;
    writer.changeCharacter() = {.font = writer.fonts().find(0), .link = link};
}

/// Half points upwards times `Sign`.
template <int Sign>
void offset(Writer& writer, const Token& token)
{
    writer.changeCharacter().offset = Sign * std::clamp(token.parameterOr(6), -largestSize, largestSize);
}

inline void size(Writer& writer, const Token& token)
{
    const bool isSize = token.parameter > 0;
    writer.changeCharacter().size = isSize ? std::min(token.parameter, largestSize) : CharacterState().size;
}

inline void color(Writer& writer, const Token& token)
{
    const bool none = token.parameter == 0 && writer.isCocoa;
    writer.changeCharacter().color = none ? 0 : writer.colors.color(token.parameter);
}

/// The text editor of macOS means none by the colour 1 of a word for which `OneIsNone`.
template <bool OneIsNone>
void background(Writer& writer, const Token& token)
{
    const bool none = token.parameter == 0 || (token.parameter == 1 && OneIsNone && writer.isCocoa);
    writer.changeCharacter().background = none ? 0 : writer.colors.color(token.parameter);
}

inline void paragraphDefaults(Writer& writer, const Token&)
{
    writer.changeParagraph() = {};
    writer.tabKind = TabKind::left;
}

template <Alignment To>
void align(Writer& writer, const Token&)
{
    writer.changeParagraph().alignment = To;
}

inline void lineExactly(Writer& writer, const Token& token)
{
    writer.changeParagraph().line = -std::max(token.parameter, 0);
}

template <TabKind Kind>
void tabKind(Writer& writer, const Token&)
{
    writer.tabKind = Kind;
}

inline void tabStop(Writer& writer, const Token& token)
{
    writer.addTab(token.parameter);
}

inline void tableDepth(Writer& writer, const Token& token)
{
    writer.changeParagraph().inTable = token.parameterOr(1) > 0;
}

} // namespace corvellane::rtf::actions
