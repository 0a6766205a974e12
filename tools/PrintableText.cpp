#include "tools/PrintableText.h"

#include <utf8proc.h>

#include <algorithm>

namespace corvellane {
namespace {

constexpr std::string_view digits = "0123456789ABCDEF";

std::string escaped(char byte)
{
    switch (byte) {
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    case '\\':
        return "\\\\";
    default:
        const auto value = static_cast<unsigned char>(byte);
        return {'\\', 'x', digits[value >> 4U], digits[value & 0xFU]};
    }
}

bool isControl(utf8proc_int32_t character)
{
    return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

} // namespace

std::string printable(std::string_view bytes)
{
    std::string text;
    while (!bytes.empty()) {
        utf8proc_int32_t character = 0;
        const auto length = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(bytes.data()),
            static_cast<utf8proc_ssize_t>(bytes.size()), &character);
        const std::string_view spelling
            = bytes.substr(0, static_cast<std::size_t>(std::max<utf8proc_ssize_t>(length, 1)));
        if (length > 0 && !isControl(character) && character != '\\') {
            text += spelling;
        } else {
            std::ranges::for_each(spelling, [&](char byte) { text += escaped(byte); });
        }
        bytes.remove_prefix(spelling.size());
    }
    return text;
}

std::string quotedPrintable(std::string_view bytes)
{
    return "“" + printable(bytes) + "”";
}

} // namespace corvellane
