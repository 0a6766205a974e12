#pragma once

#include <QFont>
#include <QString>

namespace corvellane::view {

/// A name as a row shows it.
struct NameLines {
    /// One line or two, with a line feed between them.
    QString text;
    /// Whether nothing is left out.
    bool isWhole = true;
};

/// The name in as few lines of `width` device-independent pixels as it takes, two at most: its own line feeds end
/// lines; a longer line is broken between words, or inside one that is longer than a line. What is too long even so is
/// left out in the middle of the second line.
NameLines linesOf(const QString& name, const QFont& font, int width);

/// All of the name, in lines of `width` device-independent pixels that are broken in the same places.
QString allLinesOf(const QString& name, const QFont& font, int width);

} // namespace corvellane::view
