#include "view/qt/RichTextRuns.h"

#include "view/qt/RichTextFormats.h"
#include "view/qt/RichTextPictures.h"

#include <QTextCursor>

#include <algorithm>

namespace corvellane::view {
namespace {

/// The line is under words alone.
void insertWords(QTextCursor& cursor, const QString& text, const QTextCharFormat& format)
{
    QTextCharFormat between = format;
    between.setUnderlineStyle(QTextCharFormat::NoUnderline);
    for (const auto* begin = text.begin(); begin != text.end();) {
        const bool isSpace = begin->isSpace();
        const auto* const end
            = std::find_if(begin, text.end(), [=](QChar character) { return character.isSpace() != isSpace; });
        cursor.insertText(QString(begin, end - begin), isSpace ? between : format);
        begin = end;
    }
}

} // namespace

RunWriter::RunWriter(const rtf::AttributedText& text)
    : text_(text)
{
    for (const rtf::TextAttributes& attributes : text.attributes) {
        formats_.append(charFormatFor(attributes, text));
    }
}

void RunWriter::insert(QTextCursor& cursor, const rtf::Run& run) const
{
    const rtf::TextAttributes& attributes = text_.attributes[run.attributes];
    if (attributes.picture != 0) {
        if (const auto image = addPicture(*cursor.document(), text_.pictures[attributes.picture - 1])) {
            cursor.insertImage(*image);
        }
        return;
    }
    const QString text = QString::fromUtf8(run.text.data(), static_cast<qsizetype>(run.text.size()));
    if (attributes.underline == rtf::Underline::words && attributes.link == 0) {
        insertWords(cursor, text, formatOf(run.attributes));
    } else {
        cursor.insertText(text, formatOf(run.attributes));
    }
}

} // namespace corvellane::view
