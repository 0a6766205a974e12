#pragma once

#include "view/View.h"
#include "view/qt/LogText.h"

#include <QAbstractScrollArea>

#include <memory>

namespace corvellane::view {

/// The widget of a log area. Draws the lines in sight and no others, so that a long log opens at once.
class LogView : public QAbstractScrollArea {
public:
    explicit LogView(QWidget* parent);

    void present(const LogArea& log);

    /// The whole of it, for those who do not see it.
    QString wholeText() const { return lines_ == nullptr ? QString() : lines_->text(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int x, int y) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QSize blockSize() const;
    QPointF textOrigin() const;
    void updateScrollBars();

    std::string shown_;
    std::unique_ptr<LogText> lines_;
};

} // namespace corvellane::view
