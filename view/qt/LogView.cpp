#include "view/qt/LogView.h"

#include "view/qt/Appearance.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace corvellane::view {
namespace {

constexpr qsizetype longestPiece = 512;

/// Without kerning a width is the sum of its characters' widths.
QFont withoutKerning(QFont font)
{
    font.setKerning(false);
    return font;
}

bool isLineBreak(QChar character)
{
    return character == '\n' || character == '\r' || character == QChar::LineSeparator
        || character == QChar::ParagraphSeparator;
}

QString decoded(std::string_view text)
{
    QString result = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    result.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    result.replace('\t', QStringLiteral("        "));
    return result;
}

void setRange(QScrollBar& bar, int content, int page)
{
    bar.setRange(0, std::max(0, content - page));
    bar.setPageStep(page);
}

int placed(int content, int available, int scrolled)
{
    return content < available ? (available - content) / 2 : -scrolled;
}

} // namespace

LogText::LogText(std::string_view text, const QFont& font)
    : text_(decoded(text))
    , font_(withoutKerning(font))
    , metrics_(font_)
{
    for (std::size_t code = 0; code < asciiWidths_.size(); ++code) {
        asciiWidths_[code] = metrics_.horizontalAdvance(QChar(static_cast<char16_t>(code)));
    }
    qsizetype begin = 0;
    for (qsizetype at = 0; at < text_.size(); ++at) {
        if (isLineBreak(text_[at])) {
            addLine(begin, at);
            begin = at + 1;
        }
    }
    addLine(begin, text_.size());
    firstPieces_.push_back(static_cast<std::uint32_t>(pieces_.size()));
}

void LogText::addLine(qsizetype begin, qsizetype end)
{
    firstPieces_.push_back(static_cast<std::uint32_t>(pieces_.size()));
    double left = 0;
    while (begin < end) {
        const qsizetype length = pieceEnd(begin, end) - begin;
        pieces_.push_back({begin, length, left});
        left += widthOf(begin, length);
        begin += length;
    }
    width_ = std::max(width_, left);
}

qsizetype LogText::pieceEnd(qsizetype begin, qsizetype end) const
{
    if (end - begin <= longestPiece) {
        return end;
    }
    const qsizetype cut = begin + longestPiece;
    return text_[cut].isLowSurrogate() ? cut - 1 : cut;
}

double LogText::widthOf(qsizetype begin, qsizetype length) const
{
    double sum = 0;
    for (qsizetype at = begin; at < begin + length; ++at) {
        const char16_t code = text_[at].unicode();
        if (code >= asciiWidths_.size()) {
            return metrics_.horizontalAdvance(text_.mid(begin, length));
        }
        sum += asciiWidths_[code];
    }
    return sum;
}

std::vector<LogText::Piece> LogText::piecesBetween(std::size_t line, double left, double right) const
{
    const auto begin = pieces_.begin() + firstPieces_[line];
    const auto end = pieces_.begin() + firstPieces_[line + 1];
    auto first = std::partition_point(begin, end, [&](const Piece& piece) { return piece.left <= left; });
    const auto last = std::partition_point(first, end, [&](const Piece& piece) { return piece.left < right; });
    first = first == begin ? begin : first - 1;
    return {first, last};
}

LogView::LogView(QWidget* parent)
    : QAbstractScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

void LogView::present(const LogArea& log)
{
    setAccessibleName(localized(log.name));
    lines_ = std::make_unique<LogText>(*log.text, fontOf(standardFont));
    horizontalScrollBar()->setSingleStep(static_cast<int>(lines_->lineHeight()));
    verticalScrollBar()->setSingleStep(static_cast<int>(lines_->lineHeight()));
    updateScrollBars();
    viewport()->update();
}

QSize LogView::blockSize() const
{
    const double height = lines_->lineHeight() * static_cast<double>(lines_->lineCount());
    return QSize(static_cast<int>(std::ceil(lines_->width())), static_cast<int>(std::ceil(height)))
        + QSize(2 * standardPadding, 2 * standardPadding);
}

QPointF LogView::textOrigin() const
{
    const QSize block = blockSize();
    const QPoint corner(placed(block.width(), viewport()->width(), horizontalScrollBar()->value()),
        placed(block.height(), viewport()->height(), verticalScrollBar()->value()));
    return corner + QPoint(standardPadding, standardPadding);
}

void LogView::updateScrollBars()
{
    if (lines_ != nullptr) {
        setRange(*horizontalScrollBar(), blockSize().width(), viewport()->width());
        setRange(*verticalScrollBar(), blockSize().height(), viewport()->height());
    }
}

void LogView::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    painter.fillRect(event->rect(), Qt::white);
    if (lines_ == nullptr) {
        return;
    }
    painter.setFont(lines_->font());
    painter.setPen(colorOf(Tint::label));
    const QPointF origin = textOrigin();
    const QRectF sight = QRectF(event->rect()).translated(-origin);
    const double height = lines_->lineHeight();
    const auto lineAt = [&](double y) {
        return static_cast<std::size_t>(std::clamp(y / height, 0.0, static_cast<double>(lines_->lineCount())));
    };
    const std::size_t end = std::min(lineAt(sight.bottom()) + 1, lines_->lineCount());
    for (std::size_t line = lineAt(sight.top()); line < end; ++line) {
        const double baseline = origin.y() + height * static_cast<double>(line) + lines_->ascent();
        for (const LogText::Piece& piece : lines_->piecesBetween(line, sight.left(), sight.right())) {
            painter.drawText(QPointF(origin.x() + piece.left, baseline), lines_->charactersOf(piece));
        }
    }
    if (hasFocus()) {
        painter.setPen(colorOf(Tint::blue));
        painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
    }
}

void LogView::resizeEvent(QResizeEvent*)
{
    updateScrollBars();
}

void LogView::scrollContentsBy(int, int)
{
    viewport()->update();
}

void LogView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Home:
        horizontalScrollBar()->setValue(0);
        return verticalScrollBar()->setValue(0);
    case Qt::Key_End:
        return verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void LogView::focusInEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void LogView::focusOutEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

} // namespace corvellane::view
