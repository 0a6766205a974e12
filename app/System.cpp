#include "app/System.h"

#include "platform/Application.h"
#include "platform/Pasteboard.h"
#include "platform/Resources.h"
#include "platform/ScriptService.h"
#include "platform/Workspace.h"
#include "platform/posix/PosixFiles.h"
#include "platform/posix/PosixStandardFolders.h"
#include "platform/posix/QueueDispatcher.h"
#include "platform/posix/StreamConsole.h"

namespace corvellane {
namespace {

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

struct NoFileManager : script::FileManager {
    bool acceptsRequests() override { return false; }
};

} // namespace

System::System(const UserAccount& person, script::PasswordAsked passwordAsked)
    : application(std::make_shared<NoApplication>())
    , console(std::make_shared<StreamConsole>(stdout))
    , files(std::make_shared<PosixFiles>())
    , folders(std::make_shared<PosixStandardFolders>(std::string(), person))
    , pasteboard(std::make_shared<NoPasteboard>())
    , workspace(std::make_shared<NoWorkspace>())
    , fileManager(std::make_shared<NoFileManager>())
    , meter(std::make_shared<WorkMeter>())
    , dispatcher(std::make_shared<QueueDispatcher>())
{
    addServicesOfItsOwn(person, passwordAsked);
}

Platform System::platform()
{
    if (scripts == nullptr) {
        scripts = makeScripts();
    }
    return {*application, *console, *dispatcher, *files, *pasteboard, *resources, *scripts, *folders, *workspace};
}

} // namespace corvellane
