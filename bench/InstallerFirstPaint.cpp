#include "app/Installer.h"
#include "bench/FirstPaint.h"
#include "platform/qt/Display.h"

int main(int count, char** arguments)
{
    const QApplication platform = corvellane::applicationOnDisplay(count, arguments);
    corvellane::view::ViewHost::prepareApplication();
    corvellane::Installer installer;
    const corvellane::EndAtFirstPaint end;
    return installer.run();
}
