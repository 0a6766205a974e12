#pragma once

#include "platform/Platform.h"
#include "platform/posix/UserAccount.h"
#include "platform/posix/WorkMeter.h"
#include "platform/script/FileManager.h"
#include "platform/script/Shell.h"

#include <memory>

namespace corvellane {

/// All services of the system that the program was built for. Any of them may be exchanged before `platform` is asked
/// for.
struct System {
    /// As a program without a window has them: no menu, no pasteboard, no one to open an address, and a file manager
    /// that takes no requests. What lies in a home lies in that of the person; only for root can that be another than
    /// the one at the screen.
    explicit System(
        const UserAccount& person = realUser(), script::PasswordAsked passwordAsked = script::PasswordAsked::onDesktop);

    /// The services that stand here now. They live as long as this or a copy of it.
    Platform platform();

    /// Asks nobody: installs from that products folder below the folder `into`, by the present user. Paths are absolute
    /// and have no "/" at their end. None where the system has a script service of its own.
    std::shared_ptr<script::AdministratorPrompt> makeRehearsalPrompt(
        const std::string& products, const std::string& into) const;

    std::shared_ptr<Application> application;
    std::shared_ptr<Console> console;
    std::shared_ptr<Files> files;
    std::shared_ptr<StandardFolders> folders;
    std::shared_ptr<Pasteboard> pasteboard;
    std::shared_ptr<Resources> resources;
    std::shared_ptr<Workspace> workspace;

    /// What scripts reach where the system has no script service of its own; elsewhere there is no shell and no prompt.
    std::shared_ptr<script::Shell> shell;
    std::shared_ptr<script::AdministratorPrompt> prompt;
    std::shared_ptr<script::FileManager> fileManager;
    std::shared_ptr<WorkMeter> meter;

    /// Made of the others by `platform` when there is none.
    std::shared_ptr<ScriptService> scripts;
    /// Goes first, because what it has still to do needs the others.
    std::shared_ptr<Dispatcher> dispatcher;

private:
    // One file a system: SystemLinux.cpp, SystemOsascript.cpp.
    void addServicesOfItsOwn(const UserAccount& person, script::PasswordAsked passwordAsked);
    std::shared_ptr<ScriptService> makeScripts() const;
};

} // namespace corvellane
