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
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace corvellane {

struct FakeMenu : Menu {
    std::vector<std::string> itemTitles() const override { return titles; }
    void removeItem(std::size_t index) override { titles.erase(titles.begin() + static_cast<std::ptrdiff_t>(index)); }
    std::vector<std::string> titles;
};

struct FakeApplication : Application {
    void terminate() override { ++terminations; }
    Menu* mainMenu() override { return menu ? &*menu : nullptr; }
    int terminations = 0;
    std::optional<FakeMenu> menu;
};

struct FakeConsole : Console {
    void print(std::string_view text) override { lines.emplace_back(text); }
    std::vector<std::string> lines;
};

/// Everything that is waited for has ended before the wait begins.
struct FakeWaitGroup : WaitGroup {
    void enter() override { ++inside; }
    void leave() override { --inside; }
    void wait() override { }
    int inside = 0;
};

/// Runs background tasks at their submission and keeps those of the main queue until they are asked for.
struct FakeDispatcher : Dispatcher {
    void submitToBackground(Task task) override { task(); }
    void submitToMain(Task task) override { mainQueue.push_back(std::move(task)); }
    std::shared_ptr<WaitGroup> makeWaitGroup() override { return std::make_shared<FakeWaitGroup>(); }

    void runMainQueue()
    {
        while (!mainQueue.empty()) {
            const Task task = std::move(mainQueue.front());
            mainQueue.pop_front();
            task();
        }
    }

    std::deque<Task> mainQueue;
};

/// Folders and files by their paths; nothing else can be listed or read.
struct FakeFiles : Files {
    Expected<std::vector<FolderEntry>> list(const std::string& folder) const override
    {
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

struct FakePasteboard : Pasteboard {
    void clearContents() override { ++clearings; }
    bool setString(const std::string& text) override
    {
        contents = text;
        return true;
    }
    int clearings = 0;
    std::string contents;
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
struct FakeScripts : ScriptService {
    struct Prepared : Script {
        explicit Prepared(ScriptExecution prepared)
            : execution(std::move(prepared))
        {
        }
        ScriptExecution execute() override { return execution; }
        ScriptExecution execution;
    };

    std::unique_ptr<Script> create(std::string source) override
    {
        sources.push_back(std::move(source));
        if (executions.empty()) {
            return nullptr;
        }
        auto script = std::make_unique<Prepared>(std::move(executions.front()));
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
        {{SearchDirectory::applicationSupport, SearchDomain::local}, {"/Library/Application Support"}},
        {{SearchDirectory::applicationSupport, SearchDomain::user}, {"/Users/user/Library/Application Support"}}};
};

struct FakeWorkspace : Workspace {
    bool openUrl(const std::string& url) override
    {
        urls.push_back(url);
        return false;
    }
    std::vector<std::string> urls;
};

/// One complete small world that records what was asked of it.
struct FakePlatform {
    FakeApplication application;
    FakeConsole console;
    FakeDispatcher dispatcher;
    FakeFiles files;
    FakePasteboard pasteboard;
    FakeResources resources;
    FakeScripts scripts;
    FakeFolders folders;
    FakeWorkspace workspace;

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
