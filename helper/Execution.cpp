#include "helper/Execution.h"

#include "helper/MadeFolders.h"
#include "helper/PlainFiles.h"
#include "helper/Program.h"

#include <fcntl.h>
#include <grp.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>

namespace corvellane::runner {
namespace {

constexpr int refused = 126;

bool become(const User& user)
{
    return setgroups(user.groups.size(), user.groups.data()) == 0 && setresgid(user.group, user.group, user.group) == 0
        && setresuid(user.id, user.id, user.id) == 0;
}

bool readWhole(int file, char* place, std::size_t size)
{
    while (size > 0) {
        const ssize_t count = read(file, place, size);
        if (count <= 0) {
            return false;
        }
        place += count;
        size -= static_cast<std::size_t>(count);
    }
    return true;
}

void writeWhole(int file, std::string_view bytes)
{
    ssize_t count = 0;
    while (!bytes.empty() && (count = ::write(file, bytes.data(), bytes.size())) > 0) {
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

/// What a process of its own replies that is the user's for good. File systems of a user's own, FUSE for one, refuse
/// whoever could become root again, and nothing that is done there has a way back.
template <typename Task>
Reply asUser(const User& user, Task task)
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        return cannotRun(std::strerror(errno));
    }
    const pid_t child = fork();
    if (child == 0) {
        const Reply reply = become(user) ? task() : cannotRun(std::strerror(errno));
        writeReply(reply, [&](std::string_view bytes) { writeWhole(ends[1], bytes); });
        _exit(0);
    }
    close(ends[1]);
    auto reply = readReply([&](char* place, std::size_t size) { return readWhole(ends[0], place, size); });
    close(ends[0]);
    if (child > 0) {
        waitpid(child, nullptr, 0);
    }
    return reply ? *std::move(reply) : cannotRun("the user's process has ended unexpectedly");
}

/// The shell's own words for a folder that is missing.
const char* describe(int error)
{
    return error == ENOENT || error == ENOTDIR ? "Directory nonexistent" : std::strerror(error);
}

Reply refuse(const std::string& reason)
{
    return {refused, {}, reason + "\n"};
}

Reply write(const WriteText& command)
{
    const int file = openAnew(command.path);
    if (file < 0) {
        return errno == ENXIO ? refuse(isNoFile(command.path))
                              : Reply{2, {}, "echo: cannot create " + command.path + ": " + describe(errno) + "\n"};
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

Reply unlinkOne(const Unlink& command)
{
    std::string target(command.target.size() + 1, '\0');
    const ssize_t size = readlink(command.link.c_str(), target.data(), target.size());
    target.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
    if (target != command.target || unlink(command.link.c_str()) == 0) {
        return {};
    }
    return {1, {}, "rm: cannot remove '" + command.link + "': " + std::strerror(errno) + "\n"};
}

/// The words for the tool that does a command; there is none for what needs no tool.
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

    std::vector<std::string> operator()(const auto&) const { return {}; }

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

namespace {

Reply carryOut(const InstallCommand& command, std::string_view text, const Site& site)
{
    if (const auto reason = whyUnsafe(command, site)) {
        return refuse(*reason);
    }
    if (const auto* echo = std::get_if<WriteText>(&command)) {
        return write(*echo);
    }
    if (const auto* link = std::get_if<Unlink>(&command)) {
        return unlinkOne(*link);
    }
    if (const auto* folders = std::get_if<RemoveFolders>(&command)) {
        return removeMade(folders->path);
    }
    if (isDone(command)) {
        return {};
    }
    // Root's folders hold what root has put there; a home, anything.
    const auto* copy = isUsers(command, site.folders) ? std::get_if<Copy>(&command) : nullptr;
    if (const auto reason = copy == nullptr ? std::nullopt : whyNotCopiedOver(*copy)) {
        return refuse(*reason);
    }
    const MadeFolders made(command);
    // Names in messages are UTF-8; a tool that had to load all of a language would take a quarter longer to start.
    const auto words = std::visit(Words(site.user), command);
    return runProgram("/bin/" + words.front(), words, {"PATH=/usr/bin:/bin", "LC_CTYPE=C.UTF-8"}, text);
}

} // namespace

Reply carryOut(std::string_view text, const Site& site)
{
    const Reading reading = readCommand(text, site.folders);
    if (!reading.command) {
        return refuse(reading.refusal);
    }
    if (!belongsTo(*reading.command, site.task)) {
        return refuse("“" + std::string(text) + "” is not a command of a removal.");
    }
    const auto itself = [&] { return carryOut(*reading.command, text, site); };
    const bool isForAnother = isUsers(*reading.command, site.folders) && site.user.id != 0 && geteuid() == 0;
    return isForAnother ? asUser(site.user, itself) : itself();
}

} // namespace corvellane::runner
