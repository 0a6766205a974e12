#pragma once

#include "pack/Archive.h"
#include "pack/Installer.h"
#include "pack/Output.h"

#include <string>

namespace corvellane::pack {

/// As dpkg wants it: "NAME_VERSION_ARCHITECTURE.deb".
std::string debianNameOf(const Ingredients& ingredients);

/// What the Debian package installs, and what it says of itself.
Contents debianFilesOf(const Ingredients& ingredients);
Contents debianControlOf(const Ingredients& ingredients, const Contents& files);

/// Writes the package (deb(5)); `seen` is given the bytes of its files as they are packed. Throws.
void writeDebianPackage(Output& output, const Ingredients& ingredients, const Contents& files, const Blocks& seen);

} // namespace corvellane::pack
