#include "rtf/Blocks.h"
#include "rtf/Lists.h"
#include "rtf/Pictures.h"
#include "rtf/Reader.h"
#include "tools/AgreementReport.h"

#include <gtest/gtest.h>

#include <ctime>
#include <string>
#include <vector>

namespace corvellane::rtf {
namespace {

/// The blocks of RTF whose outer group holds `body`: paragraphs as their text, tables in brackets, "|" between cells,
/// "/" between rows and between the paragraphs of a cell ",".
std::string structure(const AttributedText& text, const std::vector<Block>& blocks)
{
    std::string result;
    for (const Block& block : blocks) {
        result += result.empty() ? "" : ",";
        if (block.rows.empty()) {
            result += text.text.substr(block.paragraph.begin, block.paragraph.end - block.paragraph.begin);
            continue;
        }
        result += '[';
        for (const TableRow& row : block.rows) {
            result += &row != &block.rows.front() ? "/" : "";
            for (const TableCell& cell : row.cells) {
                result += (&cell != &row.cells.front() ? "|" : "") + structure(text, cell.blocks);
            }
        }
        result += ']';
    }
    return result;
}

std::string structureOf(const std::string& body)
{
    const AttributedText text = read("{\\rtf1\\ansi" + body + "}").value();
    return structure(text, blocksOf(text));
}

TEST(Blocks, sortParagraphsIntoCellsRowsAndTables)
{
    const std::vector<std::pair<std::string, std::string>> rows = {
        {" a\\par b", "a,b"},
        {"\\trowd\\cellx9\\pard\\intbl a\\cell\\row\\pard b", "[a],b"},
        {"\\intbl a\\cell b\\cell\\row c\\cell\\row", "[a|b/c]"},
        {"\\intbl a\\cell\\row\\pard b\\par\\intbl c\\cell\\row", "[a],b,[c]"},
        {"\\intbl a\\par b\\cell c\\row", "[a,b|c]"},
        {" a\\cell b\\cell\\row", "[a|b]"},
        {"\\intbl a\\cell b\\pard\\par c", "a,b,c"},
        {"\\intbl a\\cell", "a"},
        {"\\row\\pard a", "a"},
        {"\\intbl a\\par\\itap2 b\\nestcell c\\nestcell\\nestrow\\itap1\\cell d\\cell\\row", "[a,[b|c]|d]"},
        {"\\itap2 b\\nestcell\\nestrow\\itap1 after\\cell\\row", "[[b],after]"},
        {"\\itap3 x\\nestcell\\nestrow\\itap2\\nestcell\\nestrow\\itap1\\cell\\row", "[[[x]]]"},
        {"\\itap2 b\\nestcell\\itap1 c\\cell\\row", "[b,c]"},
        {"\\itap2 b\\nestcell\\nestrow\\pard c", "[b],c"},
        {"\\trowd\\cellx9\\pard\\intbl a\\cell\\cell\\cell\\row", "[a]"},
    };
    for (const auto& [body, expected] : rows) {
        EXPECT_EQ(structureOf(body), expected) << body;
    }
}

TEST(Blocks, knowTheFormatsOfRowsWithinEachOther)
{
    const AttributedText text
        = read("{\\rtf1\\trowd\\trleft40\\cellx900\\cellx1800\\pard\\intbl\\itap2 n\\nestcell"
               "{\\*\\nesttableprops\\trowd\\clcbpat0\\cellx500\\nestrow}\\itap1\\cell o\\cell\\row}")
              .value();
    const std::vector<Block> blocks = blocksOf(text);
    const TableRow& outer = blocks.at(0).rows.at(0);
    EXPECT_EQ(outer.format.left, 40);
    EXPECT_EQ(outer.cells.at(1).format.rightEdge, 1800);
    const TableRow& inner = outer.cells.at(0).blocks.at(0).rows.at(0);
    EXPECT_EQ(inner.cells.at(0).format.rightEdge, 500);
    EXPECT_EQ(inner.format.left, 0);
}

/// The plain text of a file with lists: two levels of numbers from 3 on, bullets, and the first list begun anew.
std::string listText(const std::string& body)
{
    return agreementPlainText(read(R"({\rtf1\ansi{\fonttbl{\f0 Times;}{\f1\fcharset2 Symbol;}})"
                                   R"({\*\listtable{\list{\listlevel\levelnfc0\levelstartat3{\leveltext\'02\'00.;})"
                                   R"({\levelnumbers\'01;}\fi-360\li720})"
                                   R"({\listlevel\levelnfc4\levelfollow1{\leveltext\'04\'00.\'01);}}\listid7})"
                                   R"({\list{\listlevel\levelnfc23{\leveltext\'01\u-3913 ?;}\f1\li360}\listid8}})"
                                   R"({\*\listoverridetable{\listoverride\listid7\ls1}{\listoverride\listid8\ls2})"
                                   R"({\listoverride\listid7{\lfolevel\listoverridestartat\levelstartat1}\ls3}}\f0 )"
        + body + "}")
            .value());
}

TEST(Lists, countWhatIsNotWritten)
{
    const std::vector<std::pair<std::string, std::string>> rows = {
        {R"(\ls1 a\par b)", "3.\ta\n4.\tb\n"},
        {R"(\ls1 a\par\ilvl1 b\par c\par\ilvl0 d\par\ilvl1 e)", "3.\ta\n3.a) b\n3.b) c\n4.\td\n4.a) e\n"},
        {R"(\ls1\ilvl1 a)", "3.a) a\n"},
        {R"(\ls1 a\par\pard b\par\ls1 c)", "3.\ta\nb\n4.\tc\n"},
        {R"(\ls1 a\par\ls3 b\par c)", "3.\ta\n1.\tb\n2.\tc\n"},
        {R"(\ls2 a\par)", "•\ta\n"},
        {R"({\listtext x\tab}\ls1 a\par)", "x\ta\n"},
        {R"(\ls9 a\par\ls0 b)", "a\nb\n"},
        {R"(\ls1\par)", "3.\t\n"},
        {R"(\ls1{\v hidden}\b a)", "3.\ta\n"},
        {R"({\*\pn\pnlvlbody\pnucrm\pnstart3{\pntxtb (}{\pntxta )}}a\par b\par\pard c)", "(III)\ta\n(IV)\tb\nc\n"},
        {R"({\*\pn\pnlvlblt\pnf1{\pntxtb\'b7}}a\par)", "•\ta\n"},
        {R"({\*\pn\pnlvlcont\ilvl0\ls0\pndec}a\par)", "a\n"},
        {R"({\*\pn\pnlvlbody\pndec{\pntxta .}}a\par\pard x\par{\*\pn\pnlvlbody\pndec{\pntxta .}}b)",
            "1.\ta\nx\n1.\tb\n"},
    };
    for (const auto& [body, expected] : rows) {
        EXPECT_EQ(listText(body), expected) << body;
    }
    EXPECT_EQ(numberText(1994, ListLevel::lowerRoman), "mcmxciv");
    EXPECT_EQ(numberText(28, ListLevel::upperLetter), "BB");
    EXPECT_EQ(numberText(112, ListLevel::ordinal) + numberText(103, ListLevel::ordinal), "112th103rd");
    EXPECT_EQ(numberText(-3, ListLevel::upperRoman) + numberText(7, ListLevel::padded), "-307");
}

TEST(Lists, countAsManyItemsAsTheFileIsLong)
{
    const std::string list = R"({\rtf1{\*\listtable{\list{\listlevel{\leveltext\xFF\'00. or so;}}\listid1}})"
                             R"({\*\listoverridetable{\listoverride\listid1\ls1}}\ls1 )";
    std::string items;
    for (int item = 0; item < 5000; ++item) {
        items += "\\\n";
    }
    EXPECT_LE(read(list + items + "}").value().text.size(), 2 * (list.size() + items.size()));
}

TEST(Lists, takeTimeByTheBytesOfTheFileAlone)
{
    const auto repeated = [](const std::string& part, int times) {
        std::string text;
        for (int count = 0; count < times; ++count) {
            text += part;
        }
        return text;
    };
    std::string lists;
    for (int list = 0; list < 5000; ++list) {
        lists += "{\\list{\\listlevel{\\leveltext\\'01-;}}\\listid" + std::to_string(list) + "}";
    }
    const std::string tables = "{\\rtf1{\\*\\listtable" + lists + "}{\\*\\listoverridetable";
    const std::string nowhere = "{\\list{\\listlevel{\\leveltext\\'01" + repeated("\\'08", 65000) + "}}\\listid1}";
    const std::string numberless
        = "{\\rtf1{\\*\\listtable" + nowhere + "}{\\*\\listoverridetable{\\listoverride\\listid1\\ls1}}";
    const std::vector<std::pair<std::string, std::string>> rows = {
        {tables + "{\\listoverride\\listid9999" + repeated("\\ls1", 100000) + "}}\\ls1 a}", "a\n"},
        {tables + "{\\listoverride\\listid4095\\ls1}{\\listoverride\\listid4999\\ls2}}" + repeated("{\\pn}", 100000)
                + "\\ls1 a\\par\\ls2 b}",
            "-\ta\nb\n"},
        {numberless + "\\ls1 " + repeated("\\\n", 50000) + "}", std::string(50000, '\n')},
    };
    for (const auto& [rtf, expected] : rows) {
        const std::clock_t begin = std::clock();
        EXPECT_TRUE(agreementPlainText(read(rtf).value()) == expected);
        EXPECT_LT(std::clock() - begin, CLOCKS_PER_SEC);
    }
}

TEST(Lists, giveTheirIndentsToItemsWithoutAny)
{
    const AttributedText text = read(R"({\rtf1{\*\listtable{\list{\listlevel{\leveltext\'01-;}\fi-360\li720}\listid1}})"
                                     R"({\*\listoverridetable{\listoverride\listid1\ls1}}\ls1 a\par\li100 b})")
                                    .value();
    const std::vector<Paragraph> paragraphs = text.paragraphs();
    EXPECT_EQ(text.formats.at(paragraphs.at(0).format).leftIndent, 720);
    EXPECT_EQ(text.formats.at(paragraphs.at(0).format).firstLineIndent, -360);
    EXPECT_EQ(text.formats.at(paragraphs.at(1).format).leftIndent, 100);
}

TEST(Notes, followTheTextBelowARule)
{
    const std::vector<std::pair<std::string, std::string>> rows = {
        {R"( a{\chftn}{\footnote{\chftn} n\par m} b\par c{\chftn{\footnote\chftn .}})", "a1 b\nc2\n1 n\nm\n2.\n"},
        {R"( a*{\footnote * n}b)", "a*b\n* n\n"},
        {R"(\aftnnrlc a\chftn{\footnote\ftnalt\chftn  e}\chftn{\footnote\chftn  f})", "ai1\ni e\n1 f\n"},
        {R"(\ftnstart4\ftnnauc a\chftn{\footnote\chftn})", "aD\nD\n"},
        {R"({\footnote n{\footnote inner}}a)", "a\nn\n"},
        {R"({\v a{\footnote n}}{\header{\footnote n}}b)", "b\n"},
        {R"({\*\annotation{\footnote n}}b)", "b\n"},
        {R"(\trowd\cellx9\pard\intbl a\chftn{\footnote\pard\chftn}\cell b\cell\row)", "a1\tb\n1\n"},
    };
    for (const auto& [body, expected] : rows) {
        const AttributedText text = read("{\\rtf1\\ansi" + body + "}").value();
        EXPECT_EQ(agreementPlainText(text), expected) << body;
    }
    const AttributedText text = read(R"({\rtf1 a{\footnote n\par m}})").value();
    const std::vector<Paragraph> paragraphs = text.paragraphs();
    EXPECT_EQ(text.formats.at(paragraphs.at(1).format).borders[Side::top].style, LineStyle::solid);
    EXPECT_EQ(text.formats.at(paragraphs.at(2).format).borders[Side::top].style, LineStyle::none);
}

TEST(Fields, putTheirCharacterAndLeaveOutNumbersOfPages)
{
    const std::vector<std::pair<std::string, std::string>> rows = {
        {R"({\field{\*\fldinst SYMBOL 212 \\f "Symbol" \\s 10}{\fldrslt }}.)", "™.\n"},
        {R"({\field{\*\fldinst  symbol 0xA7 \\f Wingdings}{\fldrslt\f3\fs20}})", "▪\n"},
        {R"({\field{\*\fldinst SYMBOL 169 \\f "Arial"}})", "©\n"},
        {R"({\field{\*\fldinst SYMBOL 8364 \\u}{\fldrslt}})", "€\n"},
        {R"({\field{\*\fldinst SYMBOL 212 \\f "Symbol"}{\fldrslt x}})", "x\n"},
        {R"({\field{\*\fldinst SYMBOL 7}{\fldrslt}}{\field{\*\fldinst SYMBOL}}a)", "a\n"},
        {R"(Page {\field{\*\fldinst PAGE \\* MERGEFORMAT}{\fldrslt 3}} of {\field{\*\fldinst NUMPAGES}{\fldrslt 4}}.)",
            "Page  of .\n"},
        {R"(Page \chpgn  end)", "Page  end\n"},
        {R"({\field{\*\fldinst PAGEREF x}{\fldrslt 3}})", "3\n"},
    };
    for (const auto& [body, expected] : rows) {
        const AttributedText text = read("{\\rtf1\\ansi " + body + "}").value();
        EXPECT_EQ(agreementPlainText(text), expected) << body;
    }
}

TEST(Pictures, areKeptWithinBoundsAndElseDescribed)
{
    const auto png = [](const std::string& size) {
        return R"({\pict\pngblip\picwgoal200\pichgoal100\picscalex50{\*\picprop{\sp{\sn wzDescription}{\sv Logo}}})"
               "89504e470d0a1a0a0000000d49484452"
            + size + "}";
    };
    const AttributedText small = read("{\\rtf1 a" + png("0000000200000003") + "b}").value();
    ASSERT_EQ(small.pictures.size(), 1U);
    EXPECT_EQ(agreementPlainText(small), "a\uFFFCb\n");
    EXPECT_EQ(small.pictures[0].bytes.size(), 24U);
    EXPECT_EQ(small.pictures[0].width, 100);
    EXPECT_EQ(pixelsOf(Picture::Kind::png, small.pictures[0].bytes), 6U);
    const std::vector<std::pair<std::string, std::string>> rows = {
        {png("0000ffff0000ffff"), "Logo\n"},
        {png("0000080000000fff"), "Logo\n"},
        {png("0000080000000f00") + png("0000080000000f00") + png("0000080000000f00"), "\uFFFC\uFFFCLogo\n"},
        {R"({\pict\wmetafile8{\*\picprop{\sp{\sn wzDescription}{\sv A map}}}0102}.)", "A map.\n"},
        {R"({\pict\jpegblip ffd8ffe000040000ffc0000b080010001001}.)", "\uFFFC.\n"},
        {R"({\pict\jpegblip ffd8ffe00004}.)", ".\n"},
        {R"({\pict\dibitmap0 280000000100000001000000010018000000000000000000}.)", "\uFFFC.\n"},
        {R"({\shp{\*\shpinst{\sp{\sn wzDescription}{\sv no picture}}}}.)", ".\n"},
        {R"({\shp{\*\shpinst{\sp{\sn pib}{\sv{\pict\jpegblip ffd8ffc0000b080010001001}}}}{\shprslt x}}.)", "\uFFFC.\n"},
        {R"({\shp{\*\shpinst{\sp{\sn pib}{\sv{\pict\jpegblip ffd8ffc0000b080010001001}}}{\shptxt)"
         R"({\object{\result{\pict\jpegblip ffd8ffc0000b080010001001}}}}}}{\object{\result x}}.)",
            "\uFFFCx.\n"},
        {R"({\shp{\*\shpinst{\sp{\sn pib}{\sv{\pict\wmetafile8 00}}}{\shptxt{\object{\result x}}}}}.)", "x.\n"},
        {R"({\shp{\*\shpinst{\sp{\sn pibName}{\sv logo.jpg}}{\sp{\sn pib}{\sv{\pict\wmetafile8 00}}}}}.)", ".\n"},
        {R"({\v{\pict\jpegblip ffd8ffc0000b080010001001}}.)", ".\n"},
    };
    for (const auto& [body, expected] : rows) {
        EXPECT_EQ(agreementPlainText(read("{\\rtf1\\ansi " + body + "}").value()), expected) << body;
    }
    const std::string binary("\xFF\xD8\xFF\xC0\x00\x0B\x08\x00\x10\x00}{\x01", 12);
    EXPECT_EQ(read("{\\rtf1{\\pict\\jpegblip\\bin12 " + binary + "}}").value().pictures.at(0).bytes, binary);
}

} // namespace
} // namespace corvellane::rtf
