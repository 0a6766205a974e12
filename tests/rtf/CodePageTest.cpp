#include "rtf/CodePage.h"
#include "rtf/CodePages.h"
#include "rtf/TextDecoder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace corvellane::rtf {
namespace {

struct Pair {
    int number;
    std::string bytes;
    char32_t character;
};

TEST(CodePage, decodesTheCharactersOfEveryFamilyOfPages)
{
    const std::vector<Pair> pairs = {
        {437, "\x80", U'Ç'},
        {850, "\x9B", U'ø'},
        {852, "\xA9", U'ę'},
        {866, "\x80", U'А'},
        {874, "\xE3", U'ใ'},
        {932, "\x95\x5C", U'表'},
        {932, "\xB1", U'ｱ'},
        {936, "\xD6\xD0", U'中'},
        {949, "\xB0\xA1", U'가'},
        {950, "\xA5\x5C", U'功'},
        {1250, "\xB9", U'ą'},
        {1251, "\xDF", U'Я'},
        {1252, "\x80", U'€'},
        {1253, "\xC1", U'Α'},
        {1254, "\xDD", U'İ'},
        {1255, "\xE0", U'א'},
        {1256, "\xC7", U'ا'},
        {1257, "\xE0", U'ą'},
        {1258, "\xFE", U'₫'},
        {1361, "\x88\x61", U'가'},
        {10000, "\xA5", U'•'},
        {10007, "\x80", U'А'},
        {10029, "\x88", U'ą'},
        {54936, "\x81\x30\x81\x30", U'\u0080'},
        {65001, "\xF0\x9F\x98\x80", U'\U0001F600'},
        {symbolPage, "\xB7", U'•'},
        {symbolPage, "W", U'Ω'},
        {wingdingsPage, "\xD8", U'➢'},
        {wingdingsPage, "\xFC", U'✓'},
        {wingdingsPage, "\xA7", U'▪'},
    };
    for (const Pair& pair : pairs) {
        const auto page = CodePage::open(pair.number);
        ASSERT_NE(page, nullptr) << pair.number;
        EXPECT_EQ(page->decode(pair.bytes), pair.character) << pair.number;
        EXPECT_EQ(page->decode(pair.bytes), pair.character) << pair.number << ", remembered";
        EXPECT_EQ(page->decode('A'), page->hasAscii() ? U'A' : page->decode("A"));
    }
}

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

TEST(CodePages, substituteAPageThatIsUnknown)
{
    CodePages pages;
    EXPECT_EQ(CodePage::open(12345), nullptr);
    EXPECT_EQ(pages.find(12345), nullptr);
    EXPECT_EQ(&pages.findOr(12345, 1251), pages.find(1251));
    CodePage& last = pages.findOr(12345, 54321);
    EXPECT_EQ(last.decode('~'), U'~');
    EXPECT_EQ(last.decode('\xE9'), U'\uFFFD');
}

TEST(CodePages, followTheCharacterSetsOfFonts)
{
    const std::vector<std::pair<int, int>> rows = {{0, 1252}, {1, 0}, {2, 0}, {77, 10000}, {128, 932}, {129, 949},
        {130, 1361}, {134, 936}, {136, 950}, {161, 1253}, {162, 1254}, {163, 1258}, {177, 1255}, {178, 1256},
        {186, 1257}, {204, 1251}, {222, 874}, {238, 1250}, {255, 850}, {-1, 0}, {999, 0}};
    for (const auto& [charset, page] : rows) {
        EXPECT_EQ(codePageOfCharset(charset), page) << charset;
    }
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
    const std::vector<Pair> rows = {
        {932, "a\x95\x5C\x83\x7B\x82z\xB1\x82\x82\xA0\xFF\x82", 0},
        {936, "\x80\xD6\xD0{\xD6", 0},
        {1252, "caf\xE9 \x81\x93", 0},
        {54936, "\x81\x30\x81\x30 \x81\x30\x81z\x81\x30z", 0},
        {65001, "\xE2\x82\xAC\xE2\x82z\xF0\x9F\x98\x80\xF0\x9F\xFF\xC3", 0},
        {symbolPage, "ab\xB7\x7F", 0},
    };
    for (const Pair& row : rows) {
        const auto page = CodePage::open(row.number);
        const std::string whole = decodedInPieces(row.bytes, *page, row.bytes.size(), 0);
        for (std::size_t first = 0; first < row.bytes.size(); ++first) {
            for (std::size_t second = 0; first + second <= row.bytes.size(); ++second) {
                EXPECT_EQ(decodedInPieces(row.bytes, *page, first, second), whole) << row.number << ' ' << first;
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
