#include "view/qt/RichTextCopy.h"

#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextTable>

#include <algorithm>

namespace corvellane::view {
namespace {

QStringList linesIn(QTextFrame::iterator place);

/// A row from where reading begins, on the right where the table runs from there.
QString lineOf(const QTextTable& table, int row)
{
    QStringList cells;
    for (int column = 0; column < table.columns(); ++column) {
        const QTextTableCell cell = table.cellAt(row, column);
        if (cell.row() == row && cell.column() == column) {
            cells.append(linesIn(cell.begin()).join(u'\n'));
        }
    }
    if (table.format().layoutDirection() == Qt::RightToLeft) {
        std::ranges::reverse(cells);
    }
    return cells.join(u'\t');
}

/// An empty paragraph before a table is not seen, nor is one behind it.
QStringList linesIn(QTextFrame::iterator place)
{
    QStringList lines;
    bool isBehindTable = false;
    for (; !place.atEnd(); ++place) {
        const auto* const table = qobject_cast<const QTextTable*>(place.currentFrame());
        if (table == nullptr) {
            const QString text = place.currentBlock().text();
            if (!isBehindTable || !text.isEmpty()) {
                lines.append(text);
            }
        } else {
            if (!lines.isEmpty() && lines.last().isEmpty()) {
                lines.removeLast();
            }
            for (int row = 0; row < table->rows(); ++row) {
                lines.append(lineOf(*table, row));
            }
        }
        isBehindTable = table != nullptr;
    }
    return lines;
}

} // namespace

QString plainTextOf(const QTextDocumentFragment& part)
{
    QTextDocument document;
    QTextCursor(&document).insertFragment(part);
    QString text = linesIn(document.rootFrame()->begin()).join(u'\n');
    text.replace(QChar::LineSeparator, u'\n');
    text.replace(QChar::Nbsp, u' ');
    return text;
}

} // namespace corvellane::view
