#include "view/qt/ViewHost.h"

#include "view/qt/Accessibility.h"
#include "view/qt/Appearance.h"

#include <QApplication>
#include <QEvent>
#include <QResizeEvent>

#include <algorithm>
#include <utility>

namespace corvellane::view {

ViewHost::ViewHost(std::function<View()> body, Images images)
    : body_(std::move(body))
    , wait_(*this)
    , widgets_(std::move(images), wait_.isDeaf())
{
    redraw();
}

ViewHost::~ViewHost()
{
    delete root_->standing.widget;
}

void ViewHost::prepareApplication()
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(lightPalette());
    installAccessibility();
}

// Drawing

void ViewHost::scheduleRedraw()
{
    if (!std::exchange(scheduled_, true) && !frozen_) {
        QMetaObject::invokeMethod(this, [this] { redraw(); }, Qt::QueuedConnection);
    }
}

void ViewHost::redraw()
{
    if (frozen_) {
        return;
    }
    scheduled_ = false;
    focus_.remember();
    const Change change = bring(root_, body_(), this, widgets_);
    if (change == Change::room) {
        setLeastSize();
        // A window that has not been shown is laid out by its first size, which is still to come.
        if (!testAttribute(Qt::WA_PendingResizeEvent)) {
            layOut();
        }
    }
    if (change != Change::none) {
        changed_ = true;
        focus_.settle(*root_);
    }
}

void ViewHost::rebuild()
{
    if (frozen_) {
        outdated_ = true;
        return;
    }
    if (scheduled_) {
        redraw();
    }
    const FocusKeeper::Places places = focus_.placesIn(*root_);
    retire(*root_);
    root_ = nullptr;
    redraw();
    focus_.restore(places, *root_);
}

// Waiting

void ViewHost::beginWait()
{
    changed_ = changed_ && !hears();
    frozen_ = true;
    wait_.begin();
}

void ViewHost::endWait()
{
    frozen_ = false;
    if (std::exchange(outdated_, false)) {
        rebuild();
    }
}

void ViewHost::showOutcome()
{
    if (scheduled_) {
        redraw();
    }
    if (changed_) {
        repaint();
    }
    // What was done before this is on the screen has arrived after it, and is dropped.
    QGuiApplication::sync();
    if (!frozen_) {
        wait_.end(changed_);
    }
}

// The window

void ViewHost::setLeastSize()
{
    const Slot slot = root_->slot();
    const int width = slot.widthExtent().minimum;
    const QSize least(width, slot.heightExtent(std::max(width, this->width())).minimum);
    setMinimumSize(least);
}

void ViewHost::layOut()
{
    root_->slot().place(rect(), Placement::centre, Placement::centre, rect());
}

void ViewHost::resizeEvent(QResizeEvent* event)
{
    if (event->size().width() != event->oldSize().width()) {
        setLeastSize();
    }
    layOut();
    wait_.place();
}

void ViewHost::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    const bool looksDifferent = event->type() == QEvent::ApplicationFontChange
        || event->type() == QEvent::LanguageChange || event->type() == QEvent::LayoutDirectionChange;
    if (looksDifferent && root_ != nullptr) {
        QMetaObject::invokeMethod(this, [this] { rebuild(); }, Qt::QueuedConnection);
    }
}

} // namespace corvellane::view
