#include "platform/posix/UserAccount.h"

#include <pwd.h>
#include <unistd.h>

#include <cerrno>
#include <vector>

namespace corvellane {

UserAccount realUser()
{
    std::vector<char> buffer(4096);
    passwd entry{};
    passwd* found = nullptr;
    while (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) == ERANGE) {
        buffer.resize(buffer.size() * 2);
    }
    if (found == nullptr) {
        return {std::to_string(getuid()), "/"};
    }
    UserAccount account{entry.pw_name, entry.pw_dir};
    while (account.home.size() > 1 && account.home.ends_with('/')) {
        account.home.pop_back();
    }
    return account;
}

bool hasRootRights()
{
    return geteuid() == 0;
}

} // namespace corvellane
