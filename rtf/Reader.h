#pragma once

#include "base/Expected.h"
#include "rtf/AttributedText.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace corvellane::rtf {

/// Why bytes are no RTF.
enum class ReadFailure : std::uint8_t {
    /// They do not begin as RTF does, or are more than the reader takes.
    notRtf,
    /// The outer group never closes.
    incomplete,
};

/// The most bytes that are read: 1 GiB, which keeps every place in the text within 32 bits.
constexpr std::size_t largestInput = std::size_t{1} << 30U;

/// Reads Rich Text Format (RTF 1.9.1, and what the text editors of macOS write). White space and a UTF-8 byte order
/// mark before it are forgiven, bytes after the outer group ignored. Words that are not known are ignored, groups
/// marked as optional that are not known skipped, as are pictures, footnotes, headers and footers, and hidden text.
///
/// A paragraph has the format in effect at its end; what follows the last paragraph's end is one more paragraph unless
/// it is empty. Text before any choice of a font is Helvetica 12. Time and memory grow with the number of bytes
/// alone, however deep groups are nested. Any thread; needs the code pages of the C library's iconv, and where one is
/// missing gives U+FFFD for its characters.
Expected<AttributedText, ReadFailure> read(std::string_view bytes);

} // namespace corvellane::rtf
