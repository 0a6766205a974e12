#pragma once

#include "pack/Contents.h"

#include <future>
#include <map>
#include <string>
#include <vector>

namespace corvellane::pack {

struct Ingredients;

/// The file to click in an unpacked folder.
constexpr auto starterName = "start-installer";

/// Where the starter finds what it unpacks or copies to where only root can change it: the archive behind its own last
/// line, or the folder that it lies in.
enum class Payload { archive, folder };

/// The program that people start: packaging/starter, with its maker's words. `folderSum` is the sum of the folder that
/// it lies in. For an archive it is empty: behind the archive its SHA-256 follows, 64 digits in hexadecimal.
std::string starterOf(const Ingredients& ingredients, Payload payload, const std::string& folderSum);

/// The sum of an unpacked folder, as `digest` in packaging/starter works it out: SHA-256 of the names, kinds and links
/// in it, and of the SHA-256 of every file.
class FolderSum {
public:
    /// `checksum` is to be that of the file's bytes.
    void add(const std::string& path, const Item& item, std::future<std::string> checksum);
    std::string hexadecimal();

private:
    std::vector<std::string> entries_;
    std::map<std::string, std::future<std::string>> checksums_;
};

} // namespace corvellane::pack
