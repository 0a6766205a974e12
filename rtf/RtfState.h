#pragma once

#include "rtf/AttributedText.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace corvellane::rtf {

/// The character formatting that RTF turns on and off.
enum class CharacterFlag : std::uint8_t { bold, italic, underline, strike, hidden };

/// The character formatting in effect, in RTF's own units.
struct CharacterState {
    /// Index into the font table; -1 before any font is chosen.
    std::int32_t font = -1;
    /// 1 + the index of the link; 0 for none.
    std::uint32_t link = 0;
    /// 0x01RRGGBB; 0 for none.
    std::uint32_t color = 0;
    std::uint32_t background = 0;
    /// Half points.
    std::int32_t size = 24;
    /// Half points, upwards.
    std::int32_t offset = 0;
    /// By CharacterFlag, 0 or 1.
    std::array<std::uint8_t, 5> flags{};
    /// A VerticalPosition and a Capitals.
    std::uint8_t script = 0;
    std::uint8_t capitals = 0;
    std::uint8_t padding = 0;

    std::uint8_t& operator[](CharacterFlag flag) { return flags[static_cast<std::size_t>(flag)]; }
    bool is(CharacterFlag flag) const { return flags[static_cast<std::size_t>(flag)] != 0; }
};

enum class ParagraphLength : std::uint8_t { left, right, firstLine, before, after, line };

/// The paragraph formatting in effect, in RTF's own units.
struct ParagraphState {
    /// Twips, by ParagraphLength. The line height is exact below zero and at least so much above it, or counts 240ths
    /// of a line.
    std::array<std::int32_t, 6> lengths{};
    /// 1 + the index of the last tab stop; 0 for none.
    std::uint32_t lastTab = 0;
    /// An Alignment.
    std::uint8_t alignment = 0;
    std::uint8_t lineIsMultiple = 0;
    std::uint8_t pageBreakBefore = 0;
    std::uint8_t inTable = 0;

    std::int32_t operator[](ParagraphLength length) const { return lengths[static_cast<std::size_t>(length)]; }
};

/// A tab stop in twips; chained as the TabStop it becomes.
struct TabState {
    std::int32_t position = 0;
    std::uint32_t previous = 0;
    /// A TabKind.
    std::uint16_t kind = 0;
    /// How many stops the chain has up to this one.
    std::uint16_t count = 1;
};

/// Where the text of a group goes.
enum class Destination : std::uint8_t {
    body,
    skipped,
    fontTable,
    colorTable,
    fieldInstruction,
    /// Text for readers that know no Unicode, and within it the Unicode text in its stead (\upr and \ud).
    alternative,
};

/// The formatting in effect inside a group, as its beginning saves it and its end restores it.
struct GroupState {
    /// Indices of a CharacterState and a ParagraphState.
    std::uint32_t character = 0;
    std::uint32_t paragraph = 0;
    /// How many bytes after a \u stand for its character in readers without Unicode (\uc).
    std::int32_t fallbackLength = 1;
    Destination destination = Destination::body;
    /// Where the text goes that replaces an alternative.
    Destination unicodeDestination = Destination::body;
    /// The group is a field, into which its instruction hands the link.
    bool isField = false;

    bool operator==(const GroupState&) const = default;
};

/// A canonical state, whose `font` is an index into the families, as attributes.
TextAttributes textAttributes(const CharacterState& state);
ParagraphFormat paragraphFormat(const ParagraphState& state);
TabStop tabStop(const TabState& state);

} // namespace corvellane::rtf
