#include "view/qt/NameLines.h"

#include <QFontMetrics>
#include <QTextLayout>
#include <QTextOption>

namespace corvellane::view {
namespace {

/// How many characters the first line takes.
qsizetype firstLineOf(QString name, const QFont& font, int width)
{
    name.replace('\n', QChar::LineSeparator);
    QTextLayout layout(name, font);
    layout.setTextOption([] {
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        return option;
    }());
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(width);
    layout.endLayout();
    return line.textLength();
}

QString withoutSpaceAtEnd(QString line)
{
    while (!line.isEmpty() && line.back().isSpace()) {
        line.chop(1);
    }
    return line;
}

} // namespace

NameLines linesOf(const QString& name, const QFont& font, int width)
{
    const QFontMetrics metrics(font);
    const auto fits
        = [&](const QString& line) { return !line.contains('\n') && metrics.horizontalAdvance(line) < width; };
    if (fits(name)) {
        return {name, true};
    }
    const qsizetype first = firstLineOf(name, font, width);
    const QString rest = name.mid(first);
    const QString begin = withoutSpaceAtEnd(name.left(first));
    if (rest.isEmpty() || fits(rest)) {
        return {rest.isEmpty() ? begin : begin + '\n' + rest, true};
    }
    QString inOneLine = rest;
    inOneLine.replace('\n', ' ');
    return {begin + '\n' + metrics.elidedText(inOneLine, Qt::ElideMiddle, width), false};
}

QString allLinesOf(const QString& name, const QFont& font, int width)
{
    QStringList lines;
    for (QString rest = name; !rest.isEmpty();) {
        const qsizetype first = firstLineOf(rest, font, width);
        lines += withoutSpaceAtEnd(rest.left(first));
        rest = rest.mid(first);
    }
    return lines.join('\n');
}

} // namespace corvellane::view
