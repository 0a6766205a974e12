#include "app/Installer.h"
#include "bench/FirstPaint.h"

#include <QApplication>

int main(int count, char** arguments)
{
    const QApplication platform(count, arguments);
    corvellane::view::ViewHost::prepareApplication();
    corvellane::Installer installer;
    const corvellane::EndAtFirstPaint end;
    return installer.run();
}
