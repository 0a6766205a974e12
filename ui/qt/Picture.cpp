#include "ui/qt/Picture.h"

#include "ui/qt/TintedPicture.h"
#include "ui/qt/Tones.h"

#include <QPainter>

namespace corvellane {

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

} // namespace corvellane
