#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace corvellane::pack {

/// Something in a package: a folder, a file of this machine, a file that is made for the package, or a link.
struct Item {
    enum class Kind { folder, file, text, link };

    Kind kind = Kind::folder;
    /// The path of the file here, the text, or where the link leads.
    std::string from;
    bool executable = false;
};

/// The bytes of a file or of a text; nothing else has any. Throws std::filesystem::filesystem_error.
std::uintmax_t sizeOf(const Item& item);

/// What a package holds by its paths, which are relative and in the order in which they are packed. Everybody can read
/// all of it, and it belongs to root alone, whatever the modes and owners of the files here.
class Contents {
public:
    /// Everything below `folder` of this machine, under `path`. Links stay links. Throws
    /// std::filesystem::filesystem_error where something cannot be read, and std::runtime_error of what is neither a
    /// file nor a folder nor a link.
    void addTree(const std::string& path, const std::string& folder);
    void addFile(const std::string& path, const std::string& file);
    void addText(const std::string& path, const std::string& text, bool executable = false);
    void addLink(const std::string& path, const std::string& target);
    void addFolder(const std::string& path);

    const std::map<std::string, Item>& items() const { return items_; }
    /// The bytes of all files.
    std::uintmax_t size() const;

private:
    void add(const std::string& path, Item item);

    std::map<std::string, Item> items_;
};

} // namespace corvellane::pack
