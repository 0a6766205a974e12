#include "view/qt/RichTextFormats.h"

#include "view/qt/Appearance.h"
#include "view/qt/FontSubstitutes.h"

#include <QFontMetricsF>
#include <QTextOption>

#include <algorithm>

namespace corvellane::view {

namespace {

constexpr double widestLeftIndent = 240;
constexpr double widestRightIndent = 120;
constexpr double pageBreakSpace = 24;
const QColor linkColor(0, 0, 238);

QColor colorOf(const rtf::Color& color)
{
    return {color.red, color.green, color.blue};
}

QFont::Capitalization capitalizationOf(rtf::Capitals capitals)
{
    switch (capitals) {
    case rtf::Capitals::small:
        return QFont::SmallCaps;
    case rtf::Capitals::all:
        return QFont::AllUppercase;
    case rtf::Capitals::asTyped:
        break;
    }
    return QFont::MixedCase;
}

QFont fontFor(const rtf::TextAttributes& attributes, const rtf::AttributedText& text)
{
    QFont font(substitutesFor(text.families[attributes.family]));
    font.setPixelSize(std::max(1, qRound(attributes.size * textScale())));
    font.setBold(attributes.bold);
    font.setItalic(attributes.italic);
    font.setUnderline(attributes.underline || attributes.link);
    font.setStrikeOut(attributes.strike);
    font.setCapitalization(capitalizationOf(attributes.capitals));
    return font;
}

QTextCharFormat::VerticalAlignment verticalAlignmentOf(rtf::VerticalPosition position)
{
    switch (position) {
    case rtf::VerticalPosition::superscript:
        return QTextCharFormat::AlignSuperScript;
    case rtf::VerticalPosition::subscript:
        return QTextCharFormat::AlignSubScript;
    case rtf::VerticalPosition::normal:
        break;
    }
    return QTextCharFormat::AlignNormal;
}

void setColors(QTextCharFormat& format, const rtf::TextAttributes& attributes)
{
    if (attributes.link) {
        format.setForeground(linkColor);
    } else if (attributes.color) {
        format.setForeground(colorOf(*attributes.color));
    }
    if (attributes.background) {
        format.setBackground(colorOf(*attributes.background));
    }
}

Qt::Alignment alignmentOf(rtf::Alignment alignment)
{
    switch (alignment) {
    case rtf::Alignment::left:
        return Qt::AlignLeft | Qt::AlignAbsolute;
    case rtf::Alignment::right:
        return Qt::AlignRight | Qt::AlignAbsolute;
    case rtf::Alignment::centre:
        return Qt::AlignHCenter;
    case rtf::Alignment::justified:
        return Qt::AlignJustify;
    case rtf::Alignment::natural:
        break;
    }
    return Qt::AlignLeading;
}

QTextOption::TabType typeOf(rtf::TabKind kind)
{
    switch (kind) {
    case rtf::TabKind::centre:
        return QTextOption::CenterTab;
    case rtf::TabKind::right:
        return QTextOption::RightTab;
    case rtf::TabKind::decimal:
        return QTextOption::DelimiterTab;
    case rtf::TabKind::left:
        break;
    }
    return QTextOption::LeftTab;
}

struct Indents {
    double left;
    double firstLine;
    double right;
};

Indents indentsOf(const rtf::ParagraphFormat& format)
{
    const double left = std::clamp(format.leftIndent, 0.0, widestLeftIndent);
    return {left, std::clamp(format.firstLineIndent, -left, widestLeftIndent - left),
        std::clamp(format.rightIndent, 0.0, widestRightIndent)};
}

/// Qt counts a tab stop from where the line begins. A hanging first line stops at the indent of those below it, as
/// readers of RTF do.
QList<QTextOption::Tab> tabsFor(
    const rtf::AttributedText& text, const rtf::ParagraphFormat& format, const Indents& indents)
{
    const double lineStart = indents.left + indents.firstLine;
    QList<QTextOption::Tab> tabs;
    for (const rtf::TabStop& stop : text.tabsOf(format)) {
        tabs.append({stop.position - lineStart, typeOf(stop.kind), '.'});
    }
    if (indents.firstLine < 0) {
        tabs.append({-indents.firstLine, QTextOption::LeftTab});
    }
    std::ranges::sort(tabs, {}, &QTextOption::Tab::position);
    return tabs;
}

void setLineHeight(QTextBlockFormat& format, const rtf::LineHeight& height)
{
    switch (height.kind) {
    case rtf::LineHeight::Kind::multiple:
        format.setLineHeight(height.value * 100, QTextBlockFormat::ProportionalHeight);
        break;
    case rtf::LineHeight::Kind::atLeast:
        format.setLineHeight(height.value, QTextBlockFormat::MinimumHeight);
        break;
    case rtf::LineHeight::Kind::exactly:
        format.setLineHeight(height.value, QTextBlockFormat::FixedHeight);
        break;
    case rtf::LineHeight::Kind::natural:
        break;
    }
}

double spaceAbove(const rtf::AttributedText& text, std::size_t index)
{
    const rtf::ParagraphFormat& format = text.formats[text.paragraphs[index].format];
    if (index == 0) {
        return 0;
    }
    const rtf::ParagraphFormat& above = text.formats[text.paragraphs[index - 1].format];
    return above.spaceAfter + format.spaceBefore + (format.pageBreakBefore ? pageBreakSpace : 0);
}

} // namespace

QTextCharFormat charFormatFor(const rtf::TextAttributes& attributes, const rtf::AttributedText& text)
{
    QTextCharFormat format;
    const QFont font = fontFor(attributes, text);
    format.setFont(font);
    format.setVerticalAlignment(verticalAlignmentOf(attributes.script));
    if (attributes.baselineOffset != 0) {
        format.setBaselineOffset(100 * attributes.baselineOffset / QFontMetricsF(font).height());
    }
    setColors(format, attributes);
    if (attributes.link) {
        format.setAnchor(true);
        format.setAnchorHref(QString::fromStdString(text.links[*attributes.link]));
    }
    return format;
}

QTextBlockFormat blockFormatFor(const rtf::AttributedText& text, std::size_t index)
{
    const rtf::ParagraphFormat& format = text.formats[text.paragraphs[index].format];
    const Indents indents = indentsOf(format);
    QTextBlockFormat block;
    block.setAlignment(alignmentOf(format.alignment));
    block.setLeftMargin(indents.left);
    block.setTextIndent(indents.firstLine);
    block.setRightMargin(indents.right);
    block.setTopMargin(spaceAbove(text, index));
    block.setTabPositions(tabsFor(text, format, indents));
    setLineHeight(block, format.lineHeight);
    return block;
}

} // namespace corvellane::view
