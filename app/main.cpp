#include "app/Installer.h"
#include "platform/posix/ProcessSetup.h"

#include <QApplication>

int main(int count, char** arguments)
{
    corvellane::setUpProcess();
    QGuiApplication::setDesktopFileName("com.corvellane.PluginInstaller");
    const QApplication platform(count, arguments);
    corvellane::view::ViewHost::prepareApplication();
    return corvellane::Installer().run();
}
