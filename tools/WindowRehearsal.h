#pragma once

#include "app/CorvellaneInstallerApp.h"
#include "platform/Application.h"
#include "platform/Workspace.h"
#include "platform/posix/DirectPrompt.h"
#include "platform/posix/PosixFiles.h"
#include "platform/posix/PosixShell.h"
#include "platform/posix/PosixStandardFolders.h"
#include "platform/qt/QtDispatcher.h"
#include "platform/qt/QtPasteboard.h"
#include "platform/script/FileManager.h"
#include "platform/script/InterpretedScriptService.h"
#include "tools/Rehearsal.h"

#include <atomic>
#include <string>

namespace corvellane {

/// The wizard with its window, on the system's real services but for these: the host folders lie below a scratch
/// folder, nobody is asked for a password, nothing is opened, and the file manager takes requests only when told to.
class WindowRehearsal {
public:
    /// Both folders are absolute paths without a trailing "/".
    WindowRehearsal(
        const std::string& productsFolder, const std::string& into, Application& application, Console& console);

    AppSettings& settings() { return scene_.settings(); }
    view::ViewHost& window() { return scene_.window(); }

    /// What the wizard wanted to have opened last.
    const std::string& openedUrl() const { return workspace_.url; }
    void allowAutomation() { fileManager_.allowed = true; }

private:
    struct NotedWorkspace : Workspace {
        bool openUrl(const std::string& wanted) override
        {
            url = wanted;
            return false;
        }
        std::string url;
    };
    struct ToldFileManager : FileManager {
        bool acceptsRequests() override { return allowed; }
        std::atomic<bool> allowed = false;
    };

    NotedWorkspace workspace_;
    ToldFileManager fileManager_;
    QtDispatcher dispatcher_;
    QtPasteboard pasteboard_;
    PosixFiles files_;
    RehearsalResources resources_;
    PosixStandardFolders folders_;
    PosixShell shell_{realUser()};
    DirectPrompt prompt_{realUser()};
    InterpretedScriptService scripts_{{shell_, prompt_, fileManager_, folders_}};
    CorvellaneInstallerApp scene_;
};

} // namespace corvellane
