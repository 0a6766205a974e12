#include "tools/ModelRun.h"

#include "base/PathNames.h"
#include "helper/InstallFolders.h"
#include "platform/script/Parser.h"
#include "tools/RunFindings.h"

#include <utility>

namespace corvellane {
namespace {

namespace fs = std::filesystem;
using Kind = ModelEntry::Kind;
using Owner = ModelEntry::Owner;

/// The command runner lets nobody else write, and a copy does not keep the bits that give others' rights.
constexpr fs::perms keptBits = fs::perms::owner_all | fs::perms::group_read | fs::perms::group_exec
    | fs::perms::others_read | fs::perms::others_exec;
constexpr fs::perms newFile
    = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read | fs::perms::others_read;

bool isFolder(const ModelEntry* entry)
{
    return entry != nullptr && entry->kind == Kind::folder;
}

/// Of a letter behind a backslash, in Lua.
char meaningOf(char letter)
{
    constexpr std::string_view letters = "nr";
    constexpr std::string_view meanings = "\n\r";
    const auto found = letters.find(letter);
    return found == std::string_view::npos ? letter : meanings[found];
}

/// The application that a text names as Lightroom's external editor; empty for none.
std::string editorIn(const std::string& text)
{
    constexpr std::string_view key = "externalEditorFullPath = \"";
    const auto found = text.find(key);
    std::string path;
    for (auto at = found + key.size(); found != std::string::npos && at < text.size() && text[at] != '"'; ++at) {
        const bool isEscaped = text[at] == '\\' && at + 1 < text.size();
        at += isEscaped ? 1 : 0;
        path += isEscaped ? meaningOf(text[at]) : text[at];
    }
    return path;
}

/// Does to the model what each command does to a file system.
class ModelRun {
public:
    ModelRun(ModelTree& tree, const runner::InstallFolders& folders)
        : tree_(tree)
        , folders_(folders)
        , findings_(folders.application)
    {
    }

    void operator()(const runner::MakeFolder& command)
    {
        const std::string path = withoutEnd(command.path);
        ModelEntry* there = tree_.find(path);
        if (there == nullptr) {
            tree_.put(path, {.owner = ownerAt(path), .element = findings_.element()});
        } else if (there->kind == Kind::folder) {
            there->isAssumed = false;
        } else {
            findings_.addBlocked(path);
        }
    }

    void operator()(const runner::Copy& command)
    {
        const std::string source = withoutEnd(command.source);
        if (runner::isWithin(source, folders_.products)) {
            findings_.begin(source);
        }
        if (!isFolder(tree_.follow(source))) {
            return findings_.addMissing(source);
        }
        const bool isWhole = !command.source.ends_with('/');
        const std::string target
            = withoutEnd(command.folder) + (isWhole ? "/" + std::string(lastPathComponent(source)) : "");
        if (isWhole) {
            placeCopy(target, source, *tree_.find(source), true);
        }
        // Nothing is copied into itself: products and hosts lie apart.
        for (const auto& [path, entry] : tree_.below(source)) {
            placeCopy(target + path.substr(source.size()), path, entry, false);
        }
    }

    void operator()(const runner::Remove& command)
    {
        const ModelEntry* there = tree_.find(command.path);
        if (isOthers(there)) {
            findings_.addRemoved(there->element, command.path);
        }
        tree_.remove(command.path);
    }

    void operator()(const runner::Link& command)
    {
        const std::string target = withoutEnd(command.target);
        std::string path = withoutEnd(command.link);
        if (isFolder(tree_.find(path))) {
            path += "/" + std::string(lastPathComponent(target));
        }
        const ModelEntry* folder = tree_.follow(folderOf(path));
        if (!isFolder(tree_.follow(target))) {
            findings_.addMissing(target);
        }
        if (!isFolder(folder)) {
            return findings_.addMissing(folderOf(path));
        }
        if (folder->isAssumed) {
            findings_.addAssumed(folderOf(path));
        }
        place(
            path, {.kind = Kind::link, .owner = ownerAt(path), .target = target, .element = findings_.element()}, true);
    }

    void operator()(const runner::WriteText& command)
    {
        const std::string editor = editorIn(command.text);
        if (!editor.empty() && !isFolder(tree_.follow(editor))) {
            findings_.addMissing(editor);
        }
        if (!isFolder(tree_.follow(folderOf(command.path)))) {
            return findings_.addMissing(folderOf(command.path));
        }
        const ModelEntry* there = tree_.find(command.path);
        if (there != nullptr && there->kind != Kind::file) {
            return findings_.addBlocked(command.path);
        }
        if (there != nullptr && there->element == findings_.element()) {
            findings_.addRewritten(there->origin);
        }
        place(command.path,
            {.kind = Kind::file,
                .mode = there != nullptr ? there->mode : newFile,
                .size = command.text.size(),
                .owner = ownerAt(command.path),
                .text = command.text,
                .element = findings_.element()},
            true);
    }

    void operator()(const runner::HandOver& command)
    {
        const std::string path = withoutEnd(command.path);
        if (tree_.find(path) == nullptr) {
            return findings_.addMissing(path);
        }
        tree_.find(path)->owner = Owner::person;
        for (auto& [inside, entry] : tree_.below(path)) {
            entry.owner = Owner::person;
        }
    }

    void operator()(const runner::Unlink& command)
    {
        const ModelEntry* there = tree_.find(command.link);
        if (there != nullptr && there->kind == Kind::link && there->target == command.target) {
            tree_.remove(command.link);
        }
    }

    /// All that the model holds but assumed folders was made.
    void operator()(const runner::RemoveFolders& command)
    {
        for (std::string path = withoutEnd(command.path); !path.empty(); path = folderOf(path)) {
            const ModelEntry* there = tree_.find(path);
            if (there != nullptr && (!isFolder(there) || there->isAssumed || !tree_.below(path).empty())) {
                return;
            }
            tree_.remove(path);
        }
    }

    void refuse(const std::string& refusal) { findings_.addRefused(refusal); }

    Findings finish() { return findings_.finish(); }

private:
    Owner ownerAt(const std::string& path) const
    {
        return runner::isWithin(path, folders_.lightroom) ? Owner::person : Owner::administrator;
    }

    /// Whether it was made for another element.
    bool isOthers(const ModelEntry* entry) const
    {
        return entry != nullptr && !entry->element.empty() && entry->element != findings_.element();
    }

    void placeCopy(const std::string& path, const std::string& source, const ModelEntry& entry, bool isRoot)
    {
        ModelEntry copy = entry;
        copy.mode &= keptBits;
        copy.owner = ownerAt(path);
        copy.origin = entry.origin.empty() ? source : entry.origin;
        copy.element = findings_.element();
        place(path, std::move(copy), isRoot);
    }

    /// Folders that an element's copy has in common with another's are no matter; those that commands name are.
    void place(const std::string& path, ModelEntry entry, bool isNamed)
    {
        const ModelEntry* there = tree_.find(path);
        const bool isMerged = isFolder(there) && entry.kind == Kind::folder;
        if (isOthers(there) && (isNamed || !isMerged)) {
            findings_.addOverwritten(there->element, path);
        }
        if (!isMerged) {
            tree_.put(path, std::move(entry));
        }
    }

    ModelTree& tree_;
    const runner::InstallFolders& folders_;
    RunFindings findings_;
};

} // namespace

void addHostFolders(ModelTree& tree, const HostPaths& hosts)
{
    for (const std::string& folder : {hosts.photo, hosts.video}) {
        tree.put(withoutEnd(folder), {.isAssumed = true});
    }
}

Findings runOnModel(
    ModelTree& tree, const std::string& script, const std::string& productsFolder, const HostPaths& hosts)
{
    const runner::InstallFolders folders{
        productsFolder + "/", hosts.application, hosts.video, hosts.photo, hosts.lightroom};
    ModelRun run(tree, folders);
    const auto compiled = script::parse(script);
    for (const std::string& text : compiled ? compiled->privilegedCommands : std::vector<std::string>()) {
        const auto [command, refusal] = runner::readCommand(text, folders);
        if (command) {
            std::visit(run, *command);
        } else {
            run.refuse(refusal);
        }
    }
    if (!compiled) {
        run.refuse(compiled.error().failure.message);
    }
    return run.finish();
}

} // namespace corvellane
