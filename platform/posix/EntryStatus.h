#pragma once

#include "base/Expected.h"

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace corvellane {

/// What stands at a path itself.
struct EntryStatus {
    std::filesystem::file_type type = std::filesystem::file_type::none;
    std::filesystem::perms mode = std::filesystem::perms::none;
    uid_t owner = 0;
    /// In bytes.
    std::uintmax_t size = 0;
    /// Of links: the path that it holds.
    std::string target{}; // NOLINT(readability-redundant-member-init): designated initializers
};

/// A link is not followed. Of nothing the type is `not_found`.
Expected<EntryStatus> entryStatus(const std::string& path);

/// Whether the files hold the same bytes.
Expected<bool> haveSameBytes(const std::string& path, const std::string& other);

/// Whether the file holds these bytes.
Expected<bool> holdsBytes(const std::string& path, std::string_view bytes);

} // namespace corvellane
