#pragma once

#include <cstdint>
#include <string_view>

namespace corvellane::rtf {

class Writer;
struct Token;

/// What a control word does, given its token.
using Action = void (*)(Writer& writer, const Token& token);

struct ControlWord {
    std::string_view name;
    /// Null for a word that does nothing, or only puts its character.
    Action action = nullptr;
    /// The character that the word stands for; 0 for none.
    char32_t character = 0;
    /// The name's code.
    std::uint64_t code = 0;
};

/// The control word whose name has that code (LeadingLetters); null for one that means nothing to the reader.
const ControlWord* findControlWord(std::uint64_t code);

} // namespace corvellane::rtf
