#include "view/qt/RichTextDocument.h"
#include "rtf/Reader.h"
#include "view/qt/FontSubstitutes.h"
#include "view/qt/RichTextLines.h"
#include "view/qt/TableGrid.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QBuffer>
#include <QPainter>
#include <QRawFont>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QTextTable>

#include <gtest/gtest.h>

#include <ctime>
#include <functional>

namespace corvellane::view {
namespace {

/// The document shown for RTF with Helvetica 12, laid out 400 wide between its margins.
std::unique_ptr<QTextDocument> documentOf(const std::string& body)
{
    const std::string head = R"({\rtf1\ansi{\fonttbl{\f0 Helvetica;}{\f1 Courier;}})"
                             R"({\colortbl;\red200\green10\blue20;\red255\green255\blue0;}\f0\fs24 )";
    auto document = std::make_unique<QTextDocument>();
    fillTextDocument(*document, rtf::read(head + body + "}").value());
    document->setTextWidth(400 + 2 * document->documentMargin());
    document->size(); // lays it out
    return document;
}

QTextCharFormat formatOf(const std::string& body)
{
    return documentOf(body)->firstBlock().begin().fragment().charFormat();
}

/// Where the characters before `position` of a paragraph end, from the left edge of the text area.
double placeOf(const QTextBlock& paragraph, int position)
{
    const QTextLine line = paragraph.layout()->lineForTextPosition(position);
    return paragraph.layout()->position().x() + line.cursorToX(position) - paragraph.document()->documentMargin();
}

double topOf(const QTextBlock& paragraph)
{
    const double top = paragraph.layout()->position().y() + paragraph.layout()->lineAt(0).y();
    return top - paragraph.document()->documentMargin();
}

TEST(RichTextDocument, makesAPointOnePixelOrMoreWhereTheDesktopsOwnFontIsLarge)
{
    const auto pixels = [](const char* body) { return QRawFont::fromFont(formatOf(body).font()).pixelSize(); };
    EXPECT_DOUBLE_EQ(pixels("text"), 12);
    EXPECT_DOUBLE_EQ(pixels(R"(\fs21 text)"), 11);
    EXPECT_DOUBLE_EQ(pixels(R"(\fs1 text)"), 1);
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPixelSize(30);
    QApplication::setFont(large);
    EXPECT_DOUBLE_EQ(pixels("text"), 24);
    QApplication::setFont(usual);
}

TEST(RichTextDocument, carriesEveryStyleOfARun)
{
    using Format = const QTextCharFormat&;
    const std::vector<std::pair<const char*, std::function<bool(Format)>>> rows{
        {R"(\b x)", [](Format f) { return f.font().bold(); }},
        {R"(\i x)", [](Format f) { return f.fontItalic(); }},
        {R"(\ul x)", [](Format f) { return f.fontUnderline(); }},
        {R"(\uldb x)", [](Format f) { return f.fontUnderline(); }},
        {R"(\ulw x y)", [](Format f) { return f.fontUnderline(); }},
        {R"(\ulwave x)", [](Format f) { return f.underlineStyle() == QTextCharFormat::WaveUnderline; }},
        {R"(\uldash x)", [](Format f) { return f.underlineStyle() == QTextCharFormat::DashUnderline; }},
        {R"(\expndtw40 x)", [](Format f) { return f.font().letterSpacing() == 2; }},
        {R"(\strike x)", [](Format f) { return f.fontStrikeOut(); }},
        {R"(\super x)", [](Format f) { return f.verticalAlignment() == QTextCharFormat::AlignSuperScript; }},
        {R"(\sub x)", [](Format f) { return f.verticalAlignment() == QTextCharFormat::AlignSubScript; }},
        {R"(\scaps x)", [](Format f) { return f.fontCapitalization() == QFont::SmallCaps; }},
        {R"(\caps x)", [](Format f) { return f.fontCapitalization() == QFont::AllUppercase; }},
        {R"(\cf1 x)", [](Format f) { return f.foreground().color() == QColor(200, 10, 20); }},
        {R"(\highlight2 x)", [](Format f) { return f.background().color() == QColor(255, 255, 0); }},
        {R"(\f1 x)", [](Format f) { return f.fontFamilies().toStringList().first() == "Courier"; }},
        {R"({\field{\*\fldinst HYPERLINK "https://x.example/"}{\fldrslt x}})",
            [](Format f) {
                return f.anchorHref() == "https://x.example/" && f.fontUnderline()
                    && f.foreground().color() == QColor(0, 0, 238);
            }},
    };
    EXPECT_FALSE(formatOf(R"(\ulw  x)").fontUnderline()) << "the line is under words alone";
    const QTextCharFormat plain = formatOf("x");
    EXPECT_FALSE(plain.hasProperty(QTextFormat::ForegroundBrush)) << "the palette gives the colour";
    for (const auto& [body, holds] : rows) {
        EXPECT_TRUE(holds(formatOf(body))) << body;
        EXPECT_FALSE(holds(plain)) << body;
    }
}

/// The lowest row with any ink on it.
int lowestInk(QTextDocument& document)
{
    QPixmap paper(document.size().toSize());
    paper.fill(Qt::white);
    QPainter painter(&paper);
    document.drawContents(&painter);
    return QRegion(paper.createMaskFromColor(Qt::white)).boundingRect().bottom();
}

TEST(RichTextDocument, raisesAndLowersTextByItsPoints)
{
    const int level = lowestInk(*documentOf(R"(a\par x\par)"));
    EXPECT_NEAR(lowestInk(*documentOf(R"(a\par\up20 x\par)")), level - 10, 1);
    EXPECT_NEAR(lowestInk(*documentOf(R"(a\par\dn20 x\par\par)")), level + 10, 1);
}

TEST(RichTextDocument, putsTextWhereItsParagraphSays)
{
    const double width = placeOf(documentOf("abc")->firstBlock(), 3);
    const double number = placeOf(documentOf("12")->firstBlock(), 2);
    const std::vector<std::tuple<const char*, int, double>> rows{
        {R"(\li720 abc)", 0, 36},
        {R"(\li720\fi-360 abc)", 0, 18},
        {R"(\fi400 abc)", 0, 20},
        {R"(\qr abc)", 3, 400},
        {R"(\qr\ri1000 abc)", 3, 350},
        {R"(\qc abc)", 0, (400 - width) / 2},
        {R"(\tx2000\tab abc)", 1, 100},
        {R"(\li720\fi-720\tx220\tx720\tab x\tab abc)", 3, 36},
        {R"(\li720\fi-720\tx220\tx720\tab abc)", 1, 11},
        {R"(\li720\fi-360 1.\tab abc)", 3, 36},
        {R"(\tqr\tx6000\tab abc)", 4, 300},
        {R"(\tqc\tx6000\tab abc)", 1, 300 - width / 2},
        {R"(\tqdec\tx6000\tab 12.5)", 1, 300 - number},
        {R"(\tab abc)", 1, 36},
        {R"(\li-900 abc)", 0, 0},
        {R"(\li0\fi-360 1.\tab abc)", 0, 0},
        {R"(\li0\fi-360 1.\tab abc)", 3, 18},
        {R"(\li0\fi-360\tx720 1.\tab a\tab abc)", 5, 54},
        {R"(\li90000\ri90000 abc)", 0, 240},
        {R"(\ql\u1488?\u1489?\u1490?)", 3, 0},
        {R"(\u1488?\u1489?\u1490?)", 0, 400},
        {R"(\ltrpar\u1488?\u1489?\u1490?)", 3, 0},
        {R"(\rtlpar abc)", 3, 400},
        {R"(\rtlpar\qr\li720\ri200 abc)", 3, 364},
        {R"(\rtlpar\ql\li720\ri200 abc)", 0, 10},
        {R"(\rtlpar\li720\fi-360 abc)", 3, 382},
        {R"(\li720\fi-360\ri200\u1488?)", 0, 382},
        {R"(\ltrpar\li720\u1488?)", 1, 36},
        {R"(\rtlpar\li720\fi-360 \u1488?\tab\u1488?\u1488?)", 2, 364},
        {R"(\deftab1000\tab abc)", 1, 50},
    };
    for (const auto& [body, position, place] : rows) {
        EXPECT_NEAR(placeOf(documentOf(body)->firstBlock(), position), place, 1) << body;
    }
}

TEST(RichTextDocument, spacesParagraphsAndLines)
{
    const double line = topOf(documentOf(R"(a\par b)")->lastBlock());
    const std::vector<std::pair<const char*, double>> rows{
        {R"(\sb200 a)", 0},
        {R"(\sa200 a\par b)", line + 10},
        {R"(\sa200 a\par\sb100 b)", line + 15},
        {R"(a\line b\par c)", 2 * line},
        {R"(a\par\par c)", 2 * line},
        {R"(\sl600\slmult0 a\par\pard b)", 30},
        {R"(\sl-160\slmult0 a\par\pard b)", 8},
        {R"(\sl480\slmult1 a\par\pard b)", 2 * line},
        {R"(a\page b)", line + 24},
        {R"(\htmautsp\sa200 a\par\sb100 b)", line + 10},
        {R"(\htmautsp\sa200 a\par\sbauto1 b)", line + 14},
        {R"(\sa200 a\par\sb0\sbauto1 b)", line + 15},
        {R"(\ls1\sbauto1\saauto1 a\par b)", line},
        {R"(\s1\sa200\sb100\contextualspace a\par b)", line},
        {R"(\s1\sa200\contextualspace a\par\s2 b)", line + 10},
        {R"(\sa200 a\par\pard\trowd\cellx2000\intbl c\cell\row\pard\sb100 b)", 2 * line + 17},
        {R"(a\par\trowd\cellx2000\sb100\sa200\intbl c\cell\row\pard b)", 2 * line + 17},
        {R"(\trowd\cellx2000\intbl c\cell\row\pard\par b)", 2 * line + 2},
        {R"(\trowd\cellx2000\intbl c\cell\row\pard\par\trowd\cellx2000\intbl c\cell\row\pard b)", 3 * line + 4},
        {R"(\box\brdrs\brdrw20 a\par\pard\par b)", 2 * line + 2},
    };
    for (const auto& [body, top] : rows) {
        EXPECT_NEAR(topOf(documentOf(body)->lastBlock()), top, 1.5) << body;
    }
}

/// Where the lines that Qt has no format for are painted, from the text area's upper left corner.
QRect linesOf(const std::string& body)
{
    const auto document = documentOf(body);
    QPixmap paper(document->size().toSize());
    paper.fill(Qt::white);
    QPainter painter(&paper);
    paintLines(painter, *document, paper.rect());
    painter.end();
    const int margin = static_cast<int>(document->documentMargin());
    return QRegion(paper.createMaskFromColor(Qt::white)).boundingRect().translated(-margin, -margin);
}

TEST(RichTextLines, standUnderWordsAroundThemAndBeforeTabStops)
{
    const auto widthOf = [](const char* text) {
        return placeOf(documentOf(text)->firstBlock(), static_cast<int>(std::string_view(text).size()));
    };
    const double word = widthOf("abc");
    const double number = widthOf("12");
    const std::vector<std::tuple<std::string, double, double>> rows{
        {R"(abc{\uldb abc}abc)", word, 2 * word},
        {R"(abc{\ulth abc}abc)", word, 2 * word},
        {R"({\uldb abc)" + std::string(200, ' ') + R"(}abc)", 0, word},
        {R"(abc{\chbrdr\brdrs a{\b\chbrdr\brdrs }bc}abc)", word, 2 * word},
        {R"(\tqr\tldot\tx6000 abc\tab 12)", word, 300 - number},
        {R"(\tx2000\tqr\tlul\tx6000\tab abc\tab 12)", 100 + word, 300 - number},
        {R"(\tqr\tldot\tx2000 abc\tab 12\tab abc)", word, 100 - number},
        {R"(\tx200\tqr\tlhyph\tx6000 abc\tab 12)", word, 300 - number},
        {R"(\rtlpar\tqr\tlul\tx6000 abc\tab 12)", 100 + number, 400 - word},
        {R"(\trowd\cellx2000\cellx4000\intbl\cell{\uldb abc}\cell\row)", 101, 101 + word},
    };
    for (const auto& [body, left, right] : rows) {
        EXPECT_NEAR(linesOf(body).left(), left, 6) << body;
        EXPECT_NEAR(linesOf(body).right(), right, 6) << body;
    }
    EXPECT_GT(linesOf(R"({\uldb abc})").top(), lowestInk(*documentOf(R"({\ul abc})")) - 8);
    EXPECT_EQ(linesOf(R"({\ulth abc})").top(), linesOf(R"({\uldb abc})").top() - 2);
    EXPECT_EQ(linesOf(R"({\ulth abc})").height(), 2 * linesOf(R"({\uldb abc})").height());
    EXPECT_FALSE(hasLines(*documentOf(R"({\ul abc}\tqr\tx6000\tab x)")));
    EXPECT_TRUE(linesOf("abc").isEmpty());
}

/// The first table of the document; null where there is none.
QTextTable* tableOf(const QTextDocument& document)
{
    const QList<QTextFrame*> frames = document.rootFrame()->childFrames();
    return frames.isEmpty() ? nullptr : qobject_cast<QTextTable*>(frames.first());
}

QString textOf(const QTextTableCell& cell)
{
    QTextCursor cursor = cell.firstCursorPosition();
    cursor.setPosition(cell.lastCursorPosition().position(), QTextCursor::KeepAnchor);
    return cursor.selectedText();
}

TEST(RichTextDocument, showsTablesAsTheirAuthorDividedThem)
{
    const auto document = documentOf(
        R"(\trowd\trgaph100\trbrdrt\brdrs\trbrdrl\brdrs\clbrdrt\brdrnone\clcbpat2\clbrdrb\brdrdb\brdrw40\brdrcf1\clvmgf\cellx1000\cellx3000)"
        R"(\pard\intbl a\cell\qr b\cell\row)"
        R"(\trowd\clvmrg\cellx1000\clvertalc\cellx2000\cellx3000)"
        R"(\pard\intbl\cell c\cell d\par e\cell\row\pard after)");
    const QTextTable* const table = tableOf(*document);
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->rows(), 2);
    EXPECT_EQ(table->columns(), 3);
    const QTextTableCell first = table->cellAt(0, 0);
    EXPECT_EQ(first.rowSpan(), 2);
    EXPECT_EQ(textOf(first), "a");
    const QTextTableCellFormat look = first.format().toTableCellFormat();
    EXPECT_EQ(look.background().color(), QColor(255, 255, 0));
    EXPECT_EQ(look.bottomBorder(), 3);
    EXPECT_EQ(look.bottomBorderStyle(), QTextFrameFormat::BorderStyle_Double);
    EXPECT_EQ(look.bottomBorderBrush().color(), QColor(200, 10, 20));
    EXPECT_EQ(look.topBorder(), 0);
    EXPECT_EQ(look.leftBorder(), 1);
    EXPECT_EQ(look.leftPadding(), 5);
    EXPECT_EQ(table->cellAt(0, 1).columnSpan(), 2);
    EXPECT_EQ(table->cellAt(1, 1).format().verticalAlignment(), QTextCharFormat::AlignMiddle);
    EXPECT_EQ(textOf(table->cellAt(1, 2)), QString("d\u2029") + "e");
    EXPECT_EQ(document->lastBlock().text(), "after");
}

/// Where the text in a cell of the first row begins, from the text area's left edge.
double leftOf(const QTextTable& table, int column)
{
    const QTextDocument& document = *table.document();
    const QTextBlock block = table.cellAt(0, column).firstCursorPosition().block();
    return document.documentLayout()->blockBoundingRect(block).left() - document.documentMargin();
}

TEST(RichTextDocument, putsCellsWhereTheirRowSays)
{
    struct Case {
        const char* row;
        const char* leftCell;
        double first;
        double second;
    };
    const std::vector<Case> rows{
        {R"(\cellx1000\cellx3000)", "a", 0, 50},
        {R"(\trleft400\cellx1400\cellx3400)", "a", 20, 70},
        {R"(\trqr\trleft400\cellx1400\cellx3400)", "a", 250, 300},
        {R"(\trqc\cellx1000\cellx3000)", "a", 125, 175},
        {R"(\rtlrow\cellx1000\cellx3000)", "b", 250, 350},
        {R"(\rtlrow\trleft400\cellx1400\cellx3400)", "b", 230, 330},
        {R"(\rtlrow\trql\cellx1000\cellx3000)", "b", 0, 100},
    };
    for (const auto& [row, leftCell, first, second] : rows) {
        const auto document = documentOf("\\trowd" + std::string(row) + R"(\pard\intbl a\cell b\cell\row)");
        EXPECT_EQ(textOf(tableOf(*document)->cellAt(0, 0)), leftCell) << row;
        EXPECT_NEAR(leftOf(*tableOf(*document), 0), first, 2.5) << row;
        EXPECT_NEAR(leftOf(*tableOf(*document), 1), second, 2.5) << row;
    }
}

/// Where the cells of a table stand that is in a cell of 300 points, or less in a table wider than the page.
TEST(RichTextDocument, givesATableInACellItsOwnWidth)
{
    struct Case {
        const char* outer;
        const char* inner;
        double first;
        double second;
    };
    const std::vector<Case> rows{
        {R"(\cellx6000)", R"(\cellx1000\cellx3000)", 0, 50},
        {R"(\cellx6000)", R"(\trleft400\cellx1400\cellx3400)", 20, 70},
        {R"(\cellx6000)", R"(\cellx1500\cellx6000)", 0, 75},
        {R"(\cellx6000)", R"(\cellx5000\cellx20000)", 0, 75},
        {R"(\cellx6000\cellx16000)", R"(\cellx1000\cellx3000)", 0, 25},
    };
    for (const auto& [outer, inner, first, second] : rows) {
        const auto document = documentOf("\\trowd" + std::string(outer) + R"(\pard\intbl\itap2 a\nestcell b\nestcell)"
            + R"({\*\nesttableprops\trowd)" + inner + R"(\nestrow}\itap1\cell\cell\row)");
        const auto* const table = qobject_cast<QTextTable*>(tableOf(*document)->childFrames().at(0));
        EXPECT_NEAR(leftOf(*table, 0), first, 2.5) << outer << inner;
        EXPECT_NEAR(leftOf(*table, 1), second, 2.5) << outer << inner;
    }
}

TEST(RichTextDocument, makesNoTableWiderThanThePage)
{
    const auto widthOf = [](const std::string& body) {
        const auto document = documentOf(body);
        return document->documentLayout()->frameBoundingRect(tableOf(*document)).width();
    };
    EXPECT_NEAR(widthOf(R"(\trowd\cellx2000\pard\intbl a\cell\row)"), 100, 1);
    EXPECT_NEAR(widthOf(R"(\trowd\cellx15000\cellx30000\pard\intbl a\cell b\cell\row)"), 400, 1);
    std::string many = "\\trowd";
    for (int cell = 1; cell < 100; ++cell) {
        many += "\\cellx" + std::to_string(cell * 100) + " ";
    }
    EXPECT_LE(widthOf(many + "\\pard\\intbl a\\cell\\row"), 401);
}

/// Of cells that go on from none above them, as those have another width.
TEST(TableGrid, takesTimeByTheCellsAlone)
{
    std::string rows = "{\\rtf1";
    for (int row = 0; row < 30000; ++row) {
        rows += row % 2 == 0 ? R"(\trowd\clvmrg\cellx1000)" : R"(\trowd\clvmrg\cellx2000)";
        rows += R"(\pard\intbl a\cell\row)";
    }
    const rtf::AttributedText text = rtf::read(rows + "}").value();
    const std::vector<rtf::Block> blocks = rtf::blocksOf(text);
    const std::clock_t begin = std::clock();
    EXPECT_EQ(gridOf(blocks.at(0).rows).cells.size(), 30000U);
    EXPECT_LT(std::clock() - begin, CLOCKS_PER_SEC);
}

TEST(RichTextDocument, framesParagraphsOfTheSameBordersTogether)
{
    const auto document = documentOf(R"(a\par\box\brdrs\brdrw20\brsp80\cbpat2 b\par c\par\pard d\par\brdrb\brdrs\par)");
    ASSERT_EQ(document->rootFrame()->childFrames().size(), 2);
    const QTextTableCell box = tableOf(*document)->cellAt(0, 0);
    EXPECT_EQ(textOf(box), QString("b\u2029") + "c");
    EXPECT_EQ(box.format().toTableCellFormat().rightBorder(), 1);
    EXPECT_EQ(box.format().toTableCellFormat().leftPadding(), 4);
    EXPECT_EQ(box.format().background().color(), QColor(255, 255, 0));
}

TEST(RichTextDocument, showsPicturesAtTheSizeOfTheFile)
{
    QByteArray dot;
    QBuffer buffer(&dot);
    QImage(1, 1, QImage::Format_RGB32).save(&buffer, "png");
    const auto imageOf = [&](const std::string& words) {
        const QTextFragment fragment = documentOf("{\\pict\\pngblip" + words + " " + dot.toHex().toStdString() + "}")
                                           ->firstBlock()
                                           .begin()
                                           .fragment();
        return fragment.isValid() ? fragment.charFormat().toImageFormat() : QTextImageFormat();
    };
    EXPECT_EQ(imageOf("\\picwgoal400\\pichgoal200").width(), 20);
    EXPECT_EQ(imageOf("\\picwgoal400\\pichgoal200").height(), 10);
    EXPECT_EQ(imageOf("\\picwgoal16000\\pichgoal200").width(), 400);
    EXPECT_EQ(imageOf("").width(), 0.75);
}

TEST(FontSubstitutes, offersWhatLooksLikeTheAuthorsFamily)
{
    const std::vector<std::pair<const char*, const char*>> rows{
        {"Helvetica Neue", "Liberation Sans"},
        {"Arial Narrow", "Liberation Sans Narrow"},
        {"COURIER", "Liberation Mono"},
        {"Hiragino Sans GB", "Noto Sans CJK SC"},
        {"Hiragino Mincho ProN", "Noto Serif CJK JP"},
        {"Unheard Serif", "Liberation Serif"},
        {"Unheard Sans Serif", "Liberation Sans"},
        {"Unheard Mono", "DejaVu Sans Mono"},
        {"ヒラギノ角ゴ", "Noto Sans CJK JP"},
        {"宋体", "Noto Serif CJK SC"},
        {"黑体", "Noto Sans CJK SC"},
        {"ＭＳ 明朝", "Noto Serif CJK JP"},
        {"바탕", "Noto Serif CJK KR"},
        {"HiraKakuProN", "Noto Sans CJK JP"},
        {"STSong", "Noto Serif CJK SC"},
    };
    for (const auto& [family, substitute] : rows) {
        const rtf::FontFamily named{.name = family, .alternative = {}};
        EXPECT_EQ(substitutesFor(named).first().toStdString(), family);
        EXPECT_TRUE(substitutesFor(named).contains(substitute)) << family;
    }
    const rtf::FontFamily named{.name = "Unheard", .alternative = "Georgia", .kind = rtf::FontClass::sans};
    EXPECT_EQ(substitutesFor(named).mid(0, 3), QStringList({"Unheard", "Georgia", "Gelasio"}));
    const rtf::FontFamily ofClass{.name = "Unheard", .alternative = {}, .kind = rtf::FontClass::fixed};
    EXPECT_EQ(substitutesFor(ofClass).at(1), "Liberation Mono");
    const rtf::FontFamily korean{
        .name = "Unheard", .alternative = {}, .kind = rtf::FontClass::serif, .language = rtf::FontLanguage::korean};
    EXPECT_EQ(substitutesFor(korean).at(1), "Noto Serif CJK KR");
    EXPECT_EQ(substitutesFor({.name = "Symbol", .alternative = {}}).first(), "DejaVu Sans")
        << "its own letters stand in other places";
    EXPECT_EQ(substitutesFor({.name = {}, .alternative = {}}).first(), "Liberation Sans");
}

} // namespace
} // namespace corvellane::view
