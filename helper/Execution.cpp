#include "helper/Execution.h"

#include "helper/Program.h"

#include <fcntl.h>
#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>

namespace corvellane::runner {
namespace {

constexpr int refused = 126;

/// Makes this process another user's while it lives. A program that is started meanwhile has no way back.
class AsUser {
public:
    /// Nobody's when there is no user, and where this process is not root's.
    explicit AsUser(const User* user)
        : isOther_(user != nullptr && user->id != 0 && geteuid() == 0)
    {
        if (isOther_) {
            hasFailed_ = setgroups(user->groups.size(), user->groups.data()) != 0
                || setresgid(user->group, user->group, 0) != 0 || setresuid(user->id, user->id, 0) != 0;
        }
    }
    AsUser(const AsUser&) = delete;
    AsUser& operator=(const AsUser&) = delete;
    ~AsUser()
    {
        if (isOther_ && (setresuid(0, 0, 0) != 0 || setresgid(0, 0, 0) != 0 || setgroups(0, nullptr) != 0)) {
            std::abort();
        }
    }

    bool hasFailed() const { return hasFailed_; }

private:
    bool isOther_;
    bool hasFailed_ = false;
};

/// The shell's own words for a folder that is missing.
const char* describe(int error)
{
    return error == ENOENT || error == ENOTDIR ? "Directory nonexistent" : std::strerror(error);
}

Reply write(const WriteText& command)
{
    const int file = open(command.path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (file < 0) {
        return {2, {}, "echo: cannot create " + command.path + ": " + describe(errno) + "\n"};
    }
    std::string_view rest = command.text;
    ssize_t count = 0;
    while (!rest.empty() && (count = ::write(file, rest.data(), rest.size())) >= 0) {
        rest.remove_prefix(static_cast<std::size_t>(count));
    }
    const int error = errno;
    close(file);
    return rest.empty() ? Reply() : Reply{1, {}, "echo: " + command.path + ": " + std::strerror(error) + "\n"};
}

/// The words for the tool that does a command; there is none for texts.
class Words {
public:
    explicit Words(const User& user)
        : user_(user)
    {
    }

    std::vector<std::string> operator()(const MakeFolder& command) const { return {"mkdir", "-p", command.path}; }

    std::vector<std::string> operator()(const Copy& command) const
    {
        return {"cp", "-R", "-f", command.source + (command.source.ends_with('/') ? "." : ""), command.folder};
    }

    std::vector<std::string> operator()(const Remove& command) const { return {"rm", "-R", "-f", command.path}; }

    std::vector<std::string> operator()(const Link& command) const
    {
        return {"ln", "-f", "-n", "-s", command.target, command.link};
    }

    std::vector<std::string> operator()(const HandOver& command) const
    {
        return {"chown", "-R", std::to_string(user_.id), command.path};
    }

    std::vector<std::string> operator()(const WriteText&) const { return {}; }

private:
    const User& user_;
};

/// Whether all is as the command would have it, so that no program is needed.
bool isDone(const InstallCommand& command)
{
    struct stat status{};
    if (const auto* folder = std::get_if<MakeFolder>(&command)) {
        return stat(folder->path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
    }
    const auto* gone = std::get_if<Remove>(&command);
    return gone != nullptr && lstat(gone->path.c_str(), &status) != 0 && errno == ENOENT;
}

Reply refuse(const std::string& reason)
{
    return {refused, {}, reason + "\n"};
}

/// Where a command makes its change: "/a/b/" is the folder itself, "/a/b" lies in it.
std::string writtenFolder(const InstallCommand& command)
{
    const std::string& path = writtenPath(command);
    return path.substr(0, path.find_last_of('/'));
}

std::optional<std::string> whyHomeless(const User& user)
{
    struct stat status{};
    if (user.home.starts_with('/') && stat(user.home.c_str(), &status) == 0) {
        return std::nullopt;
    }
    return "There is no home folder “" + user.home + "” to install into.";
}

} // namespace

bool isUsers(const InstallCommand& command, const InstallFolders& folders)
{
    return isWithin(writtenPath(command), folders.lightroom);
}

std::string nearestThere(std::string path)
{
    struct stat status{};
    while (path.size() > 1 && stat(path.c_str(), &status) != 0) {
        path.resize(std::max<std::size_t>(path.find_last_of('/'), 1));
    }
    return path;
}

std::optional<std::string> whyUnsafe(const InstallCommand& command, const Site& site, const SeeEntry& see)
{
    const auto* copy = std::get_if<Copy>(&command);
    if (copy != nullptr && isWithin(copy->source, site.folders.products)) {
        if (auto reason = whyNotCopied(copy->source, site.owner, see)) {
            return reason;
        }
    }
    if (isUsers(command, site.folders)) {
        return whyHomeless(site.user);
    }
    return site.owner == Owner::anybody ? std::nullopt : whyChangeable(nearestThere(writtenFolder(command)));
}

Reply carryOut(std::string_view text, const Site& site)
{
    const auto [command, refusal] = readCommand(text, site.folders);
    if (!command) {
        return refuse(refusal);
    }
    const AsUser rights(isUsers(*command, site.folders) ? &site.user : nullptr);
    if (rights.hasFailed()) {
        return cannotRun(std::strerror(errno));
    }
    if (const auto reason = whyUnsafe(*command, site)) {
        return refuse(*reason);
    }
    if (const auto* echo = std::get_if<WriteText>(&*command)) {
        return write(*echo);
    }
    if (isDone(*command)) {
        return {};
    }
    // Names in messages are UTF-8; a tool that had to load all of a language would take a quarter longer to start.
    const auto words = std::visit(Words(site.user), *command);
    return runProgram("/bin/" + words.front(), words, {"PATH=/usr/bin:/bin", "LC_CTYPE=C.UTF-8"}, text);
}

} // namespace corvellane::runner
