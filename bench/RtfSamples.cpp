#include "bench/RtfSamples.h"

#include <array>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>

namespace corvellane {
namespace {

constexpr std::string_view japaneseHead
    = "{\\rtf1\\ansi\\ansicpg932\\deff0{\\fonttbl{\\f0\\fnil\\fcharset128 MS PMincho;}}\\pard\\plain\\f0\\fs21\n";

/// A sentence of an agreement in Shift JIS: it grants the use of the software.
constexpr std::string_view japaneseText
    = "\x96\x7b\x8c\x5f\x96\xf1\x82\xc9\x93\xaf\x88\xd3\x82\xb5\x82\xbd\x8f\xea\x8d\x87\x81\x41\x83\x5c\x83\x74\x83\x67"
      "\x83\x45\x83\x46\x83\x41\x82\xf0\x8e\x67\x97\x70\x82\xb7\x82\xe9\x82\xb1\x82\xc6\x82\xaa\x82\xc5\x82\xab\x82\xdc"
      "\x82\xb7\x81\x42";

constexpr std::string_view listItem
    = "\\pard\\tx220\\tx720\\tx1133\\tx1700\\li720\\fi-720\\pardirnatural\\partightenfactor0\n"
      "\\ls1\\ilvl0\\cf0 {\\listtext\t\\uc0\\u8226 \t}Each \\b seat\\b0  needs its own licence.\\\n";

constexpr std::string_view borders = "\\clbrdrt\\brdrs\\brdrw10\\clbrdrl\\brdrs\\brdrw10\\clbrdrb\\brdrs\\brdrw10"
                                     "\\clbrdrr\\brdrs\\brdrw10";

/// What `part` gives for one number after the other.
template <typename Part>
std::string numbered(std::string text, std::size_t size, Part part)
{
    for (int number = 0; text.size() < size; ++number) {
        text += part(std::to_string(number));
    }
    return text + "}";
}

std::string repeated(std::string text, std::string_view body, std::size_t size)
{
    text.reserve(size + body.size() + 1);
    while (text.size() < size) {
        text += body;
    }
    return text + '}';
}

std::string inHexadecimal(std::string_view bytes)
{
    std::string text;
    for (const char byte : bytes) {
        std::array<char, 8> code{};
        std::snprintf(code.data(), code.size(), "\\'%02x", static_cast<unsigned>(static_cast<unsigned char>(byte)));
        text += code.data();
    }
    return text;
}

std::string japaneseParagraph(const std::string& sentence)
{
    std::string body;
    for (int count = 0; count < 8; ++count) {
        body += sentence;
    }
    return body + "\\par\n";
}

std::string fileBytes(const char* path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

std::string agreementSample(std::size_t size)
{
    const std::string agreement = fileBytes(CORVELLANE_AGREEMENT);
    const std::size_t body = agreement.find("\\pard");
    return repeated(agreement.substr(0, body), agreement.substr(body, agreement.rfind('}') - body), size);
}

std::string multiByteSample(std::size_t size)
{
    return repeated(std::string(japaneseHead), japaneseParagraph(inHexadecimal(japaneseText)), size);
}

std::string rawMultiByteSample(std::size_t size)
{
    return repeated(std::string(japaneseHead), japaneseParagraph(std::string(japaneseText)), size);
}

std::string listSample(std::size_t size)
{
    const std::string head = "{\\rtf1\\ansi\\ansicpg1252\\cocoartf2639{\\fonttbl\\f0\\fswiss\\fcharset0 Helvetica;}"
                             "{\\colortbl;\\red255\\green255\\blue255;}\\f0\\fs24\n";
    return repeated(head, listItem, size);
}

std::string tableSample(std::size_t size)
{
    std::string row = "\\trowd\\trgaph108";
    for (const char* const edge : {"3000", "6000", "9000"}) {
        row.append(borders).append("\\cellx").append(edge);
    }
    row += "\\pard\\intbl Seat licence for one user\\cell\\qc 12\\cell\\qr 1,204.00\\cell\\row\n";
    return repeated("{\\rtf1\\ansi{\\fonttbl\\f0\\fswiss Helvetica;}\\f0\\fs24\n", row, size);
}

std::string emptyLines(std::size_t size)
{
    return repeated("{\\rtf1 ", "\\\n", size);
}

std::string fontEntries(std::size_t size)
{
    return numbered("{\\rtf1{\\fonttbl", size, [](const std::string& n) { return "{\\f" + n + " A" + n + ";}"; }) + "}";
}

std::string differentLooks(std::size_t size)
{
    return numbered("{\\rtf1 ", size, [](const std::string& n) { return "\\up" + n + " a"; });
}

std::string changingLooks(std::size_t size)
{
    return repeated("{\\rtf1 ", "\\b a\\b0\\ql\\\n\\qr\\\n", size);
}

std::string changingGroups(std::size_t size)
{
    return repeated("{\\rtf1 ", "{\\b\x80}\x80", size);
}

std::string changingLines(std::size_t size)
{
    return repeated("{\\rtf1 ", "{\\qr\\b\\\n}\\\n", size);
}

std::string rawKatakana(std::size_t size)
{
    return repeated(std::string(japaneseHead), "\xB1\xB2\xB3\xB4\xB5", size);
}

std::string rawPictographs(std::size_t size)
{
    return repeated(R"({\rtf1{\fonttbl{\f0\fnil\fcharset2 Wingdings;}}\f0 )", "012345678", size);
}

std::size_t scanForControls(std::string_view bytes)
{
    std::size_t count = 0;
    for (const char wanted : {'\\', '{', '}'}) {
        const char* next = bytes.data();
        const char* const end = next + bytes.size();
        while ((next = static_cast<const char*>(std::memchr(next, wanted, static_cast<std::size_t>(end - next))))) {
            ++next;
            ++count;
        }
    }
    return count;
}

} // namespace corvellane
