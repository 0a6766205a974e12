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

/// A destination that means something within another one alone.
template <Destination Around, Destination To>
void destinationWithin(Writer& writer, const Token&)
{
    const bool isWithin = writer.group().destination == Around;
    writer.changeGroup().destination = isWithin ? To : Destination::skipped;
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

template <FontClass Kind>
void fontClass(Writer& writer, const Token&)
{
    writer.changeFonts().setClass(Kind);
}

template <std::uint8_t Color::* Part>
void colorPart(Writer& writer, const Token& token)
{
    writer.colors.setPart(Part, token.parameter);
}

inline void paragraph(Writer& writer, const Token&)
{
    if (writer.isInBody()) {
        writer.endParagraph();
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

/// Whether the fonts of East Asian text are meant for a character.
constexpr bool isEastAsian(char32_t code)
{
    return (code >= 0x2E80 && code <= 0xD7FF) || (code >= 0xF900 && code <= 0xFAFF)
        || (code >= 0xFE30 && code <= 0xFE4F) || (code >= 0xFF00 && code <= 0xFFEF);
}

inline void unicode(Writer& writer, const Token& token)
{
    const bool isUnit = token.parameter < 0 || token.parameter > 0x10FFFF;
    const auto code = static_cast<char32_t>(isUnit ? token.parameter & 0xFFFF : token.parameter);
    writer.fallback = writer.group().fallbackLength;
    if (code == U'\u2029') {
        paragraph(writer, token);
    } else if (writer.character().eastAsianFont >= 0 && isEastAsian(code)) {
        writer.putEastAsian(code);
    } else {
        writer.put(code);
    }
}

inline void fallbackLength(Writer& writer, const Token& token)
{
    writer.setFallbackLength(std::max(token.parameterOr(1), 0));
}

/// The result of a field that says nothing here is left out.
inline void fieldResult(Writer& writer, const Token&)
{
    if (writer.group().dropsResult) {
        writer.skipGroup();
    }
}

inline void listText(Writer& writer, const Token&)
{
    writer.numberIsWritten = writer.numberIsWritten || writer.isInBody();
}

/// A note within a note, or where there is no text, is none.
inline void note(Writer& writer, const Token&)
{
    if (writer.isInBody() && !writer.group().inNote) {
        writer.beginNote();
    } else {
        writer.skipGroup();
    }
}

inline void endnote(Writer& writer, const Token&)
{
    if (writer.group().inNote) {
        writer.makeEndnote();
    }
}

inline void noteMark(Writer& writer, const Token&)
{
    writer.putNoteMark();
}

template <Notes::Count Notes::* Count, std::int32_t Kind>
void noteKind(Writer& writer, const Token&)
{
    (writer.notes.*Count).kind = Kind;
}

template <Notes::Count Notes::* Count>
void noteStart(Writer& writer, const Token& token)
{
    (writer.notes.*Count).number = std::max(token.parameterOr(1), 1) - 1;
}

inline void picture(Writer& writer, const Token&)
{
    if (writer.isInBody()) {
        writer.pictures.begin();
        writer.changeGroup().destination = Destination::picture;
    } else {
        writer.skipGroup();
    }
}

template <Picture::Kind Kind>
void pictureKind(Writer& writer, const Token&)
{
    writer.pictures.setKind(Kind);
}

template <std::int32_t Pictures::* Member>
void pictureNumber(Writer& writer, const Token& token)
{
    writer.pictures.*Member = token.parameter;
}

inline void binary(Writer& writer, const Token& token)
{
    if (writer.group().destination == Destination::picture) {
        writer.pictures.addBytes(token.data);
    }
}

/// Of a picture, or of a shape, which is none of the text's groups.
inline void propertyName(Writer& writer, const Token&)
{
    const Destination around = writer.group().destination;
    const bool isWithin = around == Destination::picture || around == Destination::body;
    writer.changeGroup().destination = isWithin ? Destination::propertyName : Destination::skipped;
    writer.pictures.propertyName.clear();
}

/// Of a picture's properties its description alone says something, and of a shape's the picture that fills it.
inline void propertyValue(Writer& writer, const Token& token)
{
    if (writer.pictures.propertyName == "wzDescription") {
        destinationWithin<Destination::picture, Destination::propertyValue>(writer, token);
    } else if (writer.pictures.propertyName != Pictures::fillOfShape
        || writer.group().destination != Destination::body) {
        writer.skipGroup();
    }
}

inline void shape(Writer& writer, const Token&)
{
    writer.changeGroup().inShape = true;
    writer.pictures.shapeIsShown = false;
}

/// An object that floats is in a shape, which its picture fills already.
inline void object(Writer& writer, const Token&)
{
    if (writer.group().inShape && writer.pictures.shapeIsShown) {
        writer.skipGroup();
    }
}

} // namespace corvellane::rtf::actions
