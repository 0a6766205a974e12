#include "app/DesktopSystem.h"

#include "platform/qt/DBusFileManager.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtDispatcher.h"
#include "platform/qt/QtPasteboard.h"
#include "platform/qt/QtWorkspace.h"

namespace corvellane {

DesktopSystem::DesktopSystem()
    : desktop(std::make_shared<QtApplication>())
{
    application = desktop;
    dispatcher = std::make_shared<QtDispatcher>();
    fileManager = std::make_shared<DBusFileManager>();
    pasteboard = std::make_shared<QtPasteboard>();
    workspace = std::make_shared<QtWorkspace>();
}

} // namespace corvellane
