#include "helper/RootsAlone.h"

#include <sys/stat.h>
#include <sys/xattr.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <memory>

namespace corvellane::runner {
namespace {

namespace fs = std::filesystem;

constexpr int mostLinks = 40;

std::string quoted(const std::string& path)
{
    return "“" + path + "” ";
}

std::string cannotBeRead(const std::string& path, int error)
{
    return quoted(path) + "cannot be read: " + std::strerror(error) + ".";
}

std::string changeable(const std::string& path, const std::string& reason)
{
    return quoted(path) + "can be changed by others than root: " + reason + ".";
}

/// An access list lets others in by the bits of the group.
bool hasAccessList(const char* path)
{
    return lgetxattr(path, "system.posix_acl_access", nullptr, 0) > 0;
}

std::optional<std::string> whyChangeable(const char* path, const struct stat& status)
{
    if (status.st_uid != 0) {
        return changeable(path, "it belongs to the user " + std::to_string(status.st_uid));
    }
    if (S_ISLNK(status.st_mode)) {
        return std::nullopt;
    }
    if ((status.st_mode & S_IWOTH) != 0) {
        return changeable(path, "everybody can write it");
    }
    if ((status.st_mode & S_IWGRP) != 0 && (status.st_gid != 0 || hasAccessList(path))) {
        return changeable(path, "the group " + std::to_string(status.st_gid) + " can write it");
    }
    return std::nullopt;
}

std::optional<std::string> whyChangeable(const fs::path& path, int linksLeft)
{
    fs::path reached;
    for (auto part = path.begin(); part != path.end(); ++part) {
        const fs::path folder = reached;
        reached /= *part;
        struct stat status{};
        if (lstat(reached.c_str(), &status) != 0) {
            return cannotBeRead(reached, errno);
        }
        const bool isOnTheWay = std::next(part) != path.end() && S_ISDIR(status.st_mode);
        auto reason = isOnTheWay && status.st_uid == 0 && (status.st_mode & S_ISVTX) != 0
            ? std::nullopt
            : whyChangeable(reached.c_str(), status);
        if (!reason && S_ISLNK(status.st_mode)) {
            std::error_code error;
            reason = linksLeft == 0 ? cannotBeRead(reached, ELOOP)
                                    : whyChangeable(folder / fs::read_symlink(reached, error), linksLeft - 1);
        }
        if (reason) {
            return reason;
        }
    }
    return std::nullopt;
}

std::optional<std::string> whyNotCopied(const FTSENT& entry, Owner owner)
{
    switch (entry.fts_info) {
    case FTS_DNR:
    case FTS_ERR:
    case FTS_NS:
        return cannotBeRead(entry.fts_path, entry.fts_errno);
    case FTS_DEFAULT:
        return quoted(entry.fts_path) + "is neither a file nor a folder nor a link.";
    default:
        return owner == Owner::anybody ? std::nullopt : whyChangeable(entry.fts_path, *entry.fts_statp);
    }
}

} // namespace

std::optional<std::string> whyChangeable(const std::string& path)
{
    return whyChangeable(fs::path(path), mostLinks);
}

std::optional<std::string> whyNotCopied(const std::string& source, Owner owner, const SeeEntry& see)
{
    if (auto reason = owner == Owner::rootAlone ? whyChangeable(source) : std::nullopt) {
        return reason;
    }
    std::string root = source;
    const std::array<char*, 2> roots{root.data(), nullptr};
    const std::unique_ptr<FTS, int (*)(FTS*)> walk(
        fts_open(roots.data(), FTS_PHYSICAL | FTS_NOCHDIR, nullptr), &fts_close);
    if (walk == nullptr) {
        return cannotBeRead(source, errno);
    }
    while (const FTSENT* entry = fts_read(walk.get())) {
        if (entry->fts_info != FTS_DP) {
            if (auto reason = whyNotCopied(*entry, owner)) {
                return reason;
            }
            if (see) {
                see(*entry);
            }
        }
    }
    // 0 at the end of the tree; where memory ran out before, what follows was not looked at.
    return errno == 0 ? std::nullopt : std::optional(cannotBeRead(source, errno));
}

} // namespace corvellane::runner
