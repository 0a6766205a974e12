#include "platform/qt/QtApplication.h"

#include "platform/qt/MenuOffer.h"

#include <QCoreApplication>
#include <QWidget>

namespace corvellane {

namespace {

void requestEnd()
{
    QMetaObject::invokeMethod(QCoreApplication::instance(), [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
}

void zoom(QWidget& window)
{
    window.setWindowState(window.windowState() ^ Qt::WindowMaximized);
}

} // namespace

QtApplication::QtApplication()
    : menu_({
          {"Corvellane Plugin Installer", {{"Quit", [](QWidget&) { requestEnd(); }}}},
          {"File", {}},
          {"Edit", {}},
          {"View", {}},
          {"Window", {{"Minimize", [](QWidget& window) { window.showMinimized(); }}, {"Zoom", zoom}}},
      })
{
}

void QtApplication::terminate()
{
    requestEnd();
}

void QtApplication::offerMainMenu(QWidget& window, std::function<bool()> hears)
{
    new MenuOffer(menu_, window, std::move(hears));
}

} // namespace corvellane
