#include "view/qt/TextLabel.h"

#include "view/qt/Accessibility.h"
#include "view/qt/Appearance.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace corvellane::view {
namespace {

/// No line ends in a word of one or two letters, which belongs to the next one.
QString withShortWordsBound(QString text)
{
    qsizetype begin = 0;
    for (qsizetype at = text.indexOf(' '); at >= 0; at = text.indexOf(' ', begin)) {
        const bool isShort = at - begin <= 2 && begin > 0;
        if (isShort && text[begin].isLetter()) {
            text[at] = QChar::Nbsp;
        }
        begin = at + 1;
    }
    return text;
}

} // namespace

TextLabel::TextLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

QString TextLabel::wordsOf(const Text& text)
{
    return text.localizable ? localized(text.text) : QString::fromStdString(text.text);
}

void TextLabel::present(const Text& text)
{
    setFont(fontOf(text.font));
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, colorOf(text.tint));
    setPalette(colors);
    setAlignment(text.lines == Placement::centre ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
    setFocusPolicy(text.announcement == Announcement::focused ? Qt::TabFocus : Qt::NoFocus);
    // The name first: a label that has one tells of no other when its text changes.
    nameForAssistance(*this, wordsOf(text));
    setText(withShortWordsBound(wordsOf(text)));
    measure();
    if (!testAttribute(Qt::WA_PendingResizeEvent)) {
        balance(); // another text may stand in the same room
    }
    describeForAssistance(*this, text.remark.empty() ? QString() : localized(text.remark));
}

Extent TextLabel::widthExtent() const
{
    return widths_;
}

Extent TextLabel::heightExtent(int width) const
{
    if (width < widths_.maximum && width != measuredWidth_) {
        measuredHeight_ = qCeil(sizeInLines(width).height());
        measuredWidth_ = width;
    }
    const int height = width < widths_.maximum ? measuredHeight_ : naturalHeight_;
    return {height, height};
}

/// The least width that takes no more lines.
int TextLabel::balancedWidth(int width) const
{
    const int height = heightExtent(width).minimum;
    int least = widths_.minimum;
    for (int most = width; least < most;) {
        const int middle = least + (most - least) / 2;
        if (sizeInLines(middle).height() <= height) {
            most = middle;
        } else {
            least = middle + 1;
        }
    }
    return least;
}

void TextLabel::balance()
{
    const int spare = width() < widths_.maximum ? width() - balancedWidth(width()) : 0;
    const int before = alignment().testFlag(Qt::AlignHCenter) ? spare / 2 : 0;
    const int after = spare - before;
    setContentsMargins(isRightToLeft() ? after : before, 0, isRightToLeft() ? before : after, 0);
}

void TextLabel::resizeEvent(QResizeEvent* event)
{
    balance();
    QLabel::resizeEvent(event);
}

/// Draws the lines that were measured: their letters have been shaped.
void TextLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRectF room = contentsRect();
    const double above = (room.height() - sizeInLines(contentsRect().width()).height()) / 2;
    const double atBeginning = text().isRightToLeft() ? 1 : 0;
    const double part = alignment().testFlag(Qt::AlignHCenter) ? 0.5 : atBeginning;
    for (int index = 0; index < lines_.lineCount(); ++index) {
        const QTextLine line = lines_.lineAt(index);
        const double before = (room.width() - line.horizontalAdvance()) * part;
        line.draw(&painter, {room.left() + before, room.top() + above});
    }
}

void TextLabel::measure()
{
    lines_.setText(text().replace('\n', QChar::LineSeparator));
    lines_.setFont(font());
    lines_.beginLayout();
    leading_ = QFontMetricsF(font()).leading();
    const QSizeF natural = sizeInLines(unbounded);
    widths_.maximum = qCeil(natural.width()) + 1;
    widths_.minimum = std::min(widths_.maximum, qCeil(lines_.minimumWidth()) + 1);
    naturalHeight_ = qCeil(natural.height());
    measuredWidth_ = -1;
}

/// Sets the text in lines of that width, and gives its size.
QSizeF TextLabel::sizeInLines(int width) const
{
    double widest = 0;
    double height = -leading_;
    lines_.clearLayout();
    for (QTextLine line = lines_.createLine(); line.isValid(); line = lines_.createLine()) {
        line.setLineWidth(width);
        widest = std::max(widest, line.naturalTextWidth());
        line.setPosition({0, std::ceil(height + leading_)});
        height = line.y() + line.ascent() + line.descent();
    }
    return {widest, height};
}

} // namespace corvellane::view
