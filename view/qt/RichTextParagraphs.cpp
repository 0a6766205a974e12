#include "view/qt/RichTextParagraphs.h"

#include "view/qt/RichTextLines.h"

#include <QTextOption>

#include <algorithm>
#include <vector>

namespace corvellane::view {
namespace {

constexpr double widestLeftIndent = 240;
constexpr double widestRightIndent = 120;
constexpr double pageBreakSpace = 24;
/// Automatic space where it follows the rules of web pages, of which the larger one of two counts, and else.
constexpr double webSpace = 14;
constexpr double fixedSpace = 5;

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

/// Text begins at a stop on the left and ends at one on the right, which for Qt are sides of the window also where text
/// runs from right to left.
QTextOption::TabType typeOf(rtf::TabKind kind, bool isRightToLeft)
{
    switch (kind) {
    case rtf::TabKind::centre:
        return QTextOption::CenterTab;
    case rtf::TabKind::decimal:
        return QTextOption::DelimiterTab;
    case rtf::TabKind::left:
    case rtf::TabKind::right:
        break;
    }
    return (kind == rtf::TabKind::left) != isRightToLeft ? QTextOption::LeftTab : QTextOption::RightTab;
}

Qt::LayoutDirection directionOf(rtf::Direction direction)
{
    switch (direction) {
    case rtf::Direction::leftToRight:
        return Qt::LeftToRight;
    case rtf::Direction::rightToLeft:
        return Qt::RightToLeft;
    case rtf::Direction::natural:
        break;
    }
    return Qt::LayoutDirectionAuto;
}

struct Stop {
    QTextOption::Tab tab;
    rtf::TabLeader leader = rtf::TabLeader::none;
};

/// Qt counts a tab stop from where the line begins. A hanging first line stops at the indent of those below it, as
/// readers of RTF do.
std::vector<Stop> stopsFor(const rtf::AttributedText& text, const rtf::ParagraphFormat& format, const Indents& indents)
{
    const double lineStart = std::min(
        indents.left + indents.firstLine, rtf::points(format.leftIndent) + rtf::points(format.firstLineIndent));
    const bool isRightToLeft = format.direction == rtf::Direction::rightToLeft;
    std::vector<Stop> stops;
    for (const rtf::TabStop& stop : text.tabsOf(format)) {
        stops.push_back({{rtf::points(stop.position) - lineStart, typeOf(stop.kind, isRightToLeft), '.'}, stop.leader});
    }
    if (indents.firstLine < 0) {
        stops.push_back({{-indents.firstLine, typeOf(rtf::TabKind::left, isRightToLeft)}});
    }
    std::ranges::sort(stops, {}, [](const Stop& stop) { return stop.tab.position; });
    return stops;
}

void setTabs(QTextBlockFormat& format, const std::vector<Stop>& stops)
{
    QList<QTextOption::Tab> tabs;
    std::vector<rtf::TabLeader> leaders;
    for (const Stop& stop : stops) {
        tabs.append(stop.tab);
        leaders.push_back(stop.leader);
    }
    format.setTabPositions(tabs);
    if (std::ranges::any_of(leaders, [](rtf::TabLeader leader) { return leader != rtf::TabLeader::none; })) {
        addLeaders(format, leaders);
    }
}

void setLineHeight(QTextBlockFormat& format, const rtf::LineHeight& height)
{
    switch (height.kind) {
    case rtf::LineHeight::Kind::multiple:
        format.setLineHeight(height.value / 2.4, QTextBlockFormat::ProportionalHeight);
        break;
    case rtf::LineHeight::Kind::atLeast:
        format.setLineHeight(rtf::points(height.value), QTextBlockFormat::MinimumHeight);
        break;
    case rtf::LineHeight::Kind::exactly:
        format.setLineHeight(rtf::points(height.value), QTextBlockFormat::FixedHeight);
        break;
    case rtf::LineHeight::Kind::natural:
        break;
    }
}

double spaceOf(rtf::Twips space, bool isAutomatic, double automatic)
{
    return isAutomatic ? automatic : std::max(0.0, rtf::points(space));
}

} // namespace

/// Between the items of a list there is none unless their author says so.
double spaceBetween(
    const rtf::AttributedText& text, const rtf::ParagraphFormat* first, const rtf::ParagraphFormat* second)
{
    static constexpr rtf::ParagraphFormat none;
    const rtf::ParagraphFormat& upper = first != nullptr ? *first : none;
    const rtf::ParagraphFormat& lower = second != nullptr ? *second : none;
    const bool isWithinList = upper.list != 0 && lower.list != 0;
    const double ownSpace = text.largerSpaceCounts ? webSpace : fixedSpace;
    const double automatic = isWithinList ? 0 : ownSpace;
    const bool isSameStyle = first != nullptr && second != nullptr && upper.style == lower.style;
    const bool hasAfter = !upper.contextualSpace || !isSameStyle;
    const bool hasBefore = !lower.contextualSpace || !isSameStyle;
    const double after = hasAfter ? spaceOf(upper.spaceAfter, upper.automaticSpaceAfter, automatic) : 0;
    const double before = hasBefore ? spaceOf(lower.spaceBefore, lower.automaticSpaceBefore, automatic) : 0;
    return (text.largerSpaceCounts ? std::max(after, before) : after + before)
        + (lower.pageBreakBefore ? pageBreakSpace : 0);
}

Indents indentsOf(const rtf::ParagraphFormat& format)
{
    const double first = rtf::points(format.firstLineIndent);
    const double left = std::clamp(std::max(rtf::points(format.leftIndent), -first), 0.0, widestLeftIndent);
    return {left, std::clamp(first, -left, widestLeftIndent - left),
        std::clamp(rtf::points(format.rightIndent), 0.0, widestRightIndent)};
}

QTextBlockFormat blockFormatFor(
    const rtf::AttributedText& text, const rtf::ParagraphFormat& format, const Indents& indents)
{
    QTextBlockFormat block;
    block.setAlignment(alignmentOf(format.alignment));
    block.setLayoutDirection(directionOf(format.direction));
    setSideMargins(block, format, indents.left, indents.right);
    block.setTextIndent(indents.firstLine);
    setTabs(block, stopsFor(text, format, indents));
    setLineHeight(block, format.lineHeight());
    return block;
}

} // namespace corvellane::view
