#pragma once

#include "view/View.h"

#include <QAbstractScrollArea>
#include <QFont>
#include <QFontMetricsF>
#include <QString>

#include <array>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace corvellane::view {

/// A text cut into lines and measured, so that any part of it can be drawn without looking at the rest. Lines end
/// where the text has line breaks. Long lines are cut into pieces that are shaped on their own.
class LogText {
public:
    /// A piece of a line: its characters, and how far from the line's left edge it stands.
    struct Piece {
        qsizetype begin = 0;
        qsizetype length = 0;
        double left = 0;
    };

    /// Ill-formed UTF-8 is shown as U+FFFD.
    LogText(std::string_view text, const QFont& font);

    const QFont& font() const { return font_; }
    const QString& text() const { return text_; }
    std::size_t lineCount() const { return firstPieces_.size() - 1; }
    double lineHeight() const { return metrics_.lineSpacing(); }
    double ascent() const { return metrics_.ascent(); }
    /// The width of the longest line.
    double width() const { return width_; }

    /// The pieces of a line that reach into the stretch from `left` to `right`.
    std::vector<Piece> piecesBetween(std::size_t line, double left, double right) const;

    QString charactersOf(const Piece& piece) const { return text_.mid(piece.begin, piece.length); }

private:
    void addLine(qsizetype begin, qsizetype end);
    qsizetype pieceEnd(qsizetype begin, qsizetype end) const;
    double widthOf(qsizetype begin, qsizetype length) const;

    QString text_;
    QFont font_;
    QFontMetricsF metrics_;
    std::array<double, 128> asciiWidths_{};
    std::vector<Piece> pieces_;
    /// Where a line's pieces begin, and at last where all end.
    std::vector<std::uint32_t> firstPieces_;
    double width_ = 0;
};

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

    std::unique_ptr<LogText> lines_;
};

} // namespace corvellane::view
