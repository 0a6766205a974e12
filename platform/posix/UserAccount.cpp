#include "platform/posix/UserAccount.h"

#include <pwd.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace corvellane {

namespace {

uid_t personsId()
{
    uid_t id = getuid();
    const char* const caller = id == 0 ? std::getenv("SUDO_UID") : nullptr;
    if (caller != nullptr) {
        std::from_chars(caller, caller + std::strlen(caller), id);
    }
    return id;
}

std::string asWord(const std::string& name, uid_t id)
{
    constexpr auto ordinary = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789._-";
    return name.empty() || name.find_first_not_of(ordinary) != std::string::npos ? std::to_string(id) : name;
}

} // namespace

UserAccount realUser()
{
    const uid_t id = personsId();
    std::vector<char> buffer(4096);
    passwd entry{};
    passwd* found = nullptr;
    while (getpwuid_r(id, &entry, buffer.data(), buffer.size(), &found) == ERANGE) {
        buffer.resize(buffer.size() * 2);
    }
    if (found == nullptr) {
        return {std::to_string(id), "/", id};
    }
    UserAccount account{asWord(entry.pw_name, id), entry.pw_dir, id};
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
