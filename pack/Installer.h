#pragma once

#include "pack/Contents.h"
#include "pack/Description.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace corvellane::pack {

/// What an installer is made of.
struct Ingredients {
    /// The programs and what belongs to them; see packaging/Kit.cmake.
    std::string kit;
    /// The maker's folder: "Products", "CorvellaneEULA.rtf", and "Logo.svg" or "Logo.png".
    std::string maker;
    Description description;
    /// In seconds since 1970; the time of all that is packed.
    std::int64_t epoch = 0;
};

/// The files that the maker's folder lacks, in words; empty when it has everything.
std::vector<std::string> whatIsMissing(const std::string& maker);

/// The whole text of a file. Throws std::runtime_error.
std::string textOf(const std::string& file);

/// A folder to unpack anywhere, with the libraries it needs.
Contents bundleOf(const Ingredients& ingredients);

/// What the Debian package installs, and what it says of itself.
Contents debianFilesOf(const Ingredients& ingredients);
Contents debianControlOf(const Ingredients& ingredients, const Contents& files);

/// The program in front of the archive of a ".run" file; `checksum` is the archive's SHA-256 in hexadecimal. Its own
/// checksum is given by `checksumOf`, the SHA-256 of a text.
std::string starterOf(const Ingredients& ingredients, const std::string& checksum,
    const std::function<std::string(const std::string&)>& checksumOf);

/// The machine that the programs run on, as its kernel and as Debian calls it.
std::string machineOf(const std::string& kit);
std::string debianMachineOf(const std::string& kit);

} // namespace corvellane::pack
