#include "app/Installer.h"

#include "app/AppDelegate.h"
#include "app/DesktopName.h"
#include "app/WaitingWindow.h"
#include "app/WindowIcon.h"
#include "platform/Resources.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtDispatcher.h"
#include "platform/qt/QtPasteboard.h"

#include <QApplication>
#include <QLocale>

#include <utility>

namespace corvellane {

DesktopSystem::DesktopSystem()
    : qtApplication(std::make_shared<QtApplication>())
    , qtDispatcher(std::make_shared<QtDispatcher>())
{
    application = qtApplication;
    dispatcher = qtDispatcher;
    pasteboard = std::make_shared<QtPasteboard>();
    addDesktopOfItsOwn();
}

Installer::Installer(DesktopSystem system, const std::string& translations)
    : system_(std::move(system))
    , translations_(*system_.files, translations, QLocale::system().uiLanguages())
    , scene_(system_.platform())
{
    nameForDesktop(*system_.resources, *system_.files);
    AppDelegate::applicationDidFinishLaunching(*system_.application);
    showIcon(window(), *system_.resources, *system_.files);
    showWaits(*system_.qtDispatcher, window());
    window().setPartDone([meter = system_.meter] { return meter->partDone(); });
    system_.qtApplication->offerMainMenu(window(), [this] { return window().hears(); });
    QApplication::setQuitOnLastWindowClosed(
        AppDelegate::applicationShouldTerminateAfterLastWindowClosed(*system_.application));
}

Installer::Installer(const DesktopSystem& system)
    : Installer(system, system.resources->folder("translations").value_or(""))
{
}

int Installer::run()
{
    window().show();
    return QApplication::exec();
}

} // namespace corvellane
