#include "view/qt/LogView.h"

#include "view/qt/Accessibility.h"
#include "view/qt/Appearance.h"
#include "view/qt/ScrollBars.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleHints>
#include <QTimerEvent>

#include <algorithm>
#include <chrono>
#include <cmath>

namespace corvellane::view {
namespace {

/// Between two scrolls while the mouse is held outside.
constexpr std::chrono::milliseconds scrollBeat{50};

/// Where the bars meet, in their colour.
QWidget* makeCorner()
{
    auto* const corner = new QWidget;
    corner->setBackgroundRole(QPalette::Midlight);
    corner->setAutoFillBackground(true);
    return corner;
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

LogView::LogView(QWidget* parent)
    : QAbstractScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    // What programs print reads from left to right.
    setLayoutDirection(Qt::LeftToRight);
    viewport()->setCursor(Qt::IBeamCursor);
    for (QScrollBar* const bar : {horizontalScrollBar(), verticalScrollBar()}) {
        makePlain(*bar);
        seeLastLineAgain(*bar);
    }
    setCornerWidget(makeCorner());
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

void LogView::present(const LogArea& log)
{
    nameForAssistance(*this, localized(log.name));
    lines_ = std::make_unique<LogText>(*log.text, fontOf(standardFont));
    selection_ = {};
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

// Drawing

std::size_t LogView::lineAt(double y) const
{
    const auto last = static_cast<double>(lines_->lineCount() - 1);
    return static_cast<std::size_t>(std::clamp(y / lines_->lineHeight(), 0.0, last));
}

void LogView::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    painter.fillRect(event->rect(), Qt::white);
    if (lines_ == nullptr) {
        return;
    }
    painter.setFont(lines_->font());
    painter.save();
    painter.translate(textOrigin());
    const QRectF sight = QRectF(event->rect()).translated(-textOrigin());
    const std::size_t last = lineAt(sight.bottom());
    for (std::size_t line = lineAt(sight.top()); line <= last; ++line) {
        paintLine(painter, line, sight);
    }
    painter.restore();
    if (hasFocus()) {
        paintFocusFrame(painter, viewport()->rect());
    }
}

void LogView::paintLine(QPainter& painter, std::size_t line, const QRectF& sight) const
{
    const double top = lines_->lineHeight() * static_cast<double>(line);
    const auto drawText = [&](const QColor& color) {
        painter.setPen(color);
        for (const LogText::Piece& piece : lines_->piecesBetween(line, sight.left(), sight.right())) {
            painter.drawText(QPointF(piece.left, top + lines_->ascent()), lines_->charactersOf(piece));
        }
    };
    drawText(colorOf(Tint::label));
    const qsizetype begin = std::max(selection_.begin(), lines_->lineBegin(line));
    const qsizetype end = std::min(selection_.end(), lines_->lineEnd(line));
    if (begin < end) {
        const double left = lines_->leftOf(begin);
        const QRectF selected(left, top, lines_->leftOf(end) - left, lines_->lineHeight());
        painter.fillRect(selected, palette().color(QPalette::Active, QPalette::Highlight));
        painter.save();
        painter.setClipRect(selected);
        drawText(Qt::white);
        painter.restore();
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

// Selecting

void LogView::select(Selection selection)
{
    selection_ = selection;
    viewport()->update();
    tellSelection(*this, static_cast<int>(selection.begin()), static_cast<int>(selection.end()));
}

QString LogView::selectedText() const
{
    return lines_->text().mid(selection_.begin(), selection_.end() - selection_.begin());
}

void LogView::copy() const
{
    if (selection_.begin() != selection_.end()) {
        QGuiApplication::clipboard()->setText(selectedText());
    }
}

qsizetype LogView::characterAt(const QPoint& point) const
{
    const QPointF inside = point - textOrigin();
    return lines_->characterAt(lineAt(inside.y()), inside.x());
}

void LogView::extendTo(qsizetype character)
{
    select({selection_.anchor, character});
    showCharacter(character);
}

/// Scrolls no further than is needed.
void LogView::showCharacter(qsizetype character)
{
    const auto line = static_cast<double>(lines_->lineOf(character));
    const QPointF corner = textOrigin() + QPointF(lines_->leftOf(character), line * lines_->lineHeight());
    const auto scroll = [](QScrollBar& bar, double from, double to, int room) {
        const double beyond = std::min(from, 0.0) + std::max(to - room, 0.0);
        bar.setValue(bar.value() + static_cast<int>(beyond));
    };
    scroll(*horizontalScrollBar(), corner.x() - standardPadding, corner.x() + standardPadding, viewport()->width());
    scroll(*verticalScrollBar(), corner.y(), corner.y() + lines_->lineHeight(), viewport()->height());
}

bool LogView::extendByKey(const QKeyEvent& key)
{
    const qsizetype cursor = selection_.cursor;
    const std::size_t line = lines_->lineOf(cursor);
    const auto inLine = [&](std::size_t wanted) { return lines_->characterAt(wanted, lines_->leftOf(cursor)); };
    const auto around
        = [&](qsizetype character) { return lines_->stretchAround(character, QTextBoundaryFinder::Grapheme); };
    if (key.matches(QKeySequence::SelectNextChar)) {
        extendTo(around(cursor).second);
    } else if (key.matches(QKeySequence::SelectPreviousChar)) {
        extendTo(around(std::max<qsizetype>(cursor - 1, 0)).first);
    } else if (key.matches(QKeySequence::SelectNextLine)) {
        extendTo(line + 1 < lines_->lineCount() ? inLine(line + 1) : lines_->lineEnd(line));
    } else if (key.matches(QKeySequence::SelectPreviousLine)) {
        extendTo(line > 0 ? inLine(line - 1) : 0);
    } else if (key.matches(QKeySequence::SelectStartOfLine)) {
        extendTo(lines_->lineBegin(line));
    } else if (key.matches(QKeySequence::SelectEndOfLine)) {
        extendTo(lines_->lineEnd(line));
    } else if (key.matches(QKeySequence::SelectStartOfDocument)) {
        extendTo(0);
    } else if (key.matches(QKeySequence::SelectEndOfDocument)) {
        extendTo(lines_->text().size());
    } else {
        return false;
    }
    return true;
}

void LogView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy)) {
        return copy();
    }
    if (event->matches(QKeySequence::SelectAll)) {
        return selectAll();
    }
    if (extendByKey(*event)) {
        return;
    }
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

void LogView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const qsizetype character = characterAt(event->position().toPoint());
    if (isThirdPress(*event)) {
        const std::size_t line = lines_->lineOf(character);
        select({lines_->lineBegin(line), lines_->lineEnd(line)});
    } else {
        const bool extends = event->modifiers().testFlag(Qt::ShiftModifier);
        select({extends ? selection_.anchor : character, character});
    }
}

bool LogView::isThirdPress(const QMouseEvent& press) const
{
    const QStyleHints& habits = *QGuiApplication::styleHints();
    const QPoint moved = press.position().toPoint() - secondPressAt_;
    return sinceSecondPress_.isValid() && !sinceSecondPress_.hasExpired(habits.mouseDoubleClickInterval())
        && moved.manhattanLength() < habits.startDragDistance();
}

void LogView::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons().testFlag(Qt::LeftButton)) {
        dragTo(event->position().toPoint());
    }
}

/// Outside, the text goes on scrolling for as long as the mouse is held there.
void LogView::dragTo(const QPoint& point)
{
    draggedTo_ = point;
    extendTo(characterAt(point));
    if (viewport()->rect().contains(point)) {
        dragging_.stop();
    } else if (!dragging_.isActive()) {
        dragging_.start(static_cast<int>(scrollBeat.count()), this);
    }
}

void LogView::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == dragging_.timerId()) {
        dragTo(draggedTo_);
    } else {
        QAbstractScrollArea::timerEvent(event);
    }
}

/// Where the desktop has a selection of its own, the middle button pastes it.
void LogView::mouseReleaseEvent(QMouseEvent* event)
{
    dragging_.stop();
    QClipboard* const clipboard = QGuiApplication::clipboard();
    if (event->button() == Qt::LeftButton && selection_.begin() != selection_.end() && clipboard->supportsSelection()) {
        clipboard->setText(selectedText(), QClipboard::Selection);
    }
}

void LogView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const auto [begin, end]
        = lines_->stretchAround(characterAt(event->position().toPoint()), QTextBoundaryFinder::Word);
    select({begin, end});
    secondPressAt_ = event->position().toPoint();
    sinceSecondPress_.start();
}

void LogView::contextMenuEvent(QContextMenuEvent* event)
{
    const auto title = [](const char* key) { return QCoreApplication::translate("QWidgetTextControl", key); };
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(title("&Copy"), this, &LogView::copy)->setEnabled(selection_.begin() != selection_.end());
    menu->addAction(title("Select All"), this, &LogView::selectAll);
    menu->popup(event->globalPos());
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
