#pragma once

#include "app/CorvellaneInstallerApp.h"
#include "platform/posix/ExecutableBundle.h"
#include "platform/posix/PosixFiles.h"
#include "platform/posix/PosixShell.h"
#include "platform/posix/PosixStandardFolders.h"
#include "platform/posix/StreamConsole.h"
#include "platform/qt/DBusFileManager.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtDispatcher.h"
#include "platform/qt/QtPasteboard.h"
#include "platform/qt/QtWorkspace.h"
#include "platform/qt/Translations.h"
#include "platform/script/InterpretedScriptService.h"

#include <cstdio>
#include <memory>

namespace corvellane {

/// The whole program: the system's real services and the scene on top of them. Needs the QApplication.
class Installer {
public:
    Installer();

    /// Shows the window and returns when the program is to end, with the exit status.
    int run();

    view::ViewHost& window() { return scene_.window(); }

private:
    QtApplication application_;
    StreamConsole console_{stdout};
    QtDispatcher dispatcher_;
    PosixFiles files_;
    QtPasteboard pasteboard_;
    ExecutableBundle bundle_;
    PosixStandardFolders folders_;
    PosixShell shell_{realUser()};
    std::unique_ptr<AdministratorPrompt> prompt_;
    DBusFileManager fileManager_;
    InterpretedScriptService scripts_;
    QtWorkspace workspace_;
    Translations translations_;
    CorvellaneInstallerApp scene_;
};

} // namespace corvellane
