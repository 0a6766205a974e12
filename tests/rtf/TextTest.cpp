#include "rtf/Reader.h"
#include "tools/AgreementReport.h"

#include <gtest/gtest.h>

#include <ctime>
#include <string>
#include <string_view>
#include <vector>

namespace corvellane::rtf {
namespace {

/// The plain text of RTF whose outer group holds `body`; the reader's failure as a number where there is one.
std::string plainText(const std::string& body)
{
    const auto result = read("{\\rtf1" + body + "}");
    return result ? agreementPlainText(*result) : "failure " + std::to_string(static_cast<int>(result.error()));
}

struct Row {
    std::string body;
    std::string text;
};

void expectTexts(const std::vector<Row>& rows)
{
    for (const Row& row : rows) {
        EXPECT_EQ(plainText(row.body), row.text) << row.body;
    }
}

TEST(RtfText, forgivesWhatStandsAroundTheOuterGroup)
{
    for (const std::string before : {"", " \r\n\t", "\xEF\xBB\xBF", "\xEF\xBB\xBF\n", " \xEF\xBB\xBF "}) {
        for (const std::string_view after : {"", "\n", "}", "{\\b", "\x01"}) {
            const auto text = read(std::string(before).append("{\\rtf1 a}").append(after));
            EXPECT_EQ(agreementPlainText(text.value()), "a\n") << before << after;
        }
    }
    for (const std::string_view wrong : {"", "\\rtf1 a", "{rtf1 a}", "{ \\rtf1 a}", "{\\rt", "x{\\rtf1 a}"}) {
        EXPECT_EQ(read(wrong).error(), ReadFailure::notRtf) << wrong;
    }
    for (const std::string_view open : {"{\\rtf", "{\\rtf1 a\\", "{\\rtf1 a\\'", "{\\rtf1\\bin5 }}", "{\\rtf1 a\\}"}) {
        EXPECT_EQ(read(open).error(), ReadFailure::incomplete) << open;
    }
}

TEST(RtfText, endsParagraphsAndLines)
{
    expectTexts({
        {"", ""},
        {" a", "a\n"},
        {" a\\par", "a\n"},
        {" a\\par\\par b", "a\n\nb\n"},
        {" a\\\nb\\\rc\\\r\nd\\\n", "a\nb\nc\nd\n"},
        {" a\\\r\\\nb", "a\n\nb\n"},
        {" a\\line b\\lbr0 c", "a\u2028b\u2028c\n"},
        {" a\\page b\\par\\page c", "a\nb\nc\n"},
        {" a\\sect\\sectd b\\par\\sect\\sectd c", "a\nb\nc\n"},
        {" a\\u8233 ?b", "a\nb\n"},
        {std::string(" a\tb\x01\0c\f", 8), "a\tbc\n"},
    });
}

TEST(RtfText, decodesTheDocumentsCodePage)
{
    expectTexts({
        {"\\ansi\\'93\\'e9\\'94\xE9", "\u201C\u00E9\u201D\u00E9\n"},
        {"\\mac\\'8e\\'d2", "\u00E9\u201C\n"},
        {"\\pc\\'82", "\u00E9\n"},
        {"\\pca\\'d5", "\u0131\n"},
        {"\\ansi\\ansicpg1251\\'cf\xF0", "\u041F\u0440\n"},
        {"\\ansicpg65001\\'e2\\'82\\'ac\xE2\x82\xAC", "\u20AC\u20AC\n"},
        {"\\ansicpg77777\\'e9", "\u00E9\n"},
        {"\\ansi\\'81", "\uFFFD\n"},
        {"\\ansicpg1251{\\fonttbl{\\f0\\fcharset0 A;}}\\'e9\\f0\\'e9", "\u0439\u00E9\n"},
    });
}

TEST(RtfText, joinsTheBytesOfMultiByteCharactersHoweverTheyAreWritten)
{
    const std::vector<Row> japanese = {
        {"\\'82\\'a0\\'b1", "\u3042\uFF71\n"},
        {"\x82\xA0\xB1", "\u3042\uFF71\n"},
        {"\x82\\'a0\\'82\xA0", "\u3042\u3042\n"},
        {"\\'83A\\'83\x41", "\u30A2\u30A2\n"},
        {"\\'82\n\\'a0\x82\r\n\xA0", "\u3042\u3042\n"},
        {"\\'95\\'5c\\'83\\'7b\\'83\\'7d", "\u8868\u30DC\u30DE\n"},
        {"\\'95\\\\\\'83\\{\\'83\\}", "\u8868\u30DC\u30DE\n"},
        {"\x95\x5C\x83\x7B\x83\x7D!", "\u8868\u30DC\u30DE!\n"},
        {"\x95\\\\!", "\u8868!\n"},
        {"{\x95\x5C}\x95\x5C\\par x", "\u8868\u8868\nx\n"},
        {"\x95\x5C\\'82\\'a0", "\u8868\u3042\n"},
        {"\\'82\\b\\'a0\\'82\\unknown\\'a0", "\uFFFD\uFFFD\uFFFD\uFFFD\n"},
        {"\\'82{\\'a0}{\\'82}\\'a0", "\uFFFD\uFFFD\uFFFD\uFFFD\n"},
        {"\\'82\\par x\\'82", "\uFFFD\nx\uFFFD\n"},
        {"{\\info{\\title \x95\x5C\x83\x7D}}a", "a\n"},
        {"{\\info \x83\nb{c}}a", "a\n"},
        {"\\uc0\\u55357\\'82\\u56832", "\uFFFD\uFFFD\uFFFD\n"},
    };
    for (const Row& row : japanese) {
        EXPECT_EQ(plainText("\\ansi{\\fonttbl{\\f0\\fcharset128 A;}}\\f0 " + row.body), row.text) << row.body;
    }
    EXPECT_EQ(plainText("{\\fonttbl\\f0\\fcharset136 A;}\\f0\\'a4\\'a4\xA5\x5C"), "\u4E2D\u529F\n");
    EXPECT_EQ(plainText("\\ansicpg932" + std::string(999, '\xB1')).size(), 999 * 3 + 1);
    EXPECT_EQ(plainText("\\ansicpg932{\\info \x95\x5C\x83\x7D}a"), "a\n");
}

constexpr std::size_t depth = 1'000'000;

TEST(RtfText, readsOneMillionNestedGroupsWithinASecond)
{
    const std::string nested = std::string(depth, '{') + "a" + std::string(depth, '}');
    const std::clock_t begin = std::clock();
    EXPECT_EQ(plainText(nested), "a\n");
    EXPECT_LT(std::clock() - begin, CLOCKS_PER_SEC);
}

TEST(RtfText, readsDeeplyNestedGroupsThatDiffer)
{
    std::string mixed;
    std::string closing;
    for (std::size_t level = 0; level < depth / 2; ++level) {
        mixed += level % 2 == 0 ? "{\\b " : "{{\\i0 ";
        closing += level % 2 == 0 ? "}" : "}}";
    }
    EXPECT_EQ(plainText(mixed + "a" + closing), "a\n");
    EXPECT_EQ(plainText("{\\*\\unknown" + mixed + "b" + closing + "}a"), "a\n");
    EXPECT_EQ(plainText(mixed + "a"), "failure 1");
}

} // namespace
} // namespace corvellane::rtf
