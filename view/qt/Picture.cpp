#include "view/qt/Picture.h"

#include "view/qt/TintedPicture.h"
#include "view/qt/Tones.h"

#include <QPainter>

namespace corvellane::view {

void Picture::present(const QString& file, Tint tint)
{
    file_ = file;
    tint_ = tint;
    update();
}

void Picture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, tintedPicture(file_, colorOf(tint_), size(), devicePixelRatioF()));
}

} // namespace corvellane::view
