#pragma once

#include "pack/Installer.h"

#include <string>

namespace corvellane::pack {

/// As rpm wants it: "NAME-VERSION-1.ARCHITECTURE.rpm".
std::string rpmNameOf(const Ingredients& ingredients);

/// What the package installs. Throws std::runtime_error of a name that no such package can hold.
Contents rpmFilesOf(const Ingredients& ingredients);

/// What rpmbuild reads; the names and libraries that it asks for are those of Fedora and openSUSE.
std::string rpmSpecOf(const Ingredients& ingredients, const Contents& files);

/// Has rpmbuild make the package in a folder that is there and empty, and gives its path there. Throws.
std::string makeRpmPackage(const Ingredients& ingredients, const Contents& files, const std::string& folder);

} // namespace corvellane::pack
