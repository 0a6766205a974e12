#include "rtf/Reader.h"
#include "view/qt/FontSubstitutes.h"
#include "view/qt/RichTextDocument.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QPainter>
#include <QRawFont>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <gtest/gtest.h>

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
        {R"(\li90000\ri90000 abc)", 0, 240},
        {R"(\ql\u1488?\u1489?\u1490?)", 3, 0},
        {R"(\u1488?\u1489?\u1490?)", 0, 400},
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
    };
    for (const auto& [body, top] : rows) {
        EXPECT_NEAR(topOf(documentOf(body)->lastBlock()), top, 1.5) << body;
    }
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
        {"ヒラギノ角ゴ", "Liberation Sans"},
    };
    for (const auto& [family, substitute] : rows) {
        const rtf::FontFamily named{.name = family, .alternative = {}};
        EXPECT_EQ(substitutesFor(named).first().toStdString(), family);
        EXPECT_TRUE(substitutesFor(named).contains(substitute)) << family;
    }
    EXPECT_EQ(substitutesFor({.name = "Symbol", .alternative = {}}).first(), "DejaVu Sans") << "its own letters stand in other places";
    EXPECT_EQ(substitutesFor({.name = {}, .alternative = {}}).first(), "Liberation Sans");
}

} // namespace
} // namespace corvellane::view
