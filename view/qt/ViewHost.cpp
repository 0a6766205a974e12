#include "view/qt/ViewHost.h"

#include "view/qt/Accessibility.h"
#include "view/qt/Tones.h"

#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QResizeEvent>

#include <algorithm>
#include <utility>

namespace corvellane::view {

ViewHost::ViewHost(std::function<View()> body, const Resources& resources)
    : body_(std::move(body))
    , reconciler_(resources)
{
    redraw();
}

ViewHost::~ViewHost() = default;

void ViewHost::prepareApplication()
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(lightPalette());
    installAccessibility();
}

void ViewHost::scheduleRedraw()
{
    if (!std::exchange(scheduled_, true)) {
        QMetaObject::invokeMethod(this, [this] { redraw(); }, Qt::QueuedConnection);
    }
}

void ViewHost::redraw()
{
    scheduled_ = false;
    focus_.remember();
    if (reconciler_.update(root_, body_(), this)) {
        setLeastSize();
        layOut();
        focus_.settle(*root_);
    }
}

void ViewHost::setLeastSize()
{
    const Slot slot = Reconciler::slotOf(*root_);
    const int width = slot.widthExtent().minimum;
    const QSize least(width, slot.heightExtent(std::max(width, this->width())).minimum);
    setMinimumSize(least);
}

void ViewHost::layOut()
{
    Reconciler::slotOf(*root_).place(rect(), Placement::centre, Placement::centre);
    if (QLayout* const layout = root_->widget->layout()) {
        layout->setGeometry(root_->widget->contentsRect());
    }
}

void ViewHost::resizeEvent(QResizeEvent* event)
{
    if (event->size().width() != event->oldSize().width()) {
        setLeastSize();
    }
    layOut();
}

void ViewHost::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    const bool looksDifferent
        = event->type() == QEvent::ApplicationFontChange || event->type() == QEvent::LanguageChange;
    if (looksDifferent && root_ != nullptr) {
        root_->shown.identity += '*';
        scheduleRedraw();
    }
}

} // namespace corvellane::view
