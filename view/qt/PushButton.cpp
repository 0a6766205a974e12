#include "view/qt/PushButton.h"

#include "view/qt/Appearance.h"
#include "view/qt/Pictures.h"

#include <QIcon>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionButton>

#include <algorithm>

namespace corvellane::view {
namespace {

constexpr int symbolSize = 14;
constexpr int symbolDistance = 4;
constexpr int besideLabel = 12;

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
    const int size = qRound(symbolSize * textScale());
    setIconSize({size + symbolDistance, size});
    setIcon(button.symbol.empty() ? QIcon() : symbolIcon(button.symbol, size));
    setEnabled(button.enabled);
}

/// The symbol, and the distance that the label keeps from it.
QIcon PushButton::symbolIcon(const std::string& symbol, int size) const
{
    const double ratio = devicePixelRatioF();
    QPixmap picture((QSizeF(iconSize()) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter(&picture).drawPixmap(
        isRightToLeft() ? symbolDistance : 0, 0, tintedPicture(symbolFile(symbol), colorOf(Tint::label), {size, size}, ratio));
    return picture;
}

Extent PushButton::widthExtent() const
{
    const int label = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
    const int symbol = icon().isNull() ? 0 : iconSize().width() + symbolDistance;
    const int width = isLink_ ? label + 2 : std::max(sizeHint().width(), symbol + label + 2 * besideLabel);
    return {width, width};
}

Extent PushButton::heightExtent(int) const
{
    const int height = isLink_ ? fontMetrics().height() + 2 : sizeHint().height();
    return {height, height};
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
    } else {
        QPushButton::paintEvent(event);
    }
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
