#include "view/qt/RichTextLines.h"

#include "view/qt/RichTextFormats.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <optional>

namespace corvellane::view {
namespace {

enum Property { ownUnderline = QTextFormat::UserProperty, framePen, frameIsTwofold, tabLeaders };

/// What is painted beside the underline that Qt has, or over it.
enum OwnUnderline { second, thick };

constexpr double widestFrame = 6;
/// Between a tab's filling and the text on both sides of it.
constexpr double leaderGap = 2;

/// A part of one line of a paragraph without the spaces that end the line, in the document's coordinates.
struct Stretch {
    double left;
    double right;
    double baseline;
};

/// A paragraph that is laid out.
class PaintedParagraph {
public:
    PaintedParagraph(QPainter& painter, const QTextBlock& block, const QRectF& bounds)
        : painter_(painter)
        , block_(block)
        , origin_(bounds.topLeft())
    {
    }

    void paint();

private:
    void paintUnderline(const QTextFragment& fragment);
    void paintFrame(const QTextCharFormat& format, int begin, int end);
    void paintLeaders(const QTextFragment& fragment);
    rtf::TabLeader leaderAt(const QTextLine& line, const Stretch& tab) const;
    std::optional<Stretch> stretchOf(const QTextLine& line, int begin, int end) const;
    template <typename Paint>
    void forEachLine(int begin, int end, Paint paint) const;

    QPainter& painter_;
    const QTextBlock& block_;
    QPointF origin_;
};

QColor colorIn(const QTextCharFormat& format)
{
    return format.hasProperty(QTextFormat::ForegroundBrush) ? format.foreground().color() : QColor(Qt::black);
}

std::optional<Stretch> PaintedParagraph::stretchOf(const QTextLine& line, int begin, int end) const
{
    const int lineEnd = line.textStart() + line.textLength();
    if (std::max(begin, line.textStart()) >= std::min(end, lineEnd)) {
        return std::nullopt;
    }
    const auto [left, right]
        = std::minmax({line.cursorToX(std::max(begin, line.textStart())), line.cursorToX(std::min(end, lineEnd))});
    const QRectF text = line.naturalTextRect();
    return Stretch{origin_.x() + std::max(left, text.left()), origin_.x() + std::min(right, text.right()),
        origin_.y() + line.y() + line.ascent()};
}

/// `begin` and `end` count from the beginning of the paragraph.
template <typename Paint>
void PaintedParagraph::forEachLine(int begin, int end, Paint paint) const
{
    const QTextLayout& layout = *block_.layout();
    for (int index = layout.lineForTextPosition(begin).lineNumber(); index >= 0 && index < layout.lineCount();
        ++index) {
        if (const auto stretch = stretchOf(layout.lineAt(index), begin, end)) {
            paint(*stretch);
        } else if (layout.lineAt(index).textStart() >= end) {
            break;
        }
    }
}

void PaintedParagraph::paint()
{
    const bool hasLeaders = block_.blockFormat().hasProperty(tabLeaders);
    QTextCharFormat frame;
    int begin = 0;
    for (auto fragments = block_.begin(); !fragments.atEnd(); ++fragments) {
        const QTextFragment fragment = fragments.fragment();
        const QTextCharFormat format = fragment.charFormat();
        if (format.hasProperty(ownUnderline)) {
            paintUnderline(fragment);
        }
        if (hasLeaders) {
            paintLeaders(fragment);
        }
        if (format.property(framePen) != frame.property(framePen)) {
            const int end = fragment.position() - block_.position();
            paintFrame(frame, begin, end);
            frame = format;
            begin = end;
        }
    }
    paintFrame(frame, begin, block_.length() - 1);
}

void PaintedParagraph::paintUnderline(const QTextFragment& fragment)
{
    const QTextCharFormat format = fragment.charFormat();
    const QFontMetricsF metrics(format.font());
    const double width = std::max(1.0, std::round(metrics.lineWidth()));
    const bool isThick = format.intProperty(ownUnderline) == thick;
    const double below = std::ceil(metrics.underlinePos()) + (isThick ? width / 2 : 2 * width);
    painter_.setPen(QPen(colorIn(format), isThick ? 2 * width : width));
    const int begin = fragment.position() - block_.position();
    forEachLine(begin, begin + fragment.length(), [&](const Stretch& stretch) {
        const double y = std::ceil(stretch.baseline) + below;
        painter_.drawLine(QPointF(stretch.left, y), QPointF(stretch.right, y));
    });
}

void PaintedParagraph::paintFrame(const QTextCharFormat& format, int begin, int end)
{
    if (!format.hasProperty(framePen)) {
        return;
    }
    const QFontMetricsF metrics(format.font());
    painter_.setPen(format.penProperty(framePen));
    painter_.setBrush(Qt::NoBrush);
    forEachLine(begin, end, [&](const Stretch& stretch) {
        const QRectF around(QPointF(stretch.left - 1, stretch.baseline - metrics.ascent()),
            QPointF(stretch.right + 1, stretch.baseline + metrics.descent()));
        painter_.drawRect(around);
        if (format.boolProperty(frameIsTwofold)) {
            painter_.drawRect(around.adjusted(-2, -2, 2, 2));
        }
    });
}

/// Qt gives a tab to the first stop behind where it begins.
rtf::TabLeader PaintedParagraph::leaderAt(const QTextLine& line, const Stretch& tab) const
{
    constexpr double tolerance = 1 / 128.0;
    const QRectF text = line.naturalTextRect().translated(origin_);
    const bool isRightToLeft = block_.textDirection() == Qt::RightToLeft;
    const double begin = isRightToLeft ? text.right() - tab.right : tab.left - text.left();
    const QList<QTextOption::Tab> stops = block_.blockFormat().tabPositions();
    const auto reached
        = std::ranges::find_if(stops, [&](const auto& stop) { return stop.position > begin + tolerance; });
    const QByteArray leaders = block_.blockFormat().property(tabLeaders).toByteArray();
    return reached != stops.end() ? static_cast<rtf::TabLeader>(leaders.at(reached - stops.begin()))
                                  : rtf::TabLeader::none;
}

/// Dots and hyphens of neighbouring lines stand below each other.
void fillTab(QPainter& painter, const Stretch& tab, rtf::TabLeader leader)
{
    double begin = tab.left + leaderGap;
    QPen pen(painter.pen());
    if (leader != rtf::TabLeader::line) {
        const double length = leader == rtf::TabLeader::dots ? 1 : 4;
        const double period = leader == rtf::TabLeader::dots ? 4 : 8;
        pen.setDashPattern({length, period - length});
        begin = std::ceil(begin / period) * period;
    }
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    if (begin < tab.right - leaderGap) {
        const double y = leader == rtf::TabLeader::hyphens ? tab.baseline - 3 : tab.baseline;
        painter.drawLine(QPointF(begin, y), QPointF(tab.right - leaderGap, y));
    }
}

void PaintedParagraph::paintLeaders(const QTextFragment& fragment)
{
    const QString text = fragment.text();
    const int begin = fragment.position() - block_.position();
    for (qsizetype tab = text.indexOf(u'\t'); tab >= 0; tab = text.indexOf(u'\t', tab + 1)) {
        const int place = begin + static_cast<int>(tab);
        const QTextLine line = block_.layout()->lineForTextPosition(place);
        const auto stretch = line.isValid() ? stretchOf(line, place, place + 1) : std::nullopt;
        const rtf::TabLeader leader = stretch ? leaderAt(line, *stretch) : rtf::TabLeader::none;
        if (leader != rtf::TabLeader::none) {
            painter_.setPen(QPen(colorIn(fragment.charFormat()), 1));
            fillTab(painter_, *stretch, leader);
        }
    }
}

/// The first paragraph of which anything may be as low as `top`: what stands beside it in a table counts with it.
QTextBlock firstBlockAt(const QTextDocument& document, double top)
{
    int position = std::max(0, document.documentLayout()->hitTest(QPointF(0, top), Qt::FuzzyHit));
    for (const QTextFrame* frame = document.frameAt(position); frame != nullptr && frame != document.rootFrame();
        frame = frame->parentFrame()) {
        position = frame->firstPosition();
    }
    return document.findBlock(position);
}

/// Of two lines each is solid.
Qt::PenStyle penStyleOf(rtf::LineStyle style)
{
    switch (style) {
    case rtf::LineStyle::none:
        return Qt::NoPen;
    case rtf::LineStyle::solid:
    case rtf::LineStyle::twofold:
        return Qt::SolidLine;
    case rtf::LineStyle::dotted:
        return Qt::DotLine;
    case rtf::LineStyle::dashed:
        return Qt::DashLine;
    }
    return Qt::NoPen;
}

} // namespace

void addSecondUnderline(QTextCharFormat& format)
{
    format.setProperty(ownUnderline, static_cast<int>(second));
}

void thickenUnderline(QTextCharFormat& format)
{
    format.setProperty(ownUnderline, static_cast<int>(thick));
}

void addFrame(QTextCharFormat& format, const rtf::Border& border)
{
    QPen pen(border.color.isSet ? colorOf(border.color) : QColor(Qt::black));
    pen.setWidthF(std::clamp(rtf::points(border.width), 1.0, widestFrame));
    pen.setStyle(penStyleOf(border.style));
    pen.setJoinStyle(Qt::MiterJoin);
    format.setProperty(framePen, pen);
    if (border.style == rtf::LineStyle::twofold) {
        format.setProperty(frameIsTwofold, true);
    }
}

void addLeaders(QTextBlockFormat& format, const std::vector<rtf::TabLeader>& leaders)
{
    QByteArray bytes;
    for (const rtf::TabLeader leader : leaders) {
        bytes.append(static_cast<char>(leader));
    }
    format.setProperty(tabLeaders, bytes);
}

bool hasLines(const QTextDocument& document)
{
    return std::ranges::any_of(document.allFormats(), [](const QTextFormat& format) {
        return format.hasProperty(ownUnderline) || format.hasProperty(framePen) || format.hasProperty(tabLeaders);
    });
}

void paintLines(QPainter& painter, const QTextDocument& document, const QRectF& area)
{
    for (QTextBlock block = firstBlockAt(document, area.top()); block.isValid(); block = block.next()) {
        const QRectF bounds = document.documentLayout()->blockBoundingRect(block);
        if (bounds.intersects(area)) {
            PaintedParagraph(painter, block, bounds).paint();
        } else if (bounds.top() > area.bottom() && document.frameAt(block.position()) == document.rootFrame()) {
            break;
        }
    }
}

} // namespace corvellane::view
