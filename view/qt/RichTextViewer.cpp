#include "view/qt/RichTextViewer.h"

#include "view/qt/Appearance.h"
#include "view/qt/RichTextCopy.h"
#include "view/qt/RichTextDocument.h"
#include "view/qt/RichTextLines.h"
#include "view/qt/ScrollBars.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextEdit>

namespace corvellane::view {
namespace {

/// Its frame tells of the focus. Keys scroll it, as those who look expect; those who listen move a caret through it,
/// whose lines they are read.
class Viewer : public QTextEdit {
public:
    explicit Viewer(QWidget* parent)
        : QTextEdit(parent)
    {
        setReadOnly(true);
        setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard | Qt::LinksAccessibleByMouse);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        makePlain(*verticalScrollBar());
        seeLastLineAgain(*verticalScrollBar());
        setFrameShape(QFrame::NoFrame);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    }

    void show(const rtf::AttributedText& text)
    {
        auto* document = new QTextDocument(this);
        fillTextDocument(*document, text);
        setDocument(document);
        setCursorWidth(0); // kept with the document
        hasLines_ = hasLines(*document);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
        if (modifiers != Qt::NoModifier || QAccessible::isActive() || !scrollBy(event->key())) {
            QTextEdit::keyPressEvent(event);
        }
    }

    /// A link that is pressed is marked, though it opens nothing.
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        const bool hadSelection = textCursor().hasSelection();
        QTextEdit::mouseReleaseEvent(event);
        if (!hadSelection && textCursor().hasSelection()) {
            QTextCursor unmarked = textCursor();
            unmarked.clearSelection();
            setTextCursor(unmarked);
        }
    }

    QMimeData* createMimeDataFromSelection() const override
    {
        QMimeData* const copied = QTextEdit::createMimeDataFromSelection();
        copied->html(); // Qt writes all forms when it is asked for the first one.
        copied->setText(plainTextOf(textCursor().selection()));
        return copied;
    }

    void paintEvent(QPaintEvent* event) override
    {
        QTextEdit::paintEvent(event);
        QPainter painter(viewport());
        if (hasLines_) {
            const QPoint scrolled(horizontalScrollBar()->value(), verticalScrollBar()->value());
            painter.translate(-scrolled);
            paintLines(painter, *document(), event->rect().translated(scrolled));
            painter.resetTransform();
        }
        if (hasFocus()) {
            paintFocusFrame(painter, viewport()->rect());
        }
    }

    void focusInEvent(QFocusEvent* event) override
    {
        QTextEdit::focusInEvent(event);
        viewport()->update();
    }

    void focusOutEvent(QFocusEvent* event) override
    {
        QTextEdit::focusOutEvent(event);
        viewport()->update();
    }

    /// The frame stays where it is.
    void scrollContentsBy(int, int) override { viewport()->update(); }

private:
    bool scrollBy(int key)
    {
        const auto act = [this](QAbstractSlider::SliderAction action) {
            verticalScrollBar()->triggerAction(action);
            return true;
        };
        switch (key) {
        case Qt::Key_Up:
            return act(QAbstractSlider::SliderSingleStepSub);
        case Qt::Key_Down:
            return act(QAbstractSlider::SliderSingleStepAdd);
        case Qt::Key_PageUp:
            return act(QAbstractSlider::SliderPageStepSub);
        case Qt::Key_PageDown:
            return act(QAbstractSlider::SliderPageStepAdd);
        case Qt::Key_Home:
            return act(QAbstractSlider::SliderToMinimum);
        case Qt::Key_End:
            return act(QAbstractSlider::SliderToMaximum);
        default:
            return false;
        }
    }

    bool hasLines_ = false;
};

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
    auto* viewer = new Viewer(parent);
    viewer->setPalette(paperPalette(viewer->palette()));
    viewer->show(text);
    return viewer;
}

} // namespace corvellane::view
