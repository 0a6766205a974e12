// corvellane-command-runner install [PRODUCTS] | remove: carries out the commands of an installation, or of a removal,
// with administrator rights. The installer starts it once for a script, by pkexec or, when root runs it, directly, and
// ends it by closing its standard input. PRODUCTS is the folder that products are copied from.
//
// What the two say to each other stands in RunnerMessages.h, what a command can be in InstallCommand.h, where it may
// read and write in InstallFolders.h, and how it is done in Execution.h. A request that breaks the rules ends the
// program; nothing is read from anywhere else. Everything that runs as root lies in this folder.

#include "helper/Execution.h"
#include "helper/Turn.h"

#include <grp.h>
#include <pwd.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

using namespace corvellane::runner;

constexpr rlim_t mostFiles = 65536;

bool readInput(char* bytes, std::size_t size)
{
    return std::fread(bytes, 1, size, stdin) == size;
}

void writeOutput(std::string_view bytes)
{
    std::fwrite(bytes.data(), 1, bytes.size(), stdout);
}

/// The user's limits would cut files short; where root may not raise them, they are used up.
void raiseLimits()
{
    for (const auto resource : {RLIMIT_FSIZE, RLIMIT_CPU, RLIMIT_AS, RLIMIT_DATA, RLIMIT_NPROC, RLIMIT_NOFILE}) {
        const rlim_t most = resource == RLIMIT_NOFILE ? mostFiles : RLIM_INFINITY;
        rlimit limit{most, most};
        if (setrlimit(resource, &limit) != 0 && getrlimit(resource, &limit) == 0) {
            limit.rlim_cur = limit.rlim_max;
            setrlimit(resource, &limit);
        }
    }
}

/// Nothing of the installer's is left to this process but its standard streams; signals of a terminal or of a session
/// that ends do not interrupt an installation.
void standAlone()
{
    syscall(SYS_close_range, STDERR_FILENO + 1, ~0U, 0);
    setsid();
    umask(S_IWGRP | S_IWOTH);
    if (chdir("/") != 0) {
        std::abort();
    }
    std::signal(SIGCHLD, SIG_DFL);
    for (const int number : {SIGPIPE, SIGHUP, SIGINT, SIGTERM, SIGQUIT, SIGTSTP}) {
        std::signal(number, SIG_IGN);
    }
    raiseLimits();
}

const passwd* userWith(const char* number)
{
    const char* end = number + std::strlen(number);
    uid_t id = 0;
    const auto [stop, error] = std::from_chars(number, end, id);
    return number != end && stop == end && error == std::errc() ? getpwuid(id) : nullptr;
}

/// The user who was asked, by the number that pkexec passes on; else the one who became root by sudo, or is.
const passwd* askingUser()
{
    for (const char* const name : {"PKEXEC_UID", "SUDO_UID"}) {
        if (const char* const number = std::getenv(name)) {
            return userWith(number);
        }
    }
    return getpwuid(getuid());
}

std::vector<gid_t> groupsOf(const passwd& user)
{
    int count = 0;
    getgrouplist(user.pw_name, user.pw_gid, nullptr, &count);
    std::vector<gid_t> groups(static_cast<std::size_t>(count));
    getgrouplist(user.pw_name, user.pw_gid, groups.data(), &count);
    return groups;
}

Site siteFor(const passwd& user, Task task, const std::string& products)
{
    std::string home = user.pw_dir;
    while (home.size() > 1 && home.ends_with('/')) {
        home.pop_back();
    }
    return {installFolders("", home, products), {user.pw_uid, user.pw_gid, groupsOf(user), home},
        std::getenv("PKEXEC_UID") == nullptr ? Owner::anybody : Owner::rootAlone, task};
}

} // namespace

int main(int count, char** arguments)
{
    standAlone();
    const passwd* user = askingUser();
    const auto task = taskWith(count > 1 ? arguments[1] : "");
    if (user == nullptr || !task) {
        std::fputs("corvellane-command-runner: the installer starts it, for a user of this machine\n", stderr);
        return 2;
    }
    const Site site = siteFor(*user, *task, count > 2 ? arguments[2] : "");
    clearenv();
    // Two scripts at once would undo each other's work.
    waitForTurn("corvellane-command-runner");
    writeOutput(up);
    while (std::fflush(stdout) == 0) {
        const auto command = readRequest(readInput);
        if (!command) {
            return 0;
        }
        writeReply(carryOut(*command, site), writeOutput);
    }
    return 1;
}
