#pragma once

#include <cstdint>
#include <string_view>

namespace corvellane::rtf {

/// What a control word makes the reader do; `value` is ControlWord::value, `parameter` the number in the file.
enum class RtfAction : std::uint8_t {
    nothing,
    /// The character `value` is text.
    character,
    /// The group's text goes to the Destination `value`.
    destination,
    /// The group's text goes where that of the group around \upr goes.
    unicodeAlternative,
    field,
    /// The document's code page is `value`, or `parameter` where that is 0.
    codePage,
    cocoa,
    font,
    fontCharset,
    fontCodePage,
    /// `parameter` is the red, green or blue part: a shift by `value` bits.
    colorPart,
    plain,
    /// The CharacterFlag `value` is on unless `parameter` is 0.
    flag,
    noUnderline,
    script,
    capitals,
    /// Half points upwards times `value`.
    offset,
    size,
    color,
    /// The background; `value` 1 where the text editor of macOS means none by the colour 1.
    background,
    unicode,
    fallbackLength,
    paragraphDefaults,
    alignment,
    /// The ParagraphLength `value`.
    length,
    lineMultiple,
    lineExactly,
    tabKind,
    tabStop,
    inTable,
    tableDepth,
    pageBreakBefore,
    paragraph,
    cell,
    /// The row of a table within a table where `value` is 1.
    row,
    page,
    samePage,
    count,
};

struct ControlWord {
    std::string_view name;
    RtfAction action;
    std::int32_t value;
};

/// The control word of that name; null for one that means nothing to the reader.
const ControlWord* findControlWord(std::string_view name);

} // namespace corvellane::rtf
