#pragma once

#include "helper/InstallCommand.h"

#include <optional>
#include <string>

namespace corvellane::runner {

/// Opens a file to write it anew, as a shell's `>` does it, also through a link; never waits. A negative number and
/// errno when that cannot be, ENXIO for what is no file: a pipe, a device or a socket.
int openAnew(const std::string& path);

/// Why a text cannot be written to a path that leads to no file, for a person.
std::string isNoFile(const std::string& path);

/// The same of the first file that the copy would write to; absent when there is none.
std::optional<std::string> whyNotCopiedOver(const Copy& copy);

} // namespace corvellane::runner
