#include "rtf/CodePage.h"
#include "rtf/TextDecoder.h"

#include <gtest/gtest.h>

#include <iconv.h>
#include <string>
#include <vector>

namespace corvellane::rtf {
namespace {

TEST(CodePage, tellsWhatIsIncompleteFromWhatIsInvalid)
{
    const auto japanese = CodePage::open(932);
    EXPECT_TRUE(japanese->isMultiByte());
    EXPECT_EQ(japanese->decode('\x82'), CodePage::incomplete);
    EXPECT_EQ(japanese->decode("\x82\x20"), CodePage::invalid);
    EXPECT_EQ(japanese->decode('\xFF'), CodePage::invalid);
    const auto unicode = CodePage::open(65001);
    EXPECT_EQ(unicode->decode("\xF0\x9F\x98"), CodePage::incomplete);
    EXPECT_EQ(unicode->decode("\xED\xA0\x80"), CodePage::invalid);
    const auto western = CodePage::open(1252);
    EXPECT_FALSE(western->isMultiByte());
    EXPECT_EQ(western->decode('\x81'), CodePage::invalid);
}

TEST(CodePage, hasTheWesternCharactersThatTheCLibraryHas)
{
    const auto page = CodePage::open(1252);
    EXPECT_TRUE(page->hasAscii());
    const iconv_t converter = iconv_open("UTF-32LE", "CP1252");
    for (int code = 0; code < 0x100; ++code) {
        char byte = static_cast<char>(code);
        char* from = &byte;
        char32_t character = 0;
        char* to = reinterpret_cast<char*>(&character);
        std::size_t fromLeft = 1;
        std::size_t toLeft = sizeof character;
        const bool isValid = iconv(converter, &from, &fromLeft, &to, &toLeft) == 0;
        EXPECT_EQ(page->decode(byte), isValid ? character : CodePage::invalid) << code;
    }
    iconv_close(converter);
}

TEST(CodePages, substituteAPageThatIsUnknown)
{
    CodePages pages;
    EXPECT_EQ(pages.find(12345), nullptr);
    EXPECT_EQ(&pages.findOr(12345, 1251), pages.find(1251));
    CodePage& last = pages.findOr(12345, 54321);
    EXPECT_EQ(last.decode('~'), U'~');
    EXPECT_EQ(last.decode('\xE9'), U'\uFFFD');
}

std::string decodedInPieces(const std::string& bytes, CodePage& page, std::size_t first, std::size_t second)
{
    TextDecoder decoder;
    std::string out;
    decoder.appendBytes(bytes.substr(0, first), page, out);
    decoder.appendBytes(bytes.substr(first, second), page, out);
    for (const char byte : bytes.substr(first + second)) {
        decoder.appendByte(byte, page, out);
    }
    return out;
}

TEST(TextDecoder, givesTheSameTextInWhateverPiecesTheBytesCome)
{
    const std::vector<std::pair<int, std::string>> rows = {
        {932, "a\x95\x5C\x83\x7B\x82z\xB1\x82\x82\xA0\xFF\x82"},
        {936, "\x80\xD6\xD0{\xD6"},
        {1252, "caf\xE9 \x81\x93"},
        {54936, "\x81\x30\x81\x30 \x81\x30\x81z\x81\x30z"},
        {65001, "\xE2\x82\xAC\xE2\x82z\xF0\x9F\x98\x80\xF0\x9F\xFF\xC3"},
        {symbolPage, "ab\xB7\x7F"},
    };
    for (const auto& [number, bytes] : rows) {
        const auto page = CodePage::open(number);
        const std::string whole = decodedInPieces(bytes, *page, bytes.size(), 0);
        for (std::size_t first = 0; first < bytes.size(); ++first) {
            for (std::size_t second = 0; first + second <= bytes.size(); ++second) {
                EXPECT_EQ(decodedInPieces(bytes, *page, first, second), whole) << number << ' ' << first;
            }
        }
    }
}

TEST(TextDecoder, joinsNoSurrogatesOfTwoTexts)
{
    TextDecoder decoder;
    std::string first;
    std::string second = "abc";
    decoder.appendUnit(0xD83D, first);
    decoder.appendUnit(0xDE00, second);
    EXPECT_EQ(first + second, "\uFFFDabc\uFFFD");
}

} // namespace
} // namespace corvellane::rtf
