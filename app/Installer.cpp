#include "app/Installer.h"

#include "app/AppDelegate.h"

#include <QApplication>

namespace corvellane {

Installer::Installer()
    : translations_(bundle_.folder("translations").value_or(""), QLocale::system())
    , scene_({application_, console_, dispatcher_, files_, pasteboard_, bundle_, scripts_, folders_, workspace_})
{
    AppDelegate::applicationDidFinishLaunching(application_);
    application_.offerMainMenu(window());
    QApplication::setQuitOnLastWindowClosed(AppDelegate::applicationShouldTerminateAfterLastWindowClosed(application_));
}

int Installer::run()
{
    window().show();
    return QApplication::exec();
}

} // namespace corvellane
