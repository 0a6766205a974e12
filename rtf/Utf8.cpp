#include "rtf/Utf8.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <functional>
#include <memory>
#include <numeric>

namespace corvellane::rtf {
namespace {

constexpr std::size_t fewestCharacters = 2;

/// Where the first byte above 0x7F stands, by the block: most text has none.
const char* findAbove(const char* next, const char* end)
{
    constexpr std::uint64_t highBits = 0x8080808080808080U;
    std::array<std::uint64_t, 8> block{};
    for (; static_cast<std::size_t>(end - next) >= sizeof block; next += sizeof block) {
        std::memcpy(block.data(), next, sizeof block);
        const std::uint64_t all = std::accumulate(block.begin(), block.end(), std::uint64_t{0}, std::bit_or());
        if ((all & highBits) != 0) {
            break;
        }
    }
    return std::find_if(next, end, [](char byte) { return static_cast<unsigned char>(byte) >= 0x80; });
}

/// Up to the first byte `last`: how long the character is, and what its second byte may be (RFC 3629, 4).
struct Lead {
    unsigned last;
    std::size_t length;
    unsigned least;
    unsigned most;
};

constexpr auto leads = std::to_array<Lead>({
    {0xC1, 0, 0, 0},
    {0xDF, 2, 0x80, 0xBF},
    {0xE0, 3, 0xA0, 0xBF},
    {0xEC, 3, 0x80, 0xBF},
    {0xED, 3, 0x80, 0x9F},
    {0xEF, 3, 0x80, 0xBF},
    {0xF0, 4, 0x90, 0xBF},
    {0xF3, 4, 0x80, 0xBF},
    {0xF4, 4, 0x80, 0x8F},
});

/// The bytes of the character that begins there; 0 for none.
std::size_t sequenceLength(std::string_view bytes)
{
    const auto at = [&](std::size_t place) { return static_cast<unsigned char>(bytes[place]); };
    const unsigned lead = at(0);
    const auto* const row = std::ranges::find_if(leads, [&](const Lead& each) { return lead <= each.last; });
    if (row == leads.end() || row->length == 0 || row->length > bytes.size()) {
        return 0;
    }
    const std::size_t length = row->length;
    const unsigned second = at(1);
    const auto rest = bytes.substr(2, length - 2);
    const bool continues
        = std::ranges::all_of(rest, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80; });
    return second >= row->least && second <= row->most && continues ? length : 0;
}

} // namespace

bool isUtf8Text(std::string_view bytes)
{
    const char* const end = std::to_address(bytes.end());
    std::size_t characters = 0;
    for (const char* next = findAbove(std::to_address(bytes.begin()), end); next != end; next = findAbove(next, end)) {
        const std::size_t length = sequenceLength({next, end});
        if (length == 0) {
            return false;
        }
        next += length;
        ++characters;
    }
    return characters >= fewestCharacters;
}

std::optional<std::size_t> highByteOfUtf16(std::string_view bytes)
{
    const bool littleEndian = bytes.starts_with("\xFF\xFE");
    return littleEndian || bytes.starts_with("\xFE\xFF") ? std::optional<std::size_t>(littleEndian ? 1 : 0)
                                                         : std::nullopt;
}

std::string fromUtf16(std::string_view bytes, std::size_t highByte)
{
    std::string text;
    text.reserve(bytes.size() / 2 * 3);
    const auto unitAt = [&](std::size_t place) -> char32_t {
        const auto byte = [&](std::size_t index) { return static_cast<unsigned char>(bytes[place + index]); };
        return static_cast<char32_t>(byte(highByte) << 8U | byte(1 - highByte));
    };
    for (std::size_t place = 0; place + 1 < bytes.size(); place += 2) {
        char32_t code = unitAt(place);
        const bool isHigh = code >= 0xD800 && code <= 0xDBFF && place + 3 < bytes.size();
        const char32_t low = isHigh ? unitAt(place + 2) : 0;
        if (low >= 0xDC00 && low <= 0xDFFF) {
            code = 0x10000 + ((code - 0xD800) << 10U) + (low - 0xDC00);
            place += 2;
        }
        appendUtf8(text, code);
    }
    return text;
}

} // namespace corvellane::rtf
