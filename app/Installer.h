#pragma once

#include "app/CorvellaneInstallerApp.h"
#include "platform/posix/DirectPrompt.h"
#include "platform/posix/ExecutableBundle.h"
#include "platform/posix/PosixFileListing.h"
#include "platform/posix/PosixShell.h"
#include "platform/posix/PosixStandardFolders.h"
#include "platform/posix/StandardOutput.h"
#include "platform/qt/DBusFileManager.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtDispatcher.h"
#include "platform/qt/QtPasteboard.h"
#include "platform/qt/QtWorkspace.h"
#include "platform/qt/Translations.h"
#include "platform/script/InterpretedScriptService.h"

namespace corvellane {

/// The whole program: the system's real services and the scene on top of them. Needs the QApplication.
class Installer {
public:
    Installer();

    /// Shows the window and returns when the program is to end, with the exit status.
    int run();

    ViewHost& window() { return scene_.window(); }

private:
    QtApplication application_;
    StandardOutput console_;
    QtDispatcher dispatcher_;
    PosixFileListing files_;
    QtPasteboard pasteboard_;
    ExecutableBundle bundle_;
    PosixStandardFolders folders_;
    PosixShell shell_{realUser()};
    DirectPrompt prompt_{realUser(), DirectPrompt::Use::install};
    DBusFileManager fileManager_;
    InterpretedScriptService scripts_{{shell_, prompt_, fileManager_, folders_}};
    QtWorkspace workspace_;
    Translations translations_;
    CorvellaneInstallerApp scene_;
};

} // namespace corvellane
