#include "platform/posix/UserAccount.h"

#include "base/PathNames.h"

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

/// What the password database has, asked by getpwuid_r() or getpwnam_r().
template <typename LookUp>
std::optional<UserAccount> lookedUp(LookUp lookUp)
{
    std::vector<char> buffer(4096);
    passwd entry{};
    passwd* found = nullptr;
    while (lookUp(&entry, buffer.data(), buffer.size(), &found) == ERANGE) {
        buffer.resize(buffer.size() * 2);
    }
    if (found == nullptr) {
        return std::nullopt;
    }
    return UserAccount{asWord(entry.pw_name, entry.pw_uid), withoutEnd(entry.pw_dir), entry.pw_uid};
}

} // namespace

UserAccount realUser()
{
    const uid_t id = personsId();
    const auto account = lookedUp([id](auto... answer) { return getpwuid_r(id, answer...); });
    return account.value_or(UserAccount{std::to_string(id), "/", id});
}

std::optional<UserAccount> userNamed(const std::string& name)
{
    return lookedUp([&](auto... answer) { return getpwnam_r(name.c_str(), answer...); });
}

bool hasRootRights()
{
    return geteuid() == 0;
}

} // namespace corvellane
