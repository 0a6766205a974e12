#include "view/qt/LogText.h"

#include <algorithm>

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

} // namespace corvellane::view
