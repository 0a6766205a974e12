#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <ranges>
#include <string>
#include <string_view>

namespace corvellane {

/// A file, folder or link of a model. Whose it is decides which bits of its mode hold for the person.
struct ModelEntry {
    enum class Kind : std::uint8_t { folder, file, link, special };
    enum class Owner : std::uint8_t { administrator, person };

    // NOLINTBEGIN(readability-redundant-member-init): designated initializers leave some out
    Kind kind = Kind::folder;
    /// As folders are made.
    std::filesystem::perms mode = static_cast<std::filesystem::perms>(0755);
    /// In bytes; of files.
    std::uintmax_t size = 0;
    Owner owner = Owner::administrator;
    /// Of links.
    std::string target{};
    /// Why it cannot be read; empty when it can.
    std::string failure{};
    /// The file or folder of the maker's that it is a copy of; empty for none.
    std::string origin{};
    /// Of files that a command writes: what it writes.
    std::string text{};
    /// The maker's element that it was installed for; empty for what was there.
    std::string element{};
    /// A folder that others are expected to have made.
    bool isAssumed = false;
    // NOLINTEND(readability-redundant-member-init)
};

/// A file system in memory, by paths: absolute, without "/" at their end and without "." and "..".
class ModelTree {
public:
    using Entries = std::map<std::string, ModelEntry>;

    /// What stands at the path itself; null for nothing.
    const ModelEntry* find(const std::string& path) const;
    ModelEntry* find(const std::string& path);

    /// Makes the entry, or puts it in place of another, and makes the folders above it that are missing.
    void put(const std::string& path, ModelEntry entry);

    /// With all below it.
    void remove(const std::string& path);

    /// All that stands below the path, folders before what is in them.
    std::ranges::subrange<Entries::const_iterator> below(const std::string& path) const;
    std::ranges::subrange<Entries::iterator> below(const std::string& path);

    /// What the path leads to when links are followed; null for nothing.
    const ModelEntry* follow(const std::string& path) const;

private:
    Entries entries_;
};

/// Takes the folder and all below it into the model, at its own path. Links are not followed.
void readIntoModel(ModelTree& tree, const std::string& folder);

/// Takes the folder alone.
void readEntryIntoModel(ModelTree& tree, const std::string& folder);

} // namespace corvellane
