#include "tools/ModelTree.h"

#include "base/PathNames.h"

#include <fstream>
#include <utility>
#include <vector>

namespace corvellane {
namespace {

namespace fs = std::filesystem;
using Kind = ModelEntry::Kind;

constexpr int mostLinks = 40;

Kind modelled(fs::file_type type)
{
    switch (type) {
    case fs::file_type::directory:
        return Kind::folder;
    case fs::file_type::regular:
        return Kind::file;
    case fs::file_type::symlink:
        return Kind::link;
    default:
        return Kind::special;
    }
}

/// Files that everybody can read are not tried.
bool canBeRead(const fs::path& path, fs::perms mode)
{
    return (mode & fs::perms::others_read) != fs::perms::none || std::ifstream(path).is_open();
}

ModelEntry entryAt(const fs::path& path)
{
    std::error_code error;
    const fs::file_status status = fs::symlink_status(path, error);
    ModelEntry entry{.kind = modelled(status.type()), .mode = status.permissions()};
    if (entry.kind == Kind::link) {
        entry.target = fs::read_symlink(path, error).native();
    } else if (entry.kind == Kind::file) {
        entry.size = fs::file_size(path, error);
        error = canBeRead(path, entry.mode) ? error : std::make_error_code(std::errc::permission_denied);
    }
    entry.failure = error ? error.message() : "";
    return entry;
}

/// The parts of a path still to be walked, the next one last.
void push(std::vector<std::string>& parts, const fs::path& path)
{
    std::vector<std::string> more;
    for (const fs::path& part : path.relative_path()) {
        more.push_back(part.native());
    }
    parts.insert(parts.end(), more.rbegin(), more.rend());
}

void step(std::string& reached, const std::string& part)
{
    if (part == "..") {
        reached = folderOf(reached);
    } else if (!part.empty() && part != ".") {
        reached.append("/").append(part);
    }
}

} // namespace

const ModelEntry* ModelTree::find(const std::string& path) const
{
    const auto found = entries_.find(path);
    return found == entries_.end() ? nullptr : &found->second;
}

ModelEntry* ModelTree::find(const std::string& path)
{
    const auto found = entries_.find(path);
    return found == entries_.end() ? nullptr : &found->second;
}

void ModelTree::put(const std::string& path, ModelEntry entry)
{
    for (std::string above = folderOf(path); !above.empty() && find(above) == nullptr; above = folderOf(above)) {
        entries_[above] = {};
    }
    entries_[path] = std::move(entry);
}

void ModelTree::remove(const std::string& path)
{
    const auto inside = below(path);
    entries_.erase(inside.begin(), inside.end());
    entries_.erase(path);
}

std::ranges::subrange<ModelTree::Entries::const_iterator> ModelTree::below(const std::string& path) const
{
    return {entries_.lower_bound(path + '/'), entries_.lower_bound(path + static_cast<char>('/' + 1))};
}

std::ranges::subrange<ModelTree::Entries::iterator> ModelTree::below(const std::string& path)
{
    return {entries_.lower_bound(path + '/'), entries_.lower_bound(path + static_cast<char>('/' + 1))};
}

const ModelEntry* ModelTree::follow(const std::string& path) const
{
    std::vector<std::string> parts;
    push(parts, path);
    std::string reached;
    const ModelEntry* entry = nullptr;
    for (int links = 0; !parts.empty() && links <= mostLinks;) {
        step(reached, parts.back());
        parts.pop_back();
        entry = find(reached);
        if (entry == nullptr && !reached.empty()) {
            return nullptr;
        }
        if (entry != nullptr && entry->kind == Kind::link) {
            push(parts, entry->target);
            reached = entry->target.starts_with('/') ? "" : folderOf(reached);
            ++links;
        }
    }
    return parts.empty() ? entry : nullptr;
}

void readEntryIntoModel(ModelTree& tree, const std::string& folder)
{
    tree.put(folder, entryAt(fs::path(folder) / ""));
}

void readIntoModel(ModelTree& tree, const std::string& folder)
{
    std::vector<std::string> folders{folder};
    readEntryIntoModel(tree, folder);
    while (!folders.empty()) {
        const std::string next = std::exchange(folders.back(), {});
        folders.pop_back();
        std::error_code error;
        for (fs::directory_iterator entry(next, error); !error && entry != fs::directory_iterator();
            entry.increment(error)) {
            ModelEntry read = entryAt(entry->path());
            if (read.kind == Kind::folder) {
                folders.push_back(entry->path().native());
            }
            tree.put(entry->path().native(), std::move(read));
        }
        if (error) {
            tree.find(next)->failure = error.message();
        }
    }
}

} // namespace corvellane
