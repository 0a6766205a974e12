#include "pack/Archive.h"

#include <archive.h>
#include <archive_entry.h>

#include <algorithm>
#include <cerrno>
#include <stdexcept>
#include <thread>
#include <utility>

namespace corvellane::pack {
namespace {

using Entry = std::unique_ptr<archive_entry, decltype(&archive_entry_free)>;

constexpr int readable = 0644;
constexpr int readableAndExecutable = 0755;

void must(archive* archive, bool isWell)
{
    if (!isWell) {
        const char* const reason = archive_error_string(archive);
        throw std::runtime_error(reason != nullptr ? reason : "a file has changed while it was packed");
    }
}

void must(archive* archive, int result)
{
    must(archive, result == ARCHIVE_OK);
}

/// What the archive's bytes are given to. No exception goes through libarchive.
la_ssize_t give(archive* archive, void* take, const void* bytes, std::size_t size)
try {
    (*static_cast<const Bytes*>(take))({static_cast<const char*>(bytes), size});
    return static_cast<la_ssize_t>(size);
} catch (const std::exception& error) {
    archive_set_error(archive, EIO, "%s", error.what());
    return -1;
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

} // namespace

Archive::Archive(Bytes take, std::int64_t epoch)
    : take_(std::move(take))
    , epoch_(epoch)
    , archive_(archive_write_new(), archive_write_free)
{
    must(archive_.get(), archive_write_set_format_gnutar(archive_.get()));
    must(archive_.get(), archive_write_add_filter_zstd(archive_.get()));
    // However many there are beside this one, the bytes are the same; without any they would differ.
    const std::string threads = std::to_string(std::max(1U, std::thread::hardware_concurrency()));
    must(archive_.get(), archive_write_set_filter_option(archive_.get(), "zstd", "threads", threads.c_str()));
    must(archive_.get(), archive_write_set_bytes_per_block(archive_.get(), 0));
    must(archive_.get(), archive_write_open(archive_.get(), &take_, nullptr, give, nullptr));
}

void Archive::add(const std::string& path, const Item& item, const Blocks& seen)
{
    // It warns of names that are no text here, and packs them as they are.
    must(archive_.get(), archive_write_header(archive_.get(), entryOf(path, item, epoch_).get()) >= ARCHIVE_WARN);
    const auto write = [&](const Block& bytes) {
        const la_ssize_t written = archive_write_data(archive_.get(), bytes.view().data(), bytes.view().size());
        must(archive_.get(), written == static_cast<la_ssize_t>(bytes.view().size()));
        seen(bytes);
    };
    if (item.kind == Item::Kind::file) {
        readFile(item.from, write);
    } else if (item.kind == Item::Kind::text) {
        write(Block(item.from));
    }
    must(archive_.get(), archive_write_finish_entry(archive_.get()));
}

void Archive::close()
{
    must(archive_.get(), archive_write_close(archive_.get()));
}

void writeArchive(
    const Bytes& take, const Contents& contents, const std::string& below, std::int64_t epoch, const Blocks& seen)
{
    Archive archive(take, epoch);
    for (const auto& [path, item] : contents.items()) {
        archive.add(below + path, item, seen);
    }
    archive.close();
}

std::string gzipped(const std::string& text)
{
    const std::unique_ptr<archive, int (*)(archive*)> gzip(archive_write_new(), archive_write_free);
    must(gzip.get(), archive_write_set_format_raw(gzip.get()));
    must(gzip.get(), archive_write_add_filter_gzip(gzip.get()));
    must(gzip.get(), archive_write_set_options(gzip.get(), "gzip:compression-level=9,gzip:!timestamp"));
    std::string result(text.size() + 1024, '\0');
    std::size_t used = 0;
    must(gzip.get(), archive_write_open_memory(gzip.get(), result.data(), result.size(), &used));
    const Item item{Item::Kind::text, text, false};
    must(gzip.get(), archive_write_header(gzip.get(), entryOf("text", item, 0).get()));
    must(gzip.get(), archive_write_data(gzip.get(), text.data(), text.size()) == static_cast<la_ssize_t>(text.size()));
    must(gzip.get(), archive_write_close(gzip.get()));
    result.resize(used);
    return result;
}

} // namespace corvellane::pack
