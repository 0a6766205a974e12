#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace corvellane::rtf {

/// Which bytes a scan goes over.
enum class TextBytes : bool { all, ascii };

/// By its code, whether RTF takes a byte as text: no control character but the tab, no backslash, no brace.
template <TextBytes Kind>
constexpr auto isTextByte = [] {
    std::array<bool, 256> isText{};
    std::fill(isText.begin() + ' ', Kind == TextBytes::all ? isText.end() : isText.begin() + 0x80, true);
    isText['\t'] = true;
    isText['\\'] = isText['{'] = isText['}'] = false;
    return isText;
}();

/// Eight bytes as one number, the first byte lowest. Such numbers are computed with byte by byte, all eight at once;
/// what is found in them is marked by the highest bit of its byte.
using EightBytes = std::uint64_t;

constexpr EightBytes eightTimes(std::uint8_t byte)
{
    return byte * EightBytes{0x0101010101010101U};
}

constexpr EightBytes highBits = eightTimes(0x80);

/// The bytes of which there are fewer than eight; zeros behind the end.
EightBytes lastBytes(const char* from, const char* end);

/// The bytes from there on; zeros behind the end.
inline EightBytes eightBytes(const char* from, const char* end)
{
    if (end - from < std::ptrdiff_t{sizeof(EightBytes)}) {
        return lastBytes(from, end);
    }
    EightBytes bytes = 0;
    std::memcpy(&bytes, from, sizeof bytes);
    return std::endian::native == std::endian::little ? bytes : __builtin_bswap64(bytes);
}

/// How many bytes stand before the first mark.
constexpr std::size_t bytesBefore(EightBytes marks)
{
    return static_cast<unsigned>(std::countr_zero(marks)) / 8;
}

/// The bytes before the first mark, and zeros behind them.
constexpr EightBytes keepBefore(EightBytes marks, EightBytes bytes)
{
    return bytes & ((marks ^ (marks - 1)) >> 8U);
}

/// Marks what is no letter; of two marks only the first is sure.
constexpr EightBytes markNoLetters(EightBytes bytes)
{
    // From 1 to 26 for letters, large or small.
    const EightBytes places = (bytes | eightTimes(0x20)) ^ eightTimes(0x60);
    return ((places - eightTimes(1)) | (places + eightTimes(0x80 - 27)) | bytes) & highBits;
}

/// The letters at the beginning of bytes, as one number.
struct LeadingLetters {
    std::size_t length = 0;
    /// Up to eight letters are the number; more are mixed so that names do not come to the same one by chance.
    std::uint64_t code = 0;

    constexpr void add(EightBytes letters, std::size_t count)
    {
        code = (code * 0x9E3779B97F4A7C15U) ^ letters;
        length += count;
    }
};

/// The same where the first eight are letters.
LeadingLetters leadingLettersOfMany(EightBytes first, const char* next, const char* end);

inline LeadingLetters leadingLetters(const char* next, const char* end)
{
    const EightBytes bytes = eightBytes(next, end);
    const EightBytes marks = markNoLetters(bytes);
    if (marks != 0) [[likely]] {
        return {.length = bytesBefore(marks), .code = keepBefore(marks, bytes)};
    }
    return leadingLettersOfMany(bytes, next, end);
}

/// The code of a name that is known.
constexpr std::uint64_t codeOfName(std::string_view name)
{
    LeadingLetters all;
    for (std::size_t begin = 0; begin <= name.size(); begin += sizeof(EightBytes)) {
        const std::string_view part = name.substr(begin, sizeof(EightBytes));
        EightBytes letters = 0;
        for (std::size_t place = part.size(); place > 0; --place) {
            letters = letters << 8U | static_cast<unsigned char>(part[place - 1]);
        }
        all.add(letters, part.size());
    }
    return all.code;
}

/// Marks what may be no text: bytes below 0x20, backslashes, and all from the opening brace on; of two marks only the
/// first is sure.
template <TextBytes Kind>
constexpr EightBytes markNoText(EightBytes bytes)
{
    const EightBytes likeBackslash = bytes ^ eightTimes('\\');
    if constexpr (Kind == TextBytes::ascii) {
        return ((bytes - eightTimes(0x20)) | (bytes + eightTimes(0x80 - '{')) | (likeBackslash - eightTimes(1)) | bytes)
            & highBits;
    }
    const EightBytes likeBrace = (bytes & ~highBits) + eightTimes(0x80 - '{');
    return ((((bytes - eightTimes(0x20)) | likeBrace) & ~bytes) | ((likeBackslash - eightTimes(1)) & ~likeBackslash))
        & highBits;
}

/// How many bytes at the beginning are text.
template <TextBytes Kind>
std::size_t textLength(std::string_view bytes)
{
    const char* next = bytes.data();
    const char* const end = next + bytes.size();
    while (true) {
        const EightBytes marks = markNoText<Kind>(eightBytes(next, end));
        if (marks == 0) {
            next += sizeof marks;
            continue;
        }
        next += bytesBefore(marks);
        if (next == end || !isTextByte<Kind>[static_cast<unsigned char>(*next)]) {
            return static_cast<std::size_t>(next - bytes.data());
        }
        ++next;
    }
}

} // namespace corvellane::rtf
