#pragma once

#include "pack/Contents.h"
#include "pack/Reading.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

struct archive;

namespace corvellane::pack {

/// Takes bytes that come one after the other.
using Bytes = std::function<void(std::string_view)>;
using Blocks = std::function<void(const Block&)>;

/// A tar archive, compressed with zstd by all processors. Everything in it is root's and readable by everybody, and has
/// the same time: the same items give the same bytes. Everything throws std::runtime_error where that fails.
class Archive {
public:
    /// `take` gets the bytes of the archive; the time is `epoch`, in seconds since 1970.
    Archive(Bytes take, std::int64_t epoch);
    Archive(const Archive&) = delete;
    Archive& operator=(const Archive&) = delete;
    ~Archive() = default;

    /// `seen` is given the bytes of a file as they are packed.
    void add(const std::string& path, const Item& item, const Blocks& seen);
    void close();

private:
    Bytes take_;
    std::int64_t epoch_;
    std::unique_ptr<archive, int (*)(archive*)> archive_;
};

/// An archive of all contents; `below` stands in front of every path.
void writeArchive(
    const Bytes& take, const Contents& contents, const std::string& below, std::int64_t epoch, const Blocks& seen);

/// The text as a gzip file without name and time in it.
std::string gzipped(const std::string& text);

} // namespace corvellane::pack
