#pragma once

#include "rtf/FormatActions.h"
#include "rtf/TextActions.h"

/// What the control words of lists do.
namespace corvellane::rtf::actions {

inline void list(Writer& writer, const Token&)
{
    if (writer.group().destination == Destination::lists) {
        writer.lists.beginList();
    }
}

inline void listOverride(Writer& writer, const Token&)
{
    if (writer.group().destination == Destination::lists) {
        writer.lists.beginOverride();
    }
}

inline void listId(Writer& writer, const Token& token)
{
    writer.lists.setId(token.parameter);
}

inline void overrideOfLevel(Writer& writer, const Token&)
{
    writer.lists.beginOverrideOfLevel();
}

/// What a level says of its looks begins with none.
inline void listLevel(Writer& writer, const Token& token)
{
    destinationWithin<Destination::lists, Destination::listLevel>(writer, token);
    writer.lists.beginLevel();
    writer.changeCharacter() = {};
    writer.changeParagraph() = {};
}

inline void levelStart(Writer& writer, const Token& token)
{
    writer.lists.setStart(token.parameter);
}

inline void levelText(Writer& writer, const Token& token)
{
    destinationWithin<Destination::listLevel, Destination::levelText>(writer, token);
    writer.lists.level().text.clear();
}

inline void numbering(Writer& writer, const Token&)
{
    if (writer.isInBody()) {
        writer.lists.beginNumbering();
        writer.changeGroup().destination = Destination::numbering;
    } else {
        writer.skipGroup();
    }
}

inline void numberingLevel(Writer& writer, const Token& token)
{
    writer.lists.numberingLevel = static_cast<std::uint8_t>(std::clamp(token.parameterOr(1), 0, 9));
}

/// A paragraph that goes on with no number of its own has none, whatever kind of them it names.
template <std::int32_t Kind>
void numberingKind(Writer& writer, const Token&)
{
    std::int32_t& kind = writer.lists.level().kind;
    if (kind != ListLevel::none) {
        kind = Kind;
    }
}

inline void numberingFont(Writer& writer, const Token& token)
{
    writer.lists.level().font = writer.fonts().find(token.parameter);
    writer.changeCharacter().font = writer.lists.level().font;
}

} // namespace corvellane::rtf::actions
