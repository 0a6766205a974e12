#include "view/qt/RichTextViewer.h"

#include "view/qt/RichTextDocument.h"

#include <QTextDocument>
#include <QTextEdit>

namespace corvellane::view {

namespace {

QPalette paperPalette(QPalette palette)
{
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Highlight, QColor(0, 99, 225));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

} // namespace

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
