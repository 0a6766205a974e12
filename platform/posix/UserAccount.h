#pragma once

#include <string>

namespace corvellane {

/// The person at the screen: the password database's entry of the real user.
struct UserAccount {
    std::string name;
    /// Absolute, without a trailing "/".
    std::string home;
};

/// No environment variable is read. A user without an entry has its number as name and "/" as home.
UserAccount realUser();

/// Whether this process may do everything.
bool hasRootRights();

} // namespace corvellane
