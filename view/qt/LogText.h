#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QString>
#include <QTextBoundaryFinder>

#include <array>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

class QTextLayout;

namespace corvellane::view {

/// A text cut into lines and measured, so that any part of it can be drawn without looking at the rest. Lines end
/// where the text has line breaks. Lines are cut into pieces that are shaped on their own: at tabs, which go on at the
/// next tab stop, and where they are long. Every line has at least one piece, and one begins after every tab.
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

    /// The line of a character, or of the end of the text.
    std::size_t lineOf(qsizetype character) const;

    /// The character of a line that stands at a distance from its left edge; the line's end beyond it.
    qsizetype characterAt(std::size_t line, double x) const;

    /// How far a character, or its line's end, stands from the line's left edge.
    double leftOf(qsizetype character) const;

    /// The stretch around a character up to the next boundaries; of a few lines at most.
    std::pair<qsizetype, qsizetype> stretchAround(qsizetype character, QTextBoundaryFinder::BoundaryType kind) const;

    qsizetype lineBegin(std::size_t line) const { return pieces_[firstPieces_[line]].begin; }
    qsizetype lineEnd(std::size_t line) const;

private:
    void addLine(qsizetype begin, qsizetype end);
    qsizetype pieceEnd(qsizetype begin, qsizetype end) const;
    double widthOf(qsizetype begin, qsizetype length) const;
    double nextTabStop(double left) const;
    void shape(QTextLayout& layout) const;

    QString text_;
    QFont font_;
    QFontMetricsF metrics_;
    std::array<double, 128> asciiWidths_{};
    std::vector<Piece> pieces_;
    /// Where a line's pieces begin, and at last where all end.
    std::vector<std::uint32_t> firstPieces_;
    double width_ = 0;
};

} // namespace corvellane::view
