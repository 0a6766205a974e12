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

TEST(RtfText, knowsTheCharactersThatHaveWords)
{
    expectTexts({
        {" a\\tab b\\~c\\_d\\-e\\|f\\:g", "a\tb\u00A0c\u2011defg\n"},
        {"\\emdash\\endash\\emspace\\enspace\\qmspace.", "\u2014\u2013\u2003\u2002\u2005.\n"},
        {"\\lquote a\\rquote\\ldblquote b\\rdblquote\\bullet", "\u2018a\u2019\u201Cb\u201D\u2022\n"},
        {"\\zwj\\zwnj\\zwbo\\zwnbo\\ltrmark\\rtlmark", "\u200D\u200C\u200B\u2060\u200E\u200F\n"},
        {" \\{\\\\\\}", "{\\}\n"},
        {"\\unknownword7 a\\Par b", "ab\n"},
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

TEST(RtfText, decodesAFontsOwnCharacterSet)
{
    const std::vector<Row> fonts = {
        {"\\fcharset1 A;}\\f3\\'e9", "\u00E9\n"},
        {"\\fcharset204 A;}\\f3\\'e9", "\u0439\n"},
        {"\\fcharset0\\cpg1251 A;}\\f3\\'e9", "\u0439\n"},
        {"\\fcharset204 A;}{\\f3\\'e9}\\'e9", "\u0439\u00E9\n"},
        {"\\fcharset204\\cpg77777 A;}\\f3\\'e9", "\u0439\n"},
        {"\\fcharset204\\cpg1251 A;\\f4 B;}\\f4\\'e9", "\u00E9\n"},
        {"\\fcharset204 A\\f4 B;}\\f3\\'e9", "\u0439\n"},
        {"\\fcharset2 Symbol;}\\f3\\'b7a\\u-3913?", "\u2022\u03B1\u2022\n"},
        {"\\fcharset2 Wingdings;}\\f3\\'a7\\'d8\\'fclnq\\u-3929?", "\u25AA\u27A2\u2713\u25CF\u25A0\u2751\u25AA\n"},
    };
    for (const Row& font : fonts) {
        EXPECT_EQ(plainText("\\ansi{\\fonttbl\\f3" + font.body), font.text) << font.body;
    }
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

TEST(RtfText, readsUnicodeAndPassesItsFallback)
{
    expectTexts({
        {"\\u8226?x", "\u2022x\n"},
        {"\\u-4051 ?x", "\uF02Dx\n"},
        {"\\uc0\\u8226 x", "\u2022x\n"},
        {"\\uc2\\u12354\\'82\\'a0x", "\u3042x\n"},
        {"\\uc3\\u8226 <->x", "\u2022x\n"},
        {"\\uc2\\u8226 a\n\nbx", "\u2022x\n"},
        {"\\u8226\\bullet x", "\u2022x\n"},
        {"\\u8226\\foo x", "\u2022x\n"},
        {"\\u8226{\\'95 more}x", "\u2022x\n"},
        {"\\u8226\\~x\\u8226\\{x", "\u2022x\u2022x\n"},
        {"\\u8226\\par x\\u8226\\\nx", "\u2022\nx\u2022\nx\n"},
        {"\\uc3\\uc\\u8226 ax", "\u2022x\n"},
        {"\\u1114177 ?x", "Ax\n"},
        {"\\u8226\\bin3 }}}x", "\u2022x\n"},
        {"{\\u8226}x", "\u2022x\n"},
        {"{\\uc0{\\u8226 a}\\u8226 b}\\u8226 cd", "\u2022a\u2022b\u2022d\n"},
        {"\\uc-1\\u8226 x", "\u2022x\n"},
    });
}

TEST(RtfText, pairsSurrogates)
{
    expectTexts({
        {"\\u55357?\\u56832?x", "\U0001F600x\n"},
        {"\\u-10179?\\u-8704?x", "\U0001F600x\n"},
        {"\\uc0\\u55357\\u-8704 x", "\U0001F600x\n"},
        {"{\\u55357 ?}{\\u56832 ?}", "\U0001F600\n"},
        {"\\u128512?x", "\U0001F600x\n"},
        {"\\u55357?x", "\uFFFDx\n"},
        {"\\u55357?x\\u56832?", "\uFFFDx\uFFFD\n"},
        {"\\u55357?\\par\\u56832?", "\uFFFD\n\uFFFD\n"},
        {"\\u55357?\\b\\u56832?", "\uFFFD\uFFFD\n"},
        {"\\u55357?\\u55357?\\u56832?", "\uFFFD\U0001F600\n"},
        {"\\u56832?x\\u55357", "\uFFFDx\uFFFD\n"},
    });
}

TEST(RtfText, keepsOutWhatIsNoText)
{
    expectTexts({
        {"{\\stylesheet{\\s1 Heading;}}{\\info{\\title T}}{\\*\\generator G;}{\\*\\themedata 50}a", "a\n"},
        {"{\\header h\\par}{\\footerr f}{\\headerf{\\b x}}a{\\footnote\\pard n\\par}b", "ab\n"},
        {"{\\*\\unknown a{b\\par{c}}d}e{\\* f}g", "eg\n"},
        {"{\\*\n\\unknown a}{ \\*\\unknown b}c", " bc\n"},
        {"{\\*\\unknown\\ansicpg1251}{\\fonttbl{\\*\\ud b}}\\'e9", "\u00E9\n"},
        {"{\\pict\\wmetafile8 0102{\\*\\blipuid 03}04}{\\*\\shppict{\\pict 05}}{\\nonshppict{\\pict 06}}a", "a\n"},
        {"{\\pict\\bin5 {{}}}}a\\bin-4 b{\\pict\\bin4294967297 \x02}c", "abc\n"},
        {"{\\upr{ansi}{\\*\\ud{unic\\u246?de}}}.", "unic\u00F6de.\n"},
        {"{\\listtext\\'95\\tab}a{\\pntext b\\tab}{\\*\\pn\\pnlvlblt{\\pntxtb \\'95}}c", "\u2022\tab\tc\n"},
        {"a{\\v hidden\\par}b\\v c\\v0 d", "abd\n"},
        {"{\\field{\\*\\fldinst HYPERLINK \"http://x\"}{\\fldrslt a}}{\\field{\\*\\fldinst PAGE}{\\fldrslt 7}}",
            "a7\n"},
        {"{\\field{\\*\\fldinst IF {\\field{\\*\\fldinst A}{\\fldrslt B}} C}{\\fldrslt D}}", "D\n"},
        {"{\\object\\objemb{\\*\\objdata 01}{\\result r}}{\\shp{\\*\\shpinst{\\sp{\\sn n}{\\sv v}}{\\shptxt "
         "s}}{\\shprslt t}}",
            "rs\n"},
    });
}

TEST(RtfText, putsATablesRowOnALine)
{
    expectTexts({
        {"\\trowd\\pard\\intbl a\\cell b\\cell\\row\\trowd\\intbl c\\cell\\cell\\row\\pard d", "a\tb\nc\t\nd\n"},
        {"\\pard\\intbl a\\par b\\cell c\\cell{\\trowd\\row}", "a\u2028b\tc\n"},
        {"\\intbl\\itap2 i\\nestcell j\\nestcell{\\*\\nesttableprops\\trowd\\nestrow}{\\nonesttables\\par}"
         "\\itap1\\cell o\\cell\\row\\pard e",
            "i\tj\no\ne\n"},
        {"\\pard\\intbl a\\cell\\pard b", "a\tb\n"},
        {"\\intbl a\\cell b\\cell", "a\tb\n"},
        {"\\intbl a\\cell\\pard\\par b\\par\\itap-1 c\\par d", "a\nb\nc\nd\n"},
        {"\\itap2 i\\nestcell\\nestrow n\\cell o\\cell\\row\\nestrow\\pard\\par\\intbl\\cell p", "i\nn\to\n\n\n\tp\n"},
    });
}

TEST(RtfText, readsOneMillionNestedGroupsWithinASecond)
{
    constexpr std::size_t depth = 1'000'000;
    const std::string nested = std::string(depth, '{') + "a" + std::string(depth, '}');
    const std::clock_t begin = std::clock();
    EXPECT_EQ(plainText(nested), "a\n");
    EXPECT_LT(std::clock() - begin, CLOCKS_PER_SEC);
}

TEST(RtfText, readsDeeplyNestedGroupsThatDiffer)
{
    constexpr std::size_t depth = 1'000'000;
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
