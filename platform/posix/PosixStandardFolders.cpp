#include "platform/posix/PosixStandardFolders.h"

#include "platform/posix/UserAccount.h"

namespace corvellane {

std::vector<std::string> PosixStandardFolders::searchPaths(SearchDirectory directory, SearchDomain domain) const
{
    const std::string home = domain == SearchDomain::user ? realUser().home : std::string();
    const std::string base = prefix_ + (home == "/" ? std::string() : home);
    return {base + (directory == SearchDirectory::applications ? "/Applications" : "/Library/Application Support")};
}

} // namespace corvellane
