#include "ui/qt/RichTextViewer.h"

#include "agreement/AttributedText.h"

#include <QTextEdit>

namespace corvellane {

QWidget* makeRichTextViewer(const AttributedText& text, QWidget* parent)
{
    auto* const viewer = new QTextEdit(parent);
    viewer->setReadOnly(true);
    viewer->setFrameShape(QFrame::NoFrame);
    for (const Paragraph& paragraph : text.paragraphs) {
        QString line;
        for (const Run& run : text.runsOf(paragraph)) {
            line += QString::fromUtf8(text.textOf(run));
        }
        viewer->append(line);
    }
    viewer->moveCursor(QTextCursor::Start);
    return viewer;
}

} // namespace corvellane
