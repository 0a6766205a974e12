#pragma once

#include <sys/types.h>

#include <optional>
#include <string>

namespace corvellane {

/// The person at the screen, by the password database: the real user or, when that is root by sudo, the one who called
/// it.
struct UserAccount {
    /// A name with other characters than `A-Z a-z 0-9 . _ -` is no word to a shell, and the number stands for it.
    std::string name;
    /// Absolute, without a trailing "/".
    std::string home;
    uid_t id = 0;
};

/// Of the environment, SUDO_UID is read, and by root alone. A user without an entry has its number as name and "/" as
/// home.
UserAccount realUser();

/// The user of that name in the password database; absent when there is none.
std::optional<UserAccount> userNamed(const std::string& name);

/// Whether this process may do everything.
bool hasRootRights();

} // namespace corvellane
