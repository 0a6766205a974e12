#include "platform/posix/PosixStandardFolders.h"

namespace corvellane {

std::vector<std::string> PosixStandardFolders::searchPaths(SearchDirectory directory, SearchDomain domain) const
{
    std::string base = prefix_;
    if (domain == SearchDomain::user) {
        base += home_;
    }
    if (base.ends_with('/')) {
        base.pop_back();
    }
    return {base + (directory == SearchDirectory::applications ? "/Applications" : "/Library/Application Support")};
}

} // namespace corvellane
