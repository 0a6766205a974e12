#pragma once

#include "base/Expected.h"
#include "rtf/AttributedText.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace corvellane::rtf {

/// Why bytes are no RTF.
enum class ReadFailure : std::uint8_t {
    /// They do not begin as RTF does, or are more than the reader takes.
    notRtf,
    /// The outer group never closes.
    incomplete,
};

/// The most bytes that are read: 256 MiB, which keeps every place in the text within 32 bits.
constexpr std::size_t largestInput = std::size_t{256} << 20U;

/// Reads Rich Text Format (RTF 1.9.1, and what the text editors of macOS write). White space and a UTF-8 byte order
/// mark before it are forgiven, bytes after the outer group ignored; a file may be UTF-16 behind its byte order mark.
/// Words that are not known are ignored, groups marked as optional that are not known skipped, as are headers and
/// footers, annotations, hidden text and the numbers of pages. Footnotes and endnotes follow at the end, below a rule.
/// Where all bytes above 0x7F that stand in the file are UTF-8, they are read so, whatever code page it names.
///
/// A paragraph has the format in effect at its end; what follows the last paragraph's end is one more paragraph unless
/// it is empty. Text before any choice of a font is Helvetica 12, and \plain chooses the font 0, both whatever \deff
/// says. Items of lists have their numbers in their text, as the file has them or else counted. A picture is one of
/// PNG, JPEG or a bitmap of 8 million pixels at most, all together 16 million; in the place of others stands their
/// description.
///
/// Time and memory grow with the number of bytes alone, however deep groups are nested. What no file needs that is
/// written for its text is not kept: formats beyond 4,096 and one for each 1,024 bytes, changes of them beyond 4,096
/// and one for each 8, text of more than three times the file's bytes, as pictographs may become, and what follows in a
/// font's name, a link's target, a picture's description or the marker of a list's level once that has 64 KiB. Any
/// thread; needs the code pages of the C library's iconv, and where one is missing gives U+FFFD for its characters.
Expected<AttributedText, ReadFailure> read(std::string_view bytes);

/// The same of bytes that are not needed any more: where the text grows larger than they are, they are given back while
/// they are read.
Expected<AttributedText, ReadFailure> readAway(std::string bytes);

} // namespace corvellane::rtf
