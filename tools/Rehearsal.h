#pragma once

#include "platform/Application.h"
#include "platform/Pasteboard.h"
#include "platform/Resources.h"
#include "platform/Workspace.h"
#include "platform/posix/DirectPrompt.h"
#include "platform/posix/PosixFiles.h"
#include "platform/posix/PosixShell.h"
#include "platform/posix/PosixStandardFolders.h"
#include "platform/posix/QueueDispatcher.h"
#include "platform/script/FileManager.h"
#include "platform/script/InterpretedScriptService.h"
#include "state/AppSettings.h"

#include <string>
#include <utility>

namespace corvellane {

/// The resources of a rehearsal: a products folder wherever its maker keeps it.
class RehearsalResources : public Resources {
public:
    explicit RehearsalResources(std::string productsFolder)
        : productsFolder_(std::move(productsFolder))
    {
    }
    std::optional<std::string> folder(const std::string& name) const override;
    std::optional<std::string> file(const std::string& baseName, const std::string& extension) const override;

private:
    std::string productsFolder_;
};

/// The installer's own state on the system's real services, without a window and without a prompt: what is installed
/// really is, by the present user, into the host folders below a scratch folder.
class Rehearsal {
public:
    /// Both folders are absolute paths without a trailing "/"; `into` may be empty, which leaves the host folders where
    /// the system has them.
    Rehearsal(const std::string& productsFolder, const std::string& into, Console& console);

    /// The state, filled from the products folder.
    AppSettings& settings() { return *settings_; }

    /// Goes through the wizard's pages as a person would who agrees to everything, and returns when it has ended.
    void install();

private:
    struct NoApplication : Application {
        void terminate() override { }
        Menu* mainMenu() override { return nullptr; }
    };
    struct NoPasteboard : Pasteboard {
        void clearContents() override { }
        bool setString(const std::string&) override { return false; }
    };
    struct NoWorkspace : Workspace {
        bool openUrl(const std::string&) override { return false; }
    };
    struct NoFileManager : FileManager {
        bool acceptsRequests() override { return false; }
    };

    NoApplication application_;
    NoPasteboard pasteboard_;
    NoWorkspace workspace_;
    NoFileManager fileManager_;
    QueueDispatcher dispatcher_;
    PosixFiles files_;
    RehearsalResources resources_;
    PosixStandardFolders folders_;
    PosixShell shell_{realUser()};
    DirectPrompt prompt_{realUser()};
    InterpretedScriptService scripts_{{shell_, prompt_, fileManager_, folders_}};
    std::shared_ptr<AppSettings> settings_;
};

} // namespace corvellane
