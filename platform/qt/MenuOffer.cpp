#include "platform/qt/MenuOffer.h"

#include "platform/qt/QtMenu.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

#include <chrono>
#include <utility>

namespace corvellane {

namespace {

bool asksForMenu(const QEvent& event)
{
    if (event.type() == QEvent::KeyPress) {
        const auto& key = static_cast<const QKeyEvent&>(event);
        return key.key() == Qt::Key_F10 && key.modifiers() == Qt::NoModifier;
    }
    return event.type() == QEvent::ContextMenu
        && static_cast<const QContextMenuEvent&>(event).reason() == QContextMenuEvent::Keyboard;
}

} // namespace

MenuOffer::MenuOffer(const QtMenu& menu, QWidget& window, std::function<bool()> hears)
    : QObject(&window)
    , menu_(menu)
    , window_(window)
    , hears_(std::move(hears))
{
    window.installEventFilter(this);
    // Finding out whether the desktop has a menu bar of its own asks the session bus; the first picture goes first.
    QTimer::singleShot(std::chrono::milliseconds(500), this, [this] { exportToDesktop(); });
}

void MenuOffer::exportToDesktop()
{
    auto* bar = new QMenuBar(&window_);
    exported_ = bar->isNativeMenuBar();
    if (!exported_) {
        delete bar;
        return;
    }
    for (QMenu* const menu : menu_.makeMenus(window_, bar, hears_)) {
        bar->addMenu(menu);
    }
}

bool MenuOffer::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != &window_ || exported_ || !asksForMenu(*event)) {
        return QObject::eventFilter(watched, event);
    }
    popUp();
    return true;
}

void MenuOffer::popUp()
{
    auto* popup = new QMenu(&window_);
    popup->setAttribute(Qt::WA_DeleteOnClose);
    for (QMenu* const menu : menu_.makeMenus(window_, popup, hears_)) {
        popup->addMenu(menu);
    }
    popup->popup(window_.mapToGlobal(QPoint(0, 0)));
}

} // namespace corvellane
