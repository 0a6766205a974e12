#include "view/qt/LogText.h"

#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace corvellane::view {
namespace {

constexpr qsizetype longestPiece = 512;
constexpr int charactersPerTab = 8;

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
    return result;
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
    while (true) {
        const qsizetype length = pieceEnd(begin, end) - begin;
        pieces_.push_back({begin, length, left});
        left += widthOf(begin, length);
        begin += length;
        if (begin == end) {
            break;
        }
        if (text_[begin] == '\t') {
            left = nextTabStop(left);
            ++begin;
        }
    }
    width_ = std::max(width_, left);
}

double LogText::nextTabStop(double left) const
{
    const double distance = charactersPerTab * asciiWidths_[' '];
    return (std::floor(left / distance) + 1) * distance;
}

qsizetype LogText::pieceEnd(qsizetype begin, qsizetype end) const
{
    qsizetype cut = std::min(end, begin + longestPiece);
    if (cut < end && text_[cut].isLowSurrogate()) {
        --cut;
    }
    return std::ranges::find(text_.begin() + begin, text_.begin() + cut, QChar('\t')) - text_.begin();
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

// Finding pieces and characters

std::vector<LogText::Piece> LogText::piecesBetween(std::size_t line, double left, double right) const
{
    const auto begin = pieces_.begin() + firstPieces_[line];
    const auto end = pieces_.begin() + firstPieces_[line + 1];
    auto first = std::partition_point(begin, end, [&](const Piece& piece) { return piece.left <= left; });
    const auto last = std::partition_point(first, end, [&](const Piece& piece) { return piece.left < right; });
    first = first == begin ? begin : first - 1;
    return {first, last};
}

std::size_t LogText::lineOf(qsizetype character) const
{
    const auto after = std::partition_point(firstPieces_.begin(), firstPieces_.end() - 1,
        [&](std::uint32_t piece) { return pieces_[piece].begin <= character; });
    return static_cast<std::size_t>(after - firstPieces_.begin()) - 1;
}

qsizetype LogText::lineEnd(std::size_t line) const
{
    const Piece& last = pieces_[firstPieces_[line + 1] - 1];
    return last.begin + last.length;
}

std::pair<qsizetype, qsizetype> LogText::stretchAround(
    qsizetype character, QTextBoundaryFinder::BoundaryType kind) const
{
    const qsizetype first = std::max<qsizetype>(character - longestPiece, 0);
    const QString near = text_.mid(first, 2 * longestPiece);
    QTextBoundaryFinder finder(kind, near);
    finder.setPosition(std::min(character - first + 1, near.size()));
    const qsizetype begin = std::max<qsizetype>(finder.toPreviousBoundary(), 0);
    const qsizetype end = finder.toNextBoundary();
    return {first + begin, first + (end < 0 ? near.size() : end)};
}

void LogText::shape(QTextLayout& layout) const
{
    layout.setFont(font_);
    layout.setCacheEnabled(true);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
}

qsizetype LogText::characterAt(std::size_t line, double x) const
{
    const Piece piece = piecesBetween(line, std::max(x, 0.0), std::max(x, 0.0)).front();
    QTextLayout layout(charactersOf(piece));
    shape(layout);
    return piece.length == 0 ? piece.begin : piece.begin + layout.lineAt(0).xToCursor(x - piece.left);
}

double LogText::leftOf(qsizetype character) const
{
    const auto after
        = std::ranges::partition_point(pieces_, [&](const Piece& piece) { return piece.begin <= character; });
    const Piece& piece = *(after - 1);
    QTextLayout layout(charactersOf(piece));
    shape(layout);
    return piece.length == 0 ? piece.left
                             : piece.left + layout.lineAt(0).cursorToX(static_cast<int>(character - piece.begin));
}

} // namespace corvellane::view
