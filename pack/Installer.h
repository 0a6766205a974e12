#pragma once

#include "pack/Contents.h"
#include "pack/Description.h"

#include <cstdint>
#include <string>
#include <vector>

namespace corvellane::pack {

/// What an installer is made of.
struct Ingredients {
    /// The programs and what belongs to them; see packaging/Kit.cmake.
    std::string kit;
    /// The maker's folder: "Products", "CorvellaneEULA.rtf", "Logo.svg" or "Logo.png", and maybe "Icon.svg".
    std::string maker;
    Description description;
    /// In seconds since 1970; the time of all that is packed.
    std::int64_t epoch = 0;
};

/// The files that the maker's folder lacks, in words; empty when it has everything.
std::vector<std::string> whatIsMissing(const std::string& maker);

/// A folder to unpack anywhere, with the libraries it needs.
Contents bundleOf(const Ingredients& ingredients);

/// What a package installs on a system that has the libraries, whatever the kind of package.
Contents systemFilesOf(const Ingredients& ingredients);

/// What the installer is, in a few words.
std::string summaryOf(const Description& description);

/// What it does, in lines that end with a line feed.
std::string inWords(const Description& description);

/// The text with `indent` in front of every line but the first.
std::string indented(std::string text, const std::string& indent);

/// The machine that the programs run on, as its kernel calls it.
std::string machineOf(const std::string& kit);

} // namespace corvellane::pack
