#include "view/qt/PushButton.h"

#include "view/qt/Appearance.h"
#include "view/qt/Pictures.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

namespace corvellane::view {
namespace {

constexpr int symbolSize = 14;
constexpr int symbolDistance = 6;
constexpr int besideLabel = 12;

/// A symbol grows with the label beside it.
int scaledSymbolSize()
{
    return qRound(symbolSize * textScale());
}

QString withoutMnemonics(QString label)
{
    return label.replace('&', QStringLiteral("&&"));
}

} // namespace

PushButton::PushButton(QWidget* parent, const bool& deaf)
    : QPushButton(parent)
    , deaf_(deaf)
{
    setAutoDefault(false);
    connect(this, &QPushButton::pressed, this, [this] { heard_ = !deaf_; });
    connect(this, &QPushButton::clicked, this, [this] {
        const Action<void()> action = action_;
        if (heard_ && !deaf_) {
            action();
        }
    });
}

void PushButton::present(const Button& button)
{
    action_ = button.action;
    const QString label = localized(button.label);
    isLink_ = button.style == Button::Style::link;
    setFont(fontOf({standardFont.size, button.style == Button::Style::emphasised}));
    setText(withoutMnemonics(label));
    setCursor(isLink_ ? Qt::PointingHandCursor : Qt::ArrowCursor);
    symbol_ = button.symbol;
    setEnabled(button.enabled);
    size_ = measured();
}

int PushButton::labelWidth() const
{
    return fontMetrics().size(Qt::TextShowMnemonic, text()).width();
}

int PushButton::contentWidth() const
{
    return symbol_.empty() ? labelWidth() : scaledSymbolSize() + symbolDistance + labelWidth();
}

QSize PushButton::measured() const
{
    if (isLink_) {
        return {labelWidth() + 2, fontMetrics().height() + 2};
    }
    const QSize usual = sizeHint();
    return {std::max(usual.width(), contentWidth() + 2 * besideLabel), usual.height()};
}

Extent PushButton::widthExtent() const
{
    return {size_.width(), size_.width()};
}

Extent PushButton::heightExtent(int) const
{
    return {size_.height(), size_.height()};
}

/// Behind an alert a button cannot be used, but looks as it did before.
void PushButton::initStyleOption(QStyleOptionButton* option) const
{
    QPushButton::initStyleOption(option);
    if (!testAttribute(Qt::WA_ForceDisabled)) {
        option->state |= QStyle::State_Enabled;
        option->palette.setCurrentColorGroup(QPalette::Active);
    }
}

void PushButton::paintEvent(QPaintEvent* event)
{
    if (isLink_) {
        paintLink();
    } else if (!symbol_.empty()) {
        paintWithSymbol();
    } else {
        QPushButton::paintEvent(event);
    }
}

/// The style would set a label that reads from right to left against the edge.
void PushButton::paintWithSymbol()
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    painter.drawControl(QStyle::CE_PushButton, option);
    const int size = scaledSymbolSize();
    const int left = (width() - contentWidth()) / 2;
    const QRect picture = QStyle::visualRect(layoutDirection(), rect(), {left, (height() - size) / 2, size, size});
    painter.drawPixmap(
        picture.topLeft(), symbolPicture(symbol_, colorOf(Tint::label), picture.size(), devicePixelRatioF()));
    const QRect words
        = QStyle::visualRect(layoutDirection(), rect(), {left + size + symbolDistance, 0, labelWidth(), height()});
    painter.setPen(option.palette.color(QPalette::ButtonText));
    painter.drawText(words, Qt::AlignCenter | Qt::TextShowMnemonic, text());
}

void PushButton::paintLink()
{
    QPainter painter(this);
    QFont underlined = font();
    underlined.setUnderline(underMouse() || hasFocus());
    painter.setFont(underlined);
    painter.setPen(palette().color(QPalette::Link));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, text());
}

void PushButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        return QPushButton::keyPressEvent(event);
    }
    if (!event->isAutoRepeat()) {
        click();
    }
}

void PushButton::enterEvent(QEnterEvent* event)
{
    QPushButton::enterEvent(event);
    update();
}

void PushButton::leaveEvent(QEvent* event)
{
    QPushButton::leaveEvent(event);
    update();
}

} // namespace corvellane::view
