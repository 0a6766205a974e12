#include "view/qt/RichTextViewer.h"

#include "view/qt/RichTextFormats.h"

#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextOption>

namespace corvellane::view {
namespace {

constexpr double defaultTabDistance = 36;
constexpr double pageMargin = 8;

void prepare(QTextDocument& document)
{
    document.clear();
    document.setUndoRedoEnabled(false);
    document.setDocumentMargin(pageMargin);
    QTextOption option = document.defaultTextOption();
    option.setTabStopDistance(defaultTabDistance);
    document.setDefaultTextOption(option);
}

QList<QTextCharFormat> charFormatsOf(const rtf::AttributedText& text)
{
    QList<QTextCharFormat> formats;
    for (const rtf::TextAttributes& attributes : text.attributes) {
        formats.append(charFormatFor(attributes, text));
    }
    return formats;
}

void insertParagraph(
    QTextCursor& cursor, const rtf::AttributedText& text, std::size_t index, const QList<QTextCharFormat>& charFormats)
{
    const rtf::Paragraph& paragraph = text.paragraphs[index];
    const QTextBlockFormat format = blockFormatFor(text, index);
    if (index == 0) {
        cursor.setBlockFormat(format);
        cursor.setBlockCharFormat(charFormats[paragraph.endAttributes]);
    } else {
        cursor.insertBlock(format, charFormats[paragraph.endAttributes]);
    }
    for (const rtf::Run& run : text.runsOf(paragraph)) {
        const std::string_view characters = text.textOf(run);
        cursor.insertText(QString::fromUtf8(characters.data(), static_cast<qsizetype>(characters.size())),
            charFormats[run.attributes]);
    }
}

QPalette paperPalette(QPalette palette)
{
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Highlight, QColor(0, 99, 225));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

} // namespace

void fillTextDocument(QTextDocument& document, const rtf::AttributedText& text)
{
    prepare(document);
    const QList<QTextCharFormat> charFormats = charFormatsOf(text);
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    for (std::size_t index = 0; index < text.paragraphs.size(); ++index) {
        insertParagraph(cursor, text, index, charFormats);
    }
    cursor.endEditBlock();
}

QWidget* makeRichTextViewer(const rtf::AttributedText& text, QWidget* parent)
{
    auto* viewer = new QTextEdit(parent);
    viewer->setReadOnly(true);
    viewer->setTextInteractionFlags(
        Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard | Qt::LinksAccessibleByMouse);
    viewer->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewer->setFrameShape(QFrame::NoFrame);
    viewer->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    viewer->setPalette(paperPalette(viewer->palette()));
    auto* document = new QTextDocument(viewer);
    fillTextDocument(*document, text);
    viewer->setDocument(document);
    return viewer;
}

} // namespace corvellane::view
