#include "pack/Contents.h"

#include <archive.h>
#include <archive_entry.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

namespace corvellane::pack {
namespace {

namespace fs = std::filesystem;

using Archive = std::unique_ptr<archive, decltype(&archive_write_free)>;
using Entry = std::unique_ptr<archive_entry, decltype(&archive_entry_free)>;

constexpr int readable = 0644;
constexpr int readableAndExecutable = 0755;

Archive newArchive()
{
    return {archive_write_new(), archive_write_free};
}

void must(const Archive& archive, int result)
{
    if (result < ARCHIVE_WARN) {
        throw std::runtime_error(archive_error_string(archive.get()));
    }
}

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

Entry entryOf(const std::string& path, const Item& item, std::int64_t epoch)
{
    Entry entry(archive_entry_new(), archive_entry_free);
    archive_entry_copy_pathname(entry.get(), (item.kind == Item::Kind::folder ? path + "/" : path).c_str());
    archive_entry_set_mtime(entry.get(), epoch, 0);
    archive_entry_set_uname(entry.get(), "root");
    archive_entry_set_gname(entry.get(), "root");
    if (item.kind == Item::Kind::link) {
        archive_entry_set_filetype(entry.get(), AE_IFLNK);
        archive_entry_set_symlink(entry.get(), item.from.c_str());
        archive_entry_set_perm(entry.get(), 0777);
        return entry;
    }
    const bool isFolder = item.kind == Item::Kind::folder;
    archive_entry_set_filetype(entry.get(), isFolder ? AE_IFDIR : AE_IFREG);
    archive_entry_set_perm(entry.get(), isFolder || item.executable ? readableAndExecutable : readable);
    archive_entry_set_size(entry.get(), static_cast<la_int64_t>(sizeOf(item)));
    return entry;
}

void writeData(const Archive& archive, const void* data, std::size_t size)
{
    if (archive_write_data(archive.get(), data, size) != static_cast<la_ssize_t>(size)) {
        throw std::runtime_error(archive_error_string(archive.get()));
    }
}

void writeFile(const Archive& archive, const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::vector<char> block(std::size_t{1} << 18U);
    while (file) {
        file.read(block.data(), static_cast<std::streamsize>(block.size()));
        writeData(archive, block.data(), static_cast<std::size_t>(file.gcount()));
    }
    if (!file.eof()) {
        throw std::runtime_error("“" + path + "” cannot be read");
    }
}

void writeItem(const Archive& archive, const std::string& path, const Item& item, std::int64_t epoch)
{
    must(archive, archive_write_header(archive.get(), entryOf(path, item, epoch).get()));
    if (item.kind == Item::Kind::file) {
        writeFile(archive, item.from);
    } else if (item.kind == Item::Kind::text) {
        writeData(archive, item.from.data(), item.from.size());
    }
}

} // namespace

// What is packed

void Contents::addTree(const std::string& path, const std::string& folder)
{
    addFolder(path);
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        add(path + entry.path().native().substr(folder.size()), itemAt(entry));
    }
}

void Contents::addFile(const std::string& path, const std::string& file)
{
    add(path, itemAt(fs::directory_entry(file)));
}

void Contents::addText(const std::string& path, const std::string& text, bool executable)
{
    add(path, {Item::Kind::text, text, executable});
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

// Archives

void writeArchive(const std::string& file, const Contents& contents, const std::string& below, std::int64_t epoch,
    const std::function<void(std::uintmax_t)>& packed)
{
    const Archive archive = newArchive();
    must(archive, archive_write_set_format_gnutar(archive.get()));
    must(archive, archive_write_add_filter_program(archive.get(), "zstd -q -T0"));
    must(archive, archive_write_open_filename(archive.get(), file.c_str()));
    std::uintmax_t soFar = 0;
    for (const auto& [path, item] : contents.items()) {
        writeItem(archive, below + path, item, epoch);
        packed(soFar += sizeOf(item));
    }
    must(archive, archive_write_close(archive.get()));
}

void writeDebianPackage(
    const std::string& file, const std::string& control, const std::string& data, std::int64_t epoch)
{
    const Archive archive = newArchive();
    must(archive, archive_write_set_format_ar_bsd(archive.get()));
    must(archive, archive_write_open_filename(archive.get(), file.c_str()));
    writeItem(archive, "debian-binary", {Item::Kind::text, "2.0\n", false}, epoch);
    writeItem(archive, "control.tar.zst", {Item::Kind::file, control, false}, epoch);
    writeItem(archive, "data.tar.zst", {Item::Kind::file, data, false}, epoch);
    must(archive, archive_write_close(archive.get()));
}

std::string gzipped(const std::string& text)
{
    const Archive archive = newArchive();
    must(archive, archive_write_set_format_raw(archive.get()));
    must(archive, archive_write_add_filter_gzip(archive.get()));
    must(archive, archive_write_set_options(archive.get(), "gzip:compression-level=9,gzip:!timestamp"));
    std::string result(text.size() + 1024, '\0');
    std::size_t used = 0;
    must(archive, archive_write_open_memory(archive.get(), result.data(), result.size(), &used));
    writeItem(archive, "text", {Item::Kind::text, text, false}, 0);
    must(archive, archive_write_close(archive.get()));
    result.resize(used);
    return result;
}

} // namespace corvellane::pack
