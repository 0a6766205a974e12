#pragma once

#include "pack/Installer.h"

#include <string>
#include <vector>

namespace corvellane::pack {

/// The kinds of installers: "deb", "rpm", "run", "tar.zst".
using Formats = std::vector<std::string>;

/// Makes the installers in the folder `output`, which is made, with the list of their checksums, "SHA256SUMS", and its
/// signature by the key of gpg's that is not empty, which an rpm has inside as well. Gives the paths of the files,
/// which are there when all of it has worked out, and throws std::exception where something has not, or Stopped; then
/// nothing of it is there.
std::vector<std::string> makeInstallers(
    const Ingredients& ingredients, const Formats& formats, const std::string& output, const std::string& key);

} // namespace corvellane::pack
