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

void expectTexts(const std::vector<std::pair<std::string, std::string>>& rows)
{
    for (const auto& [body, text] : rows) {
        EXPECT_EQ(plainText(body), text) << body;
    }
}

/// What is read from RTF whose outer group holds `body`.
AttributedText readBody(const std::string& body)
{
    return read("{\\rtf1\\ansi" + body + "}").value();
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
        {" a\\'0d\\'0ab", "a\u2028b\n"},
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
        {"\\ansicpg932{\\info \x95\x5C\x83\x7D}a", "a\n"},
    });
    EXPECT_EQ(plainText("\\ansicpg932" + std::string(999, '\xB1')).size(), 999 * 3 + 1);
}

TEST(RtfText, readsUnicodeWhateverTheFileSaysOfItself)
{
    expectTexts({
        {"\\ansi\\ansicpg1252 caf\xC3\xA9 \xC2\xA9\\'e9", "caf\u00E9 \u00A9\u00E9\n"},
        {"\\ansi one \xC3\xA9", "one \u00C3\u00A9\n"},
        {"\\ansi \xC3\xA9 \xC3\xA9 \xE9", "\u00C3\u00A9 \u00C3\u00A9 \u00E9\n"},
        {"\\ansi \xE2\x82\xAC\xF0\x9F\x98\x80 {\\u233\xC3\xA9}x", "\u20AC\U0001F600 \u00E9x\n"},
        {"\\ansi \xC0\xAF\xED\xA0\x80", "\u00C0\u00AF\u00ED\u00A0\u20AC\n"},
    });
    const std::u16string units = u"{\\rtf1 \u00E9\U0001F600\\par\u05D0}";
    std::string little = "\xFF\xFE";
    std::string big = "\xFE\xFF";
    for (const char16_t unit : units) {
        const auto low = static_cast<char>(unit & 0xFF);
        const auto high = static_cast<char>(unit >> 8);
        little.append({low, high});
        big.append({high, low});
    }
    for (const std::string& bytes : {little, big}) {
        EXPECT_EQ(agreementPlainText(read(bytes).value()), "\u00E9\U0001F600\n\u05D0\n");
    }
}

TEST(RtfText, readsALoneLeadByteInTheDocumentsPage)
{
    expectTexts({
        {"\\ansi\\ansicpg1252{\\fonttbl{\\f1\\fcharset128 A;}}\\f1 caf\\'e9 \\'83\\'7b", "caf\u00E9 \u30DC\n"},
        {"\\ansi\\ansicpg932{\\fonttbl{\\f1\\fcharset136 A;}}\\f1 a\\'83 b", "a\uFFFD b\n"},
    });
}

TEST(RtfText, boundsTheNumberOfTabStops)
{
    std::string stops;
    for (int position = 1; position <= 100; ++position) {
        stops += "\\tx" + std::to_string(position * 20);
    }
    const AttributedText text = readBody(stops + " a\\par\\pard\\tx20\\tx40 b");
    const auto first = text.tabsOf(text.formats.at(text.paragraphs().at(0).format));
    ASSERT_EQ(first.size(), 64U);
    EXPECT_EQ(first.front().position, 20);
    EXPECT_EQ(first.back().position, 1280);
    EXPECT_EQ(text.tabStops.size(), 64U) << "a chain that begins as another one is part of it";
}

TEST(RtfText, keepsEveryLookAndLinkOnce)
{
    EXPECT_EQ(readBody("{\\fonttbl\\f0 A-Bold;\\f1 A;}\\f0 a\\f1\\b b\\f0\\b0 c").runs.size(), 1U);
    EXPECT_EQ(readBody(" a\\v").attributes.size(), 1U);
    EXPECT_TRUE(readBody("{\\field{\\*\\fldinst PAGEREF \"http://a\"}{\\fldrslt x}}").links.empty());
}

TEST(RtfText, takesNoRawByteForAnotherInTheNamesOfFonts)
{
    const auto family = [](const std::string& font) {
        const AttributedText text = readBody("{\\fonttbl{\\f4\\fcharset128 " + font + ";}}\\f4 x");
        return text.families.at(text.attributes.at(0).family).name;
    };
    EXPECT_EQ(family("A\x83"), "A\uFFFD");
    EXPECT_EQ(family("\x83\x7D"), "マ");
}

/// `part` again and again in RTF of at least two million bytes.
std::string longFile(const std::string& begin, const std::string& part)
{
    std::string rtf = "{\\rtf1" + begin;
    while (rtf.size() < 2'000'000) {
        rtf += part;
    }
    return rtf + "}";
}

TEST(RtfText, readsTheSameWhileItGivesBackWhatIsRead)
{
    std::string utf16 = "\xFF\xFE";
    for (const char byte : longFile(" ", "a")) {
        utf16.append({byte, '\0'});
    }
    const std::string run = "\\pard\\tx720\\qc \xE1";
    for (const std::string& rtf : {longFile("\\ansicpg932 ", "\xB1\x82\xA0"), longFile(" ", "\xE2\x82\xAC"),
             longFile("\\ansicpg874 ", std::string(700, '\xA1') + run), utf16}) {
        const auto text = readAway(rtf);
        EXPECT_GT(text.value().text.size(), 1'000'000U);
        EXPECT_EQ(text, read(rtf));
    }
}

TEST(RtfText, keepsNoMoreThanTextNeeds)
{
    const std::string pictographs = longFile("{\\fonttbl{\\f0 Wingdings;}}\\f0 ", "0");
    const std::size_t length = read(pictographs).value().text.size();
    EXPECT_GT(length, pictographs.size() * 3);
    EXPECT_LT(length, pictographs.size() * 3 + 1'000'000);

    for (const std::string letter : {"\xE9", "\\'e9", "\\u233 ?"}) {
        const std::string address = longFile("{\\field{\\*\\fldinst HYPERLINK ", letter) + "{\\fldrslt a}}}";
        EXPECT_LT(read(address).value().links.at(0).size(), 500'000U) << letter;
    }

    const std::string changing = longFile("", "{\\qr\\b\\\n}\\\n");
    const AttributedText text = read(changing).value();
    EXPECT_EQ(text.text, std::string(text.text.size(), '\n'));
    EXPECT_EQ(text.text.size(), 2 * ((changing.size() - 7) / 11));
    EXPECT_LT(text.runs.size(), changing.size() / 7);
    EXPECT_LT(text.formatStretches.size(), changing.size() / 7);
    EXPECT_EQ(text.paragraphs().size(), text.text.size());
}

TEST(RtfText, readsDeeplyNestedGroupsWithinASecond)
{
    constexpr std::size_t depth = 1'000'000;
    const std::string nested = std::string(depth, '{') + "a" + std::string(depth, '}');
    const std::clock_t begin = std::clock();
    EXPECT_EQ(plainText(nested), "a\n");
    EXPECT_LT(std::clock() - begin, CLOCKS_PER_SEC);
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
