#include "app/DesktopSystem.h"

#include "platform/qt/DBusFileManager.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtDispatcher.h"
#include "platform/qt/QtPasteboard.h"
#include "platform/qt/QtWorkspace.h"

namespace corvellane {

DesktopSystem::DesktopSystem()
    : qtApplication(std::make_shared<QtApplication>())
    , qtDispatcher(std::make_shared<QtDispatcher>())
{
    application = qtApplication;
    dispatcher = qtDispatcher;
    fileManager = std::make_shared<DBusFileManager>();
    pasteboard = std::make_shared<QtPasteboard>();
    workspace = std::make_shared<QtWorkspace>();
}

} // namespace corvellane
