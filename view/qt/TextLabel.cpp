#include "view/qt/TextLabel.h"

#include "view/qt/Accessibility.h"
#include "view/qt/Appearance.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace corvellane::view {
namespace {

int widestStretch(const QFontMetrics& metrics, const QString& text)
{
    QTextBoundaryFinder breaks(QTextBoundaryFinder::Line, text);
    int widest = 0;
    for (qsizetype begin = 0, end = breaks.toNextBoundary(); end > 0; begin = end, end = breaks.toNextBoundary()) {
        widest = std::max(widest, metrics.horizontalAdvance(text.mid(begin, end - begin).trimmed()));
    }
    return widest;
}

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
    const int natural = fontMetrics().size(0, this->text()).width() + 1;
    widths_ = {std::min(natural, widestStretch(fontMetrics(), this->text()) + 1), natural};
    measuredWidth_ = -1;
    balance(); // another text may stand in the same room
    describeForAssistance(*this, text.remark.empty() ? QString() : localized(text.remark));
}

Extent TextLabel::widthExtent() const
{
    return widths_;
}

Extent TextLabel::heightExtent(int width) const
{
    if (width != measuredWidth_) {
        measuredHeight_ = measuredHeight(width);
        measuredWidth_ = width;
    }
    return {measuredHeight_, measuredHeight_};
}

/// The least width that takes no more lines.
int TextLabel::balancedWidth(int width) const
{
    const int height = measuredHeight(width);
    int least = widths_.minimum;
    for (int most = width; least < most;) {
        const int middle = least + (most - least) / 2;
        if (measuredHeight(middle) <= height) {
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

int TextLabel::measuredHeight(int width) const
{
    if (width >= widths_.maximum) {
        return fontMetrics().size(0, text()).height();
    }
    return fontMetrics().boundingRect(0, 0, width, unbounded, Qt::TextWordWrap | Qt::AlignLeft, text()).height();
}

} // namespace corvellane::view
