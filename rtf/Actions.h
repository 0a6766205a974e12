#pragma once

#include "rtf/Lexer.h"
#include "rtf/Writer.h"

#include <algorithm>
#include <cstdint>

/// What control words do, each where its word stands in a group that is not skipped.
namespace corvellane::rtf::actions {

template <Destination To>
void destination(Writer& writer, const Token&)
{
    GroupState& group = writer.changeGroup();
    group.unicodeDestination = group.destination;
    group.destination = To;
}

/// The instruction of a field within an instruction is none of the outer one's text, its result is.
inline void fieldInstruction(Writer& writer, const Token&)
{
    if (writer.group().destination == Destination::fieldInstruction) {
        writer.skipGroup();
    } else {
        writer.changeGroup().destination = Destination::fieldInstruction;
        writer.instruction.clear();
    }
}

inline void unicodeAlternative(Writer& writer, const Token&)
{
    if (writer.group().destination == Destination::alternative) {
        writer.changeGroup().destination = writer.group().unicodeDestination;
    }
}

inline void field(Writer& writer, const Token&)
{
    writer.changeGroup().isField = true;
}

inline void cocoa(Writer& writer, const Token&)
{
    writer.isCocoa = true;
}

template <int Page>
void codePage(Writer& writer, const Token&)
{
    writer.setCodePage(Page);
}

inline void codePageOfParameter(Writer& writer, const Token& token)
{
    writer.setCodePage(token.parameter);
}

inline void font(Writer& writer, const Token& token)
{
    if (writer.group().destination == Destination::fontTable) {
        writer.changeFonts().beginEntry(token.parameter);
    } else {
        writer.changeCharacter().font = writer.fonts().find(token.parameter);
    }
}

inline void fontCharset(Writer& writer, const Token& token)
{
    writer.changeFonts().setCharset(token.parameter);
}

inline void fontCodePage(Writer& writer, const Token& token)
{
    if (writer.hasCodePage(token.parameter)) {
        writer.changeFonts().setCodePage(token.parameter);
    }
}

/// The part that lies `Shift` bits up in a colour.
template <int Shift>
void colorPart(Writer& writer, const Token& token)
{
    writer.colors.setPart(token.parameter, Shift);
}

inline void paragraph(Writer& writer, const Token&)
{
    if (writer.group().destination != Destination::body || writer.character().hidden) {
        return;
    }
    if (writer.paragraph().inTable) {
        writer.put(U'\u2028');
    } else {
        writer.endedCells = 0;
        writer.endParagraph();
    }
}

inline void cell(Writer& writer, const Token&)
{
    if (writer.group().destination != Destination::body) {
        return;
    }
    if (writer.nestedRowEnded && writer.paragraphIsEmpty()) {
        writer.nestedRowEnded = false;
    } else {
        ++writer.endedCells;
    }
}

/// The end of the last cell parts it from nothing.
template <bool IsNested>
void row(Writer& writer, const Token&)
{
    if (writer.group().destination == Destination::body) {
        writer.endedCells -= writer.endedCells != 0 ? 1 : 0;
        writer.partCells();
        writer.endParagraph();
        writer.nestedRowEnded = IsNested;
    }
}

inline void page(Writer& writer, const Token&)
{
    if (writer.group().destination == Destination::body) {
        if (!writer.paragraphIsEmpty()) {
            writer.endParagraph();
        }
        writer.pageBreak = true;
    }
}

inline void samePage(Writer& writer, const Token&)
{
    writer.pageBreak = false;
}

inline void unicode(Writer& writer, const Token& token)
{
    const bool isUnit = token.parameter < 0 || token.parameter > 0x10FFFF;
    const auto code = static_cast<char32_t>(isUnit ? token.parameter & 0xFFFF : token.parameter);
    writer.fallback = writer.group().fallbackLength;
    if (code == U'\u2029') {
        paragraph(writer, token);
    } else {
        writer.put(code);
    }
}

inline void fallbackLength(Writer& writer, const Token& token)
{
    writer.changeGroup().fallbackLength = std::max(token.parameterOr(1), 0);
}

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
