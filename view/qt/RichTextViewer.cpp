#include "view/qt/RichTextViewer.h"

#include "view/qt/Appearance.h"
#include "view/qt/RichTextFormats.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
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
        setFrameShape(QFrame::NoFrame);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
        if (modifiers != Qt::NoModifier || QAccessible::isActive() || !scrollBy(event->key())) {
            QTextEdit::keyPressEvent(event);
        }
    }

    void paintEvent(QPaintEvent* event) override
    {
        QTextEdit::paintEvent(event);
        if (hasFocus()) {
            QPainter painter(viewport());
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
    auto* viewer = new Viewer(parent);
    viewer->setPalette(paperPalette(viewer->palette()));
    auto* document = new QTextDocument(viewer);
    fillTextDocument(*document, text);
    viewer->setDocument(document);
    viewer->setCursorWidth(0); // kept with the document
    return viewer;
}

} // namespace corvellane::view
