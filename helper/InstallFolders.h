#pragma once

#include "helper/InstallCommand.h"

#include <optional>
#include <string>

namespace corvellane::runner {

/// All that an installation reads and writes lies below these; each ends with "/".
struct InstallFolders {
    /// The maker's products, only read; empty for none.
    std::string products;
    std::string application;
    /// For links to the elements.
    std::string video;
    std::string photo;
    /// In the user's home, and the user's own.
    std::string lightroom;
};

/// Those of this machine, or of a copy of it below the folder `prefix`. Paths come without a "/" at their end; the
/// path of the products may be empty. A home that is not absolute has no folder for Lightroom.
InstallFolders installFolders(const std::string& prefix, const std::string& home, const std::string& products);

/// Whether the path is the folder or lies below it, by its words alone: without "." and "..".
bool isWithin(std::string_view path, std::string_view folder);

/// What the command writes.
const std::string& writtenPath(const InstallCommand& command);

/// A command, or why a text is none of an installation into these folders, for a person.
struct Reading {
    std::optional<InstallCommand> command;
    std::string refusal;
};

Reading readCommand(std::string_view text, const InstallFolders& folders);

} // namespace corvellane::runner
