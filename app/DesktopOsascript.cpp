#include "app/Installer.h"

#include "platform/qt/QtWorkspace.h"

namespace corvellane {

void DesktopSystem::addDesktopOfItsOwn()
{
    workspace = std::make_shared<QtWorkspace>();
}

} // namespace corvellane
