#pragma once

#include "view/View.h"
#include "view/qt/LogText.h"

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QElapsedTimer>
#include <QPoint>

#include <memory>

namespace corvellane::view {

/// The widget of a log area. Draws the lines in sight and no others, so that a long log opens at once. Text can be
/// selected with the mouse, and with the keyboard from the last click on; it can be copied, not changed.
class LogView : public QAbstractScrollArea {
public:
    /// Characters of the text: the one where the selection began, and the one that it now reaches to.
    struct Selection {
        qsizetype anchor = 0;
        qsizetype cursor = 0;

        qsizetype begin() const { return std::min(anchor, cursor); }
        qsizetype end() const { return std::max(anchor, cursor); }
    };

    explicit LogView(QWidget* parent);

    void present(const LogArea& log);

    /// The whole of it, for those who do not see it.
    QString wholeText() const { return lines_ == nullptr ? QString() : lines_->text(); }

    const Selection& selection() const { return selection_; }
    void select(Selection selection);
    void selectAll() { select({0, lines_->text().size()}); }
    void copy() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int x, int y) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QSize blockSize() const;
    QPointF textOrigin() const;
    void updateScrollBars();
    void paintLine(QPainter& painter, std::size_t line, const QRectF& sight) const;
    std::size_t lineAt(double y) const;
    qsizetype characterAt(const QPoint& point) const;
    bool isThirdPress(const QMouseEvent& press) const;
    void dragTo(const QPoint& point);
    QString selectedText() const;
    void extendTo(qsizetype character);
    bool extendByKey(const QKeyEvent& key);
    void showCharacter(qsizetype character);

    std::unique_ptr<LogText> lines_;
    Selection selection_;
    QPoint secondPressAt_;
    QElapsedTimer sinceSecondPress_;
    QPoint draggedTo_;
    QBasicTimer dragging_;
};

} // namespace corvellane::view
