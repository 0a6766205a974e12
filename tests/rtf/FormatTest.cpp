#include "rtf/Reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace corvellane::rtf {
namespace {

/// The text of RTF whose outer group holds `body`.
AttributedText readBody(const std::string& body)
{
    return read("{\\rtf1\\ansi" + body + "}").value();
}

/// How the one run of text looks that `body` gives.
TextAttributes look(const std::string& body)
{
    const AttributedText text = readBody(body);
    EXPECT_EQ(text.runs.size(), 1U) << body;
    return text.attributes.at(text.runs.at(0).attributes);
}

/// How the last paragraph is laid out.
ParagraphFormat format(const std::string& body)
{
    const AttributedText text = readBody(body);
    return text.formats.at(text.paragraphs.back().format);
}

std::string family(const std::string& body)
{
    const AttributedText text = readBody(body);
    return text.families.at(text.attributes.at(text.runs.at(0).attributes).family);
}

TEST(RtfFormat, takesABoldFaceApartFromBold)
{
    const std::string fonts = "{\\fonttbl\\f0 Helvetica-Bold;\\f1 Helvetica;\\f2 Helvetica-Oblique;}";
    EXPECT_TRUE(look(fonts + "\\f0 x").bold);
    EXPECT_TRUE(look(fonts + "\\f0\\b0 x").bold);
    EXPECT_TRUE(look(fonts + "\\f1\\b x").bold);
    EXPECT_FALSE(look(fonts + "\\f0\\b\\f1\\b0 x").bold);
    EXPECT_TRUE(look(fonts + "\\f2\\i0\\b x").italic);
    EXPECT_EQ(family(fonts + "\\f0 x"), "Helvetica");
    EXPECT_EQ(readBody(fonts + "\\f0 a\\f1\\b b\\f0\\b0 c").runs.size(), 1U);
}

TEST(RtfFormat, namesTheFontAsItsAuthorKnowsIt)
{
    const std::vector<std::pair<std::string, std::string>> rows = {
        {"Arial;", "Arial"},
        {" Two  Words ;", "Two  Words"},
        {"ArialMT;", "Arial"},
        {"TimesNewRomanPSMT;", "Times New Roman"},
        {"Menlo-Regular;", "Menlo"},
        {"Foo-SemiboldIt;", "Foo"},
        {"Foo-Boldish;", "Foo-Boldish"},
        {"-Bold;", "-Bold"},
        {"Arial CYR;", "Arial"},
        {" CE;", "CE"},
        {"{\\*\\falt Alternative}Arial;", "Arial"},
        {"{\\*\\panose 020b}Arial{\\*\\falt Alternative};", "Arial"},
        {"\\'41rial;", "Arial"},
        {"Ari\\u225 l;", "Ari\u00E1l"},
        {"\\fcharset128 A\x83;", "A\uFFFD"},
        {"Arial", "Arial"},
        {";", "Helvetica"},
    };
    for (const auto& [entry, name] : rows) {
        EXPECT_EQ(family("{\\fonttbl{\\f4\\fnil\\fcharset0\\uc0 " + entry + "}}\\f4 x"), name) << entry;
        EXPECT_EQ(family("{\\fonttbl\\f3 Other;\\f4\\uc0 " + entry + "}\\f4 x"), name) << entry;
    }
    EXPECT_EQ(family("{\\fonttbl{\\f4\\fcharset128 \\'83\\'81;}}\\f4 x"), "メ");
    EXPECT_EQ(family("{\\fonttbl{\\f4\\fcharset128 \x83\x7D;}}\\f4 x"), "マ");
    EXPECT_EQ(family("\\f4 x"), "Helvetica");
}

TEST(RtfFormat, isPlainOnceReset)
{
    const TextAttributes plain = look("\\b\\i\\ul\\strike\\super\\up9\\scaps\\fs40\\cf1\\cb1\\v\\plain x");
    EXPECT_FALSE(plain.bold || plain.italic || plain.underline || plain.strike || plain.color || plain.background);
    EXPECT_EQ(plain.size, 12);
    EXPECT_EQ(plain.baselineOffset, 0);
    EXPECT_EQ(plain.script, VerticalPosition::normal);
    EXPECT_EQ(plain.capitals, Capitals::asTyped);
    EXPECT_EQ(readBody(" a\\v").attributes.size(), 1U);
}

TEST(RtfFormat, takesSizesInHalfPointsAndNeverNone)
{
    const std::vector<std::pair<std::string, double>> rows = {{"\\fs25 x", 12.5}, {"\\fs1 x", 0.5}, {"\\fs0 x", 12},
        {"\\fs x", 12}, {"\\fs-24 x", 12}, {"\\fs2147483647 x", 16383.5}, {"{\\fs40 }x", 12}};
    for (const auto& [body, size] : rows) {
        EXPECT_EQ(look(body).size, size) << body;
    }
    EXPECT_EQ(look("\\up2147483647 x").baselineOffset, 16383.5);
    EXPECT_EQ(look("\\dn-2147483648 x").baselineOffset, 16383.5);
}

TEST(RtfFormat, hasNoColorWhereTheTableHasNone)
{
    const std::string table = "{\\colortbl;\\red255\\green255\\blue255;\\red1\\green2\\blue3;}";
    const std::string cocoa = "\\cocoartf2639" + table;
    EXPECT_EQ(look(table + "\\cf2147483647 x").color, std::nullopt);
    EXPECT_NE(look(table + "\\cb1 x").background, std::nullopt);
    for (const std::string none : {"\\cb0", "\\cb1", "\\cb2\\cb1", "\\cb9", "\\highlight0"}) {
        EXPECT_EQ(look(cocoa + none + " x").background, std::nullopt) << none;
    }
    EXPECT_EQ(look(cocoa + "\\cf1\\cb2 x").color, (Color{255, 255, 255}));
    EXPECT_NE(look(cocoa + "\\highlight1 x").background, std::nullopt);
    EXPECT_NE(look(cocoa + "\\chcbpat1 x").background, std::nullopt);
}

TEST(RtfFormat, readsLineHeights)
{
    struct Row {
        std::string body;
        LineHeight::Kind kind;
        double value;
    };
    const std::vector<Row> rows = {
        {"\\slmult1\\sl480", LineHeight::Kind::multiple, 2},
        {"\\sl360\\slmult0", LineHeight::Kind::atLeast, 18},
        {"\\slminimum280\\slmaximum280", LineHeight::Kind::exactly, 14},
        {"\\slminimum280", LineHeight::Kind::atLeast, 14},
        {"\\slmaximum-280", LineHeight::Kind::natural, 0},
        {"\\sl0\\slmult1", LineHeight::Kind::natural, 0},
    };
    for (const Row& row : rows) {
        const LineHeight height = format(row.body + " x").lineHeight;
        EXPECT_EQ(height.kind, row.kind) << row.body;
        EXPECT_EQ(height.value, row.value) << row.body;
    }
}

TEST(RtfFormat, chainsTabStopsAndBoundsTheirNumber)
{
    std::string many;
    for (int position = 1; position <= 100; ++position) {
        many += "\\tx" + std::to_string(position * 20);
    }
    const AttributedText text
        = readBody(many + " a\\par{\\pard\\tqr\\tx40 b\\par}\\tqr\\pard\\tx40 c\\par\\pard\\tx20\\tx40 d");
    const auto first = text.tabsOf(text.formats.at(text.paragraphs.at(0).format));
    ASSERT_EQ(first.size(), 64U);
    EXPECT_EQ(first.front().position, 1);
    EXPECT_EQ(first.back().position, 64);
    const auto second = text.tabsOf(text.formats.at(text.paragraphs.at(1).format));
    ASSERT_EQ(second.size(), 1U);
    EXPECT_EQ(second[0].kind, TabKind::right);
    const auto third = text.tabsOf(text.formats.at(text.paragraphs.at(2).format));
    ASSERT_EQ(third.size(), 1U);
    EXPECT_EQ(third[0].kind, TabKind::left);
    EXPECT_EQ(text.tabsOf(text.formats.at(text.paragraphs.at(3).format)).size(), 2U);
    EXPECT_EQ(text.tabStops.size(), 66U);
}

TEST(RtfFormat, leadsALinkWhereItsFieldSays)
{
    const std::vector<std::pair<std::string, std::string>> rows = {
        {"HYPERLINK \"http://a/b c\"", "http://a/b c"},
        {"  hyperlink http://a", "http://a"},
        {"{\\b HYPERLINK }{\"http://a\"}", "http://a"},
        {"HYPERLINK \\\\l \"mark\"", "#mark"},
        {"HYPERLINK \\\\l mark \"http://a\"", "http://a#mark"},
        {"HYPERLINK \\\\t \"_blank\" \\\\o \"tip\" \\\\n \"http://a\" \"http://b\"", "http://a"},
        {"HYPERLINK \"a{\\field{\\*\\fldinst X}{\\fldrslt b}}\"", "ab"},
        {"{\\upr{HYPERLINK}{\\*\\ud HYPERLINK \"a\"}}", "a"},
        {"HYPERLINK \"C:\\\\\\\\a\\\\\"b\\\\\"\"", "C:\\a\"b\""},
        {"HYPERLINK \"http://a/\\u252 ?\"", "http://a/\u00FC"},
        {"HYPERLINK \"http://a", "http://a"},
        {R"(HYPERLINK "\\\\\\\\a")", R"(\\a)"},
        {"HYPERLINK", ""},
        {"HYPERLINKS \"http://a\"", ""},
        {"PAGEREF \"http://a\"", ""},
        {"", ""},
    };
    for (const auto& [instruction, target] : rows) {
        const AttributedText text = readBody("{\\field{\\*\\fldinst " + instruction + "}{\\fldrslt x}}");
        EXPECT_EQ(text.links, target.empty() ? std::vector<std::string>{} : std::vector{target}) << instruction;
        EXPECT_EQ(text.text, "x") << instruction;
        EXPECT_EQ(text.attributes.at(text.runs.at(0).attributes).link.has_value(), !target.empty()) << instruction;
    }
    const AttributedText two = readBody("{\\field{\\*\\fldinst HYPERLINK \"a\"}{\\fldrslt \\plain x}}y"
                                        "{\\field{\\*\\fldinst HYPERLINK \"b\"}{\\fldrslt z}}");
    ASSERT_EQ(two.runs.size(), 3U);
    EXPECT_FALSE(two.attributes.at(two.runs[1].attributes).link.has_value());
    EXPECT_EQ(two.attributes.at(two.runs[2].attributes).link, 1U);
    for (const std::string none : {"{\\*\\fldinst HYPERLINK \"a\"}",
             "{\\field{\\fldrslt{\\*\\fldinst HYPERLINK \"a\"}}}", "{\\field\\fldinst HYPERLINK \"a\"{}}"}) {
        EXPECT_TRUE(readBody(none).links.empty()) << none;
    }
}

TEST(RtfFormat, breaksPages)
{
    EXPECT_TRUE(format("a\\sect\\sectd b").pageBreakBefore);
    EXPECT_FALSE(format("a\\page b\\par c").pageBreakBefore);
    EXPECT_FALSE(format("a{\\header\\page}\\par b").pageBreakBefore);
}

} // namespace
} // namespace corvellane::rtf
