#include "tools/ModelInspection.h"

#include "base/PathNames.h"
#include "tools/PayloadFindings.h"
#include "tools/PrintableText.h"
#include "tools/UnicodeNames.h"

#include <map>
#include <set>
#include <utility>

namespace corvellane {
namespace {

namespace fs = std::filesystem;
using Kind = ModelEntry::Kind;

/// The most that the kernel takes, the NUL at the end left out.
constexpr std::size_t longestPath = 4095;

void inspectFile(Findings& findings, const std::string& path, const ModelEntry& entry)
{
    if (entry.kind == Kind::special) {
        findings.push_back({"special-file", path,
            "is neither a file nor a folder nor a link, and keeps its element from being installed"});
    } else if (!entry.failure.empty()) {
        findings.push_back({"unreadable", path, "cannot be read: " + entry.failure});
    }
    if (isLeftover(lastPathComponent(path))) {
        findings.push_back({"leftover", path, "is left from a tool, and goes to customers with the rest"});
    }
    if (entry.kind == Kind::link) {
        return;
    }
    if ((entry.mode & (fs::perms::set_uid | fs::perms::set_gid)) != fs::perms::none) {
        findings.push_back(
            {"set-id", path, "has a set-user-ID or set-group-ID bit, which is lost when it is installed"});
    }
    if ((entry.mode & fs::perms::others_write) != fs::perms::none) {
        findings.push_back({"open", path,
            "can be written by everybody, and is refused by administrator rights unless a package mends that"});
    }
}

/// A package gives everybody leave to read, but a folder that is unpacked by hand keeps its modes.
bool isClosed(const ModelEntry& entry)
{
    const bool isFolder = entry.kind == Kind::folder;
    const auto forOthers = isFolder ? fs::perms::others_read | fs::perms::others_exec : fs::perms::others_read;
    const auto forOwner = isFolder ? fs::perms::owner_read | fs::perms::owner_exec : fs::perms::owner_read;
    const auto needed = entry.owner == ModelEntry::Owner::person ? forOwner : forOthers;
    return entry.kind != Kind::link && entry.kind != Kind::special && (entry.mode & needed) != needed;
}

void inspectLink(Findings& findings, const ModelTree& tree, const std::string& path, const std::string& element)
{
    const ModelEntry& link = *tree.find(path);
    const fs::path target = link.target;
    const fs::path inside = (fs::path(path).parent_path() / target).lexically_normal().lexically_relative(element);
    if (target.is_absolute() || inside.empty() || *inside.begin() == "..") {
        findings.push_back(
            {"link-outside", link.origin, "is a link that leaves its element: " + quotedPrintable(link.target)});
    } else if (tree.follow(path) == nullptr) {
        findings.push_back({"link-broken", link.origin, "is a link to nothing: " + quotedPrintable(link.target)});
    }
}

/// The person's view of what is installed, folders first: what lies in a closed folder is not told of again.
class ReadingPerson {
public:
    void look(Findings& findings, const std::string& path, const ModelEntry& entry)
    {
        if ((closed_.empty() || !path.starts_with(closed_)) && isClosed(entry)) {
            closed_ = path + "/";
            findings.push_back({"closed", entry.origin.empty() ? path : entry.origin,
                "cannot be read by everybody, unless a package mends that"});
        }
    }

private:
    std::string closed_;
};

} // namespace

Findings inspectPayload(
    const ModelTree& tree, const std::string& productsFolder, const std::vector<std::string>& elements)
{
    Findings findings;
    std::set<std::string> folders{productsFolder};
    for (const std::string& element : elements) {
        folders.insert(folderOf(element));
    }
    for (const std::string& folder : folders) {
        inspectFile(findings, folder, *tree.find(folder));
        ReadingPerson().look(findings, folder, *tree.find(folder));
    }
    for (const std::string& element : elements) {
        if (const ModelEntry* entry = tree.find(element)) {
            inspectFile(findings, element, *entry);
        }
        for (const auto& [path, entry] : tree.below(element)) {
            inspectFile(findings, path, entry);
        }
    }
    return findings;
}

Findings inspectInstalled(const ModelTree& tree, const std::string& element)
{
    const ModelEntry* root = tree.find(element);
    if (root == nullptr) {
        return {};
    }
    Findings findings;
    ReadingPerson person;
    person.look(findings, element, *root);
    bool isEmpty = true;
    for (const auto& [path, entry] : tree.below(element)) {
        person.look(findings, path, entry);
        isEmpty = isEmpty && (entry.kind != Kind::file || entry.origin.empty());
        if (entry.kind == Kind::link) {
            inspectLink(findings, tree, path, element);
        }
        if (path.size() > longestPath) {
            findings.push_back({"too-long", entry.origin,
                "becomes a path of " + std::to_string(path.size()) + " bytes, and no system takes so long a one"});
        }
    }
    if (isEmpty) {
        findings.push_back({"empty-element", root->origin, "holds no file"});
    }
    return findings;
}

Findings inspectNames(const ModelTree& tree, const std::string& folder)
{
    Findings findings;
    std::map<std::string, std::string> paths;
    for (const auto& [path, entry] : tree.below(folder)) {
        const auto name = path.rfind('/') + 1;
        const auto [same, isFirst] = paths.emplace(path.substr(0, name) + withoutCapitals(path.substr(name)), path);
        if (!isFirst) {
            findings.push_back({"capitals", entry.origin.empty() ? path : entry.origin,
                "differs from " + quotedPrintable(lastPathComponent(same->second))
                    + " in capitals or accents’ spelling only; on many disks the two are one"});
        }
    }
    return findings;
}

} // namespace corvellane
