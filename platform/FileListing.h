#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace corvellane {

struct FolderEntry {
    /// The listed folder's path, "/" and the entry's name: bytes, exactly as the file system holds them.
    std::string path;
    /// Absent when the file system does not tell. A link is no folder, wherever it points.
    std::optional<bool> isFolder;
};

/// Why a folder could not be listed, in words for a person.
struct ListingFailure {
    std::string description;
};

using FolderListing = std::variant<std::vector<FolderEntry>, ListingFailure>;

/// Looks into folders. Any thread.
class FileListing {
public:
    virtual ~FileListing() = default;

    /// Everything directly in the folder, hidden entries included, "." and ".." not, by the bytes of the names.
    virtual FolderListing list(const std::string& folder) const = 0;
};

} // namespace corvellane
