#pragma once

#include "app/Installer.h"
#include "platform/Application.h"
#include "platform/Workspace.h"
#include "tests/tour/WindowUser.h"

#include <atomic>
#include <string>
#include <vector>

namespace corvellane {

/// Goes through the wizard by mouse and keyboard, past every page, alert and panel and both outcomes, looks whether
/// each step shows what it should, and saves a picture of it.
class Tour {
public:
    /// Absolute paths without a trailing "/"; the products' exists.
    struct Folders {
        std::string products;
        /// Below this the products are installed.
        std::string into;
        std::string pictures;
        /// Where the tables of translated texts lie; may be empty.
        std::string translations;
    };

    explicit Tour(Folders folders)
        : folders_(std::move(folders))
    {
    }

    /// Everything that was not as it should be, in words for a person.
    std::vector<std::string> run();

private:
    /// One run of the wizard, a rehearsal whose host folders lie below a folder of its own. Stands in for what would
    /// leave the window: the program's end, the browser, and the permission to use the file manager.
    struct Visit : Application, Workspace, script::FileManager {
        Visit(Tour& tour, const std::string& name);

        void terminate() override { ended = true; }
        Menu* mainMenu() override { return nullptr; }
        bool openUrl(const std::string& url) override
        {
            openedUrl = url;
            return false;
        }
        bool acceptsRequests() override { return allowed; }

        bool ended = false;
        std::string openedUrl;
        std::atomic<bool> allowed = false;
        Installer wizard;
        WindowUser user;

    private:
        DesktopSystem systemFor(const Folders& folders, const std::string& name);
    };

    void visitToSuccess();
    void visitToFailure();
    void seeAgreement(Visit& visit);
    void seeProducts(Visit& visit);
    void seePermission(Visit& visit);
    void seeLog(Visit& visit);

    void expect(bool holds, const std::string& what);
    void click(Visit& visit, const std::string& label);
    void picture(Visit& visit, const std::string& name);

    Folders folders_;
    std::vector<std::string> faults_;
    int pictures_ = 0;
};

} // namespace corvellane
