#include "app/Installer.h"
#include "platform/posix/ProcessSetup.h"
#include "platform/qt/Display.h"

int main(int count, char** arguments)
{
    corvellane::setUpProcess();
    const QApplication platform = corvellane::applicationOnDisplay(count, arguments);
    corvellane::view::ViewHost::prepareApplication();
    return corvellane::Installer().run();
}
