#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

namespace corvellane {

/// Whether a stream is a terminal that is not told otherwise, as https://no-color.org has it.
bool showsColours(std::FILE* stream);

/// What a terminal has for the names of an error, a warning and a note.
enum class Colour : std::uint8_t { red, yellow, cyan };

/// The text, bold and in a colour where colours are shown.
std::string coloured(std::string_view text, Colour colour, bool isShown);

} // namespace corvellane
