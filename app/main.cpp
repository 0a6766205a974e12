#include "app/Installer.h"

#include <QApplication>

int main(int count, char** arguments)
{
    const QApplication platform(count, arguments);
    corvellane::ViewHost::prepareApplication();
    return corvellane::Installer().run();
}
