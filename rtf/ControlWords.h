#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace corvellane::rtf {

class Writer;
struct Token;

/// What a control word does, given its token.
using Action = void (*)(Writer& writer, const Token& token);

/// As large as makes its place in an array a shift.
struct alignas(32) ControlWord {
    /// Of its name (LeadingLetters); 0 for a word that means nothing to the reader.
    std::uint64_t code = 0;
    /// Null for a word that only puts its character, or means nothing.
    Action action = nullptr;
    /// The character that the word stands for; 0 for none.
    char32_t character = 0;
};

constexpr std::size_t controlWordSlotCount = 1U << 10U;

constexpr std::size_t controlWordSlot(std::uint64_t code)
{
    return code * 0x9E3779B97F4A7C15U >> 54U;
}

/// What the reader knows, each word in the slot of its code or in the next free one after it. Free slots have the code
/// 0.
extern const std::array<ControlWord, controlWordSlotCount> controlWords;

/// The control word whose name has that code, which is not 0.
inline const ControlWord& findControlWord(std::uint64_t code)
{
    std::size_t slot = controlWordSlot(code);
    while (controlWords[slot].code != code && controlWords[slot].code != 0) {
        slot = (slot + 1) % controlWordSlotCount;
    }
    return controlWords[slot];
}

} // namespace corvellane::rtf
