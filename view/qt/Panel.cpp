#include "view/qt/Panel.h"

#include "view/qt/Appearance.h"
#include "view/qt/Layout.h"

#include <QPainter>

namespace corvellane::view {
namespace {

Extent widened(Extent content, int line)
{
    return {sumOf(content.minimum, line), sumOf(content.maximum, line)};
}

} // namespace

Panel::Panel(QWidget* parent)
    : QWidget(parent)
    , layout_(new ViewLayout(this))
{
}

void Panel::present(const ViewLayout::Arrangement& arrangement, const Backdrop& backdrop, bool modal)
{
    layout_->setArrangement(arrangement);
    showBackdrop(backdrop);
    modal_ = modal;
    setAttribute(Qt::WA_NoMousePropagation, modal);
}

void Panel::showBackdrop(const Backdrop& backdrop)
{
    if (backdrop != backdrop_) {
        backdrop_ = backdrop;
        setAttribute(Qt::WA_OpaquePaintEvent, backdrop.fill && backdrop.cornerRadius == 0);
        const int line = backdrop.border ? 1 : 0;
        setContentsMargins(line, line, line, line);
        update();
    }
}

Extent Panel::widthExtent() const
{
    const QMargins line = contentsMargins();
    return widened(layout_->widthExtent(), line.left() + line.right());
}

Extent Panel::heightExtent(int width) const
{
    const QMargins line = contentsMargins();
    return widened(layout_->heightExtent(width - line.left() - line.right()), line.top() + line.bottom());
}

void Panel::paintEvent(QPaintEvent*)
{
    if (!backdrop_.fill && !backdrop_.border) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, backdrop_.cornerRadius > 0);
    painter.setPen(Qt::NoPen);
    if (backdrop_.fill) {
        painter.setBrush(colorOf(*backdrop_.fill));
        painter.drawRoundedRect(rect(), backdrop_.cornerRadius, backdrop_.cornerRadius);
    }
    if (backdrop_.border) {
        painter.setBrush(colorOf(*backdrop_.border));
        painter.drawRects(QList<QRect>{QRect(0, 0, width(), 1), QRect(0, height() - 1, width(), 1),
            QRect(0, 1, 1, height() - 2), QRect(width() - 1, 1, 1, height() - 2)});
    }
}

void FillArea::present(const Fill& fill)
{
    fill_ = fill;
    update();
}

void FillArea::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setOpacity(fill_.opacity);
    painter.fillRect(rect(), colorOf(fill_.tint));
}

} // namespace corvellane::view
