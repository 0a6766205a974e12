#pragma once

#include "helper/InstallCommand.h"
#include "helper/RunnerMessages.h"

#include <string>

namespace corvellane::runner {

/// Marks the folders that a command makes, from before it runs until after: a removal knows by the mark which of the
/// empty folders were there before any installation. The mark is an extended attribute, which lies with the folder and
/// goes with it; on a file system that has none, folders stay.
class MadeFolders {
public:
    explicit MadeFolders(const InstallCommand& command);
    MadeFolders(const MadeFolders&) = delete;
    MadeFolders& operator=(const MadeFolders&) = delete;
    ~MadeFolders();

private:
    /// Empty for a command that makes none.
    std::string folder_;
    std::string there_;
};

/// Whether the folder bears the mark; false too for whoever must not know.
bool isMarkedMade(const std::string& folder);

/// Removes the folder, then those above it, for as long as each is empty and bears the mark; what is not there is
/// passed over.
Reply removeMade(std::string folder);

} // namespace corvellane::runner
