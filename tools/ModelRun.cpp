#include "tools/ModelRun.h"

#include "base/PathNames.h"
#include "helper/InstallFolders.h"
#include "platform/script/Parser.h"
#include "tools/PrintableText.h"

#include <map>
#include <optional>
#include <set>
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
    {
    }

    void operator()(const runner::MakeFolder& command)
    {
        const std::string path = withoutEnd(command.path);
        ModelEntry* there = tree_.find(path);
        if (there == nullptr) {
            tree_.put(path, {.owner = ownerAt(path), .element = element_});
        } else if (there->kind == Kind::folder) {
            there->isAssumed = false;
        } else {
            block(path);
        }
    }

    void operator()(const runner::Copy& command)
    {
        const std::string source = withoutEnd(command.source);
        if (runner::isWithin(source, folders_.products)) {
            element_ = source;
        }
        if (!isFolder(tree_.follow(source))) {
            return miss(source);
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
        if (there != nullptr && !there->element.empty() && there->element != element_) {
            findings_.push_back({"removed", there->element,
                "loses " + quotedPrintable(command.path) + " again when " + quotedPrintable(element_)
                    + " is installed, which supersedes it"});
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
            miss(target);
        }
        if (!isFolder(folder)) {
            return miss(folderOf(path));
        }
        if (folder->isAssumed && told_.insert(folderOf(path)).second) {
            findings_.push_back({"assumed", folderOf(path) + "/",
                "is not created by the script when these products are installed together; it must be there already"});
        }
        place(path, {.kind = Kind::link, .owner = ownerAt(path), .target = target, .element = element_}, true);
    }

    void operator()(const runner::WriteText& command)
    {
        const std::string editor = editorIn(command.text);
        if (!editor.empty() && !isFolder(tree_.follow(editor))) {
            miss(editor);
        }
        if (!isFolder(tree_.follow(folderOf(command.path)))) {
            return miss(folderOf(command.path));
        }
        const ModelEntry* there = tree_.find(command.path);
        if (there != nullptr && there->kind != Kind::file) {
            return block(command.path);
        }
        if (there != nullptr && there->element == element_) {
            findings_.push_back({"rewritten", there->origin, "is written anew by the installation"});
        }
        place(command.path,
            {.kind = Kind::file,
                .mode = newFile,
                .size = command.text.size(),
                .owner = ownerAt(command.path),
                .element = element_},
            true);
    }

    void operator()(const runner::HandOver& command)
    {
        const std::string path = withoutEnd(command.path);
        if (tree_.find(path) == nullptr) {
            return miss(path);
        }
        tree_.find(path)->owner = Owner::person;
        for (auto& [inside, entry] : tree_.below(path)) {
            entry.owner = Owner::person;
        }
    }

    void refuse(const std::string& refusal)
    {
        findings_.push_back({"refused", element_, "is refused by what carries commands out: " + refusal});
    }

    Findings finish()
    {
        for (const auto& [elements, clash] : clashes_) {
            const std::string more = clash.count > 1 ? " and " + std::to_string(clash.count - 1) + " more" : "";
            findings_.push_back({"overwritten", elements.second,
                "is installed over what " + quotedPrintable(elements.first)
                    + " has installed: " + quotedPrintable(clash.first) + more});
        }
        return std::move(findings_);
    }

private:
    struct Clash {
        std::string first;
        int count = 0;
    };

    Owner ownerAt(const std::string& path) const
    {
        return runner::isWithin(path, folders_.lightroom) ? Owner::person : Owner::administrator;
    }

    void placeCopy(const std::string& path, const std::string& source, const ModelEntry& entry, bool isRoot)
    {
        ModelEntry copy = entry;
        copy.mode &= keptBits;
        copy.owner = ownerAt(path);
        copy.origin = entry.origin.empty() ? source : entry.origin;
        copy.element = element_;
        place(path, std::move(copy), isRoot);
    }

    /// Folders that an element's copy has in common with another's are no matter; those that commands name are.
    void place(const std::string& path, ModelEntry entry, bool isNamed)
    {
        const ModelEntry* there = tree_.find(path);
        const bool isMerged = isFolder(there) && entry.kind == Kind::folder;
        if (there != nullptr && !there->element.empty() && there->element != element_ && (isNamed || !isMerged)) {
            Clash& clash = clashes_[{there->element, element_}];
            clash.first = clash.count++ == 0 ? path : clash.first;
        }
        if (!isMerged) {
            tree_.put(path, std::move(entry));
        }
    }

    /// In the words of the element's maker, where it lies in the element.
    std::string inElement(const std::string& path) const
    {
        const std::string installed = folders_.application + std::string(lastPathComponent(element_)) + "/";
        return quotedPrintable(path.starts_with(installed) ? path.substr(installed.size()) : path);
    }

    void miss(const std::string& path)
    {
        if (told_.insert(path).second) {
            findings_.push_back(
                {"missing", element_, "lacks the folder " + inElement(path) + ", which the script needs"});
        }
    }

    void block(const std::string& path)
    {
        findings_.push_back(
            {"blocked", element_, "has something else at " + inElement(path) + ", which the script makes"});
    }

    ModelTree& tree_;
    const runner::InstallFolders& folders_;
    /// The element whose commands are carried out.
    std::string element_;
    /// By the elements, the earlier one first.
    std::map<std::pair<std::string, std::string>, Clash> clashes_;
    std::set<std::string> told_;
    Findings findings_;
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
