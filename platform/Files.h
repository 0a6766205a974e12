#pragma once

#include "base/Expected.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace corvellane {

struct FolderEntry {
    /// The listed folder's path, "/" and the entry's name: bytes, exactly as the file system holds them.
    std::string path;
    /// Absent when the file system does not tell. A link is no folder, wherever it points.
    std::optional<bool> isFolder;
};

/// Looks into folders and files, and changes none. Any thread. A failure's message names what could not be read by
/// its own name, and is one line.
class Files {
public:
    virtual ~Files() = default;

    /// Everything directly in the folder, hidden entries included, "." and ".." not, by the bytes of the names.
    virtual Expected<std::vector<FolderEntry>> list(const std::string& folder) const = 0;

    /// All bytes of a regular file. Anything else fails, without waiting for it, and so does a file of more than
    /// `largest` bytes.
    virtual Expected<std::string> read(const std::string& path, std::size_t largest) const = 0;
};

} // namespace corvellane
