#pragma once

#include "platform/Application.h"
#include "platform/Console.h"
#include "platform/Dispatcher.h"
#include "platform/Files.h"
#include "platform/Menu.h"
#include "platform/Pasteboard.h"
#include "platform/Platform.h"
#include "platform/Resources.h"
#include "platform/ScriptService.h"
#include "platform/StandardFolders.h"
#include "platform/Workspace.h"

#include <deque>
#include <initializer_list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace corvellane {

/// All that happens in a small world, in its order, a line each.
using Journal = std::vector<std::string>;

/// Part of a world, whose journal it writes; alone it has one of its own.
struct Witness {
    void note(std::string line) const { journal->push_back(std::move(line)); }
    std::shared_ptr<Journal> journal = std::make_shared<Journal>();
};

struct FakeMenu : Menu {
    std::vector<std::string> itemTitles() const override { return titles; }
    void removeItem(std::size_t index) override { titles.erase(titles.begin() + static_cast<std::ptrdiff_t>(index)); }
    std::vector<std::string> titles;
};

struct FakeApplication : Application, Witness {
    void terminate() override
    {
        note("terminate");
        ++terminations;
    }
    Menu* mainMenu() override { return menu ? &*menu : nullptr; }
    int terminations = 0;
    std::optional<FakeMenu> menu;
};

struct FakeConsole : Console, Witness {
    void print(std::string_view text) override { note("print " + lines.emplace_back(text)); }
    std::vector<std::string> lines;
};

/// Keeps background tasks until somebody waits, and those of the main queue until they are asked for; is its own and
/// only wait group.
struct FakeDispatcher : Dispatcher, WaitGroup, Witness {
    void submitToBackground(Task task) override
    {
        note("submit to the background");
        background.push_back(std::move(task));
    }
    void submitToMain(Task task) override
    {
        note("submit to the main queue");
        mainQueue.push_back(std::move(task));
    }
    std::shared_ptr<WaitGroup> makeWaitGroup() override { return {std::shared_ptr<void>(), this}; }

    void enter() override { note("enter"); }
    void leave() override { note("leave"); }
    void wait() override
    {
        note("wait");
        run(background);
        note("wait is over");
    }

    void runMainQueue() { run(mainQueue); }

    static void run(std::deque<Task>& tasks)
    {
        for (; !tasks.empty(); tasks.pop_front()) {
            std::exchange(tasks.front(), nullptr)();
        }
    }

    std::deque<Task> background;
    std::deque<Task> mainQueue;
};

/// Folders and files by their paths; nothing else can be listed or read.
struct FakeFiles : Files, Witness {
    Expected<std::vector<FolderEntry>> list(const std::string& folder) const override
    {
        note("list " + folder);
        const auto found = folders.find(folder);
        if (found == folders.end()) {
            return Unexpected({"no folder " + folder, 0});
        }
        std::vector<FolderEntry> entries;
        for (const auto& [name, isFolder] : found->second) {
            entries.push_back({folder + "/" + name, isFolder});
        }
        return entries;
    }

    Expected<std::string> read(const std::string& path, std::size_t largest) const override
    {
        const auto found = contents.find(path);
        if (found == contents.end() || found->second.size() > largest) {
            return Unexpected({"no file " + path, 0});
        }
        return found->second;
    }

    std::map<std::string, std::map<std::string, std::optional<bool>>> folders;
    std::map<std::string, std::string> contents;
};

/// What is set is added to what is there until that is cleared.
struct FakePasteboard : Pasteboard, Witness {
    void clearContents() override
    {
        note("clear the pasteboard");
        contents.clear();
    }
    bool setString(const std::string& text) override
    {
        note("paste " + text);
        contents += text;
        return true;
    }
    std::string contents = "what was copied before";
};

struct FakeResources : Resources {
    std::optional<std::string> folder(const std::string& name) const override
    {
        return hasFolder ? std::optional("/Resources/" + name) : std::nullopt;
    }
    std::optional<std::string> file(const std::string& baseName, const std::string& extension) const override
    {
        const auto found = files.find(baseName + "." + extension);
        return found == files.end() ? std::nullopt : std::optional(found->second);
    }
    bool hasFolder = true;
    /// The paths of the resource files by their names.
    std::map<std::string, std::string> files;
};

/// Answers every script with the next of the prepared executions; makes no script when none is left.
struct FakeScripts : ScriptService, Witness {
    struct Prepared : Script, Witness {
        ScriptExecution execute() override
        {
            note("execute");
            return execution;
        }
        ScriptExecution execution;
    };

    std::unique_ptr<Script> create(std::string source) override
    {
        note("make script " + sources.emplace_back(std::move(source)));
        if (executions.empty()) {
            return nullptr;
        }
        auto script = std::make_unique<Prepared>();
        script->journal = journal;
        script->execution = std::move(executions.front());
        executions.pop_front();
        return script;
    }

    void answerText(const std::string& text) { executions.push_back({ScriptExecution::Value{text}, std::nullopt}); }

    std::deque<ScriptExecution> executions;
    std::vector<std::string> sources;
};

struct FakeFolders : StandardFolders {
    std::vector<std::string> searchPaths(SearchDirectory directory, SearchDomain domain) const override
    {
        ++requests;
        const auto found = paths.find({directory, domain});
        return found == paths.end() ? std::vector<std::string>() : found->second;
    }

    mutable int requests = 0;
    std::map<std::pair<SearchDirectory, SearchDomain>, std::vector<std::string>> paths{
        {{SearchDirectory::applications, SearchDomain::local}, {"/Applications", "/Other"}},
        {{SearchDirectory::applicationSupport, SearchDomain::local}, {"/Library/Application Support", "/Other"}},
        {{SearchDirectory::applicationSupport, SearchDomain::user}, {"/Users/user/Library/Application Support"}}};
};

struct FakeWorkspace : Workspace, Witness {
    bool openUrl(const std::string& url) override
    {
        note("open " + url);
        return false;
    }
};

/// One complete small world and the one journal of all that happens in it.
struct FakePlatform {
    FakePlatform()
    {
        for (Witness* each :
            std::initializer_list<Witness*>{&application, &console, &dispatcher, &files, &pasteboard, &workspace}) {
            each->journal = scripts.journal;
        }
    }

    FakeApplication application;
    FakeConsole console;
    FakeDispatcher dispatcher;
    FakeFiles files;
    FakePasteboard pasteboard;
    FakeResources resources;
    FakeScripts scripts;
    FakeFolders folders;
    FakeWorkspace workspace;
    Journal& journal = *scripts.journal;

    Platform services()
    {
        return {application, console, dispatcher, files, pasteboard, resources, scripts, folders, workspace};
    }

    /// Puts a product into the resource folder that holds the named folders as elements.
    void addProduct(const std::string& name, const std::vector<std::string>& elements)
    {
        files.folders["/Resources/Products"][name] = true;
        auto& product = files.folders["/Resources/Products/" + name];
        for (const std::string& element : elements) {
            product[element] = true;
        }
    }
};

} // namespace corvellane
