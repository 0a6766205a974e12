#include "app/Installer.h"
#include "bench/FirstPaint.h"
#include "platform/posix/ProcessSetup.h"
#include "platform/qt/Display.h"

// The program's own main, but for the end.
int main(int count, char** arguments)
{
    corvellane::setUpProcess();
    QGuiApplication::setDesktopFileName("com.corvellane.PluginInstaller");
    const QApplication platform = corvellane::applicationOnDisplay(count, arguments);
    corvellane::view::ViewHost::prepareApplication();
    corvellane::Installer installer;
    const corvellane::EndAtFirstPaint end;
    return installer.run();
}
