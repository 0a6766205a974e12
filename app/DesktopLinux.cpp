#include "app/Installer.h"

#include "platform/qt/DBusFileManager.h"
#include "platform/qt/FreedesktopWorkspace.h"

namespace corvellane {

void DesktopSystem::addDesktopOfItsOwn()
{
    fileManager = std::make_shared<DBusFileManager>();
    workspace = std::make_shared<FreedesktopWorkspace>();
}

} // namespace corvellane
