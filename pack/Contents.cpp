#include "pack/Contents.h"

#include <filesystem>
#include <stdexcept>
#include <utility>

namespace corvellane::pack {
namespace {

namespace fs = std::filesystem;

bool isExecutable(fs::perms modes)
{
    return (modes & (fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec)) != fs::perms::none;
}

Item itemAt(const fs::directory_entry& entry)
{
    if (entry.is_symlink()) {
        return {Item::Kind::link, fs::read_symlink(entry.path()).native(), false};
    }
    if (entry.is_directory()) {
        return {Item::Kind::folder, {}, false};
    }
    if (!entry.is_regular_file()) {
        throw std::runtime_error("“" + entry.path().native() + "” is neither a file nor a folder nor a link");
    }
    return {Item::Kind::file, entry.path().native(), isExecutable(entry.status().permissions())};
}

} // namespace

std::uintmax_t sizeOf(const Item& item)
{
    switch (item.kind) {
    case Item::Kind::file:
        return fs::file_size(item.from);
    case Item::Kind::text:
        return item.from.size();
    default:
        return 0;
    }
}

void Contents::addTree(const std::string& path, const std::string& folder)
{
    addFolder(path);
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        add(path + entry.path().native().substr(folder.size()), itemAt(entry));
    }
}

void Contents::addFile(const std::string& path, const std::string& file)
{
    add(path, itemAt(fs::directory_entry(fs::canonical(file))));
}

void Contents::addText(const std::string& path, const std::string& text, bool executable)
{
    add(path, {Item::Kind::text, text, executable});
}

void Contents::addLink(const std::string& path, const std::string& target)
{
    add(path, {Item::Kind::link, target, false});
}

void Contents::addFolder(const std::string& path)
{
    add(path, {Item::Kind::folder, {}, false});
}

/// With the folders above it.
void Contents::add(const std::string& path, Item item)
{
    for (std::size_t slash = path.find('/'); slash != std::string::npos; slash = path.find('/', slash + 1)) {
        items_.try_emplace(path.substr(0, slash));
    }
    items_.insert_or_assign(path, std::move(item));
}

std::uintmax_t Contents::size() const
{
    std::uintmax_t size = 0;
    for (const auto& [path, item] : items_) {
        size += sizeOf(item);
    }
    return size;
}

} // namespace corvellane::pack
