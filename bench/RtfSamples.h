#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace corvellane {

/// RTF of about `size` bytes: the body of the licence agreement that comes with the program, repeated.
std::string agreementSample(std::size_t size);

/// Japanese text of about `size` bytes in code page 932, its bytes in hexadecimal as word processors write them.
std::string multiByteSample(std::size_t size);

/// The same text in raw bytes.
std::string rawMultiByteSample(std::size_t size);

/// Short list items of about `size` bytes in all, each with its marker, tab stops and changes of style.
std::string listSample(std::size_t size);

/// Rows of a table with borders, three cells each, of about `size` bytes in all.
std::string tableSample(std::size_t size);

/// What takes the least bytes to ask for the most: empty lines, entries of the font table, looks that never come again,
/// looks and formats that change with every character, and bytes that become three or four each.
std::string emptyLines(std::size_t size);
std::string fontEntries(std::size_t size);
std::string differentLooks(std::size_t size);
std::string changingLooks(std::size_t size);
std::string changingGroups(std::size_t size);
std::string changingLines(std::size_t size);
std::string rawKatakana(std::size_t size);
std::string rawPictographs(std::size_t size);

/// How many backslashes and braces there are: one memchr scan of all bytes for each of the three.
std::size_t scanForControls(std::string_view bytes);

} // namespace corvellane
