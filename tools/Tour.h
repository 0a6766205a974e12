#pragma once

#include "tools/WindowRehearsal.h"
#include "tools/WindowUser.h"

#include <string>
#include <vector>

namespace corvellane {

/// Goes through the wizard by mouse and keyboard, past every page, alert and panel and both outcomes, looks whether
/// each step shows what it should, and saves a picture of it.
class Tour {
public:
    /// Absolute paths without a trailing "/"; the folders exist.
    struct Folders {
        std::string products;
        /// Below this the products are installed.
        std::string into;
        std::string pictures;
    };

    Tour(Folders folders, Console& console);

    /// Everything that was not as it should be, in words for a person.
    std::vector<std::string> run();

private:
    struct CountedApplication : Application {
        void terminate() override { ++ends; }
        Menu* mainMenu() override { return nullptr; }
        int ends = 0;
    };

    /// One run of the wizard, whose host folders lie below a folder of its own.
    struct Visit {
        Visit(Tour& tour, const std::string& name);

        CountedApplication application;
        WindowRehearsal wizard;
        WindowUser user;
    };

    void visitToSuccess();
    void visitToFailure();
    void seeAgreement(Visit& visit);
    void seeProducts(Visit& visit);
    void seeConfirmation(Visit& visit);
    void seePermission(Visit& visit);
    void seeLog(Visit& visit);

    void expect(bool holds, const std::string& what);
    void click(Visit& visit, const std::string& label);
    void picture(Visit& visit, const std::string& name);

    Folders folders_;
    Console& console_;
    std::vector<std::string> faults_;
    int pictures_ = 0;
};

} // namespace corvellane
