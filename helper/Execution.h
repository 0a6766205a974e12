#pragma once

#include "helper/InstallFolders.h"
#include "helper/RootsAlone.h"
#include "helper/RunnerMessages.h"
#include "helper/Task.h"

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

namespace corvellane::runner {

/// Somebody with a home.
struct User {
    uid_t id = 0;
    gid_t group = 0;
    /// All that the user is a member of.
    std::vector<gid_t> groups{}; // NOLINT(readability-redundant-member-init): designated initializers leave it out
    std::string home;
};

/// Where installations go, and for whom.
struct Site {
    InstallFolders folders;
    User user;
    /// Where root's own commands read and write; with the rights of root, nothing that others could lead elsewhere.
    Owner owner = Owner::anybody;
    /// What may be done there.
    Task task = Task::installation;
};

/// Whether the command is done as the user, because what it writes lies in the user's home.
bool isUsers(const InstallCommand& command, const InstallFolders& folders);

/// The path itself, or the nearest folder above it that is there.
std::string nearestThere(std::string path);

/// Why the command must not be carried out now, for a person; absent when nothing is in the way. Looks at all that is
/// to be copied from the products, and hands it to `see`.
std::optional<std::string> whyUnsafe(const InstallCommand& command, const Site& site, const SeeEntry& see = {});

/// Carries out one command without a shell: what is the user's as the user, when this process is root's, and everything
/// else with the rights of this process. Its meaning, status and messages are those of the tool that has the command's
/// name; what is no command for this site is refused. New files get the process's mode mask.
///
/// No other thread of the process may do anything meanwhile when root does this for another user.
Reply carryOut(std::string_view text, const Site& site);

} // namespace corvellane::runner
