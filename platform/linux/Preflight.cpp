#include "platform/linux/Preflight.h"

#include "base/SizeInWords.h"
#include "platform/script/ErrorInformation.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <map>

namespace corvellane {
namespace {

using runner::Copy;
using runner::InstallCommand;

/// In bytes.
using Size = std::intmax_t;

/// What copies need on one file system.
struct Demand {
    std::string folder;
    Size needed = 0;
    Size free = 0;
    Size block = 1;

    Size onDisk(Size bytes) const { return (bytes + block - 1) / block * block; }
};

class Preflight {
public:
    explicit Preflight(const runner::Site& site)
        : site_(site)
    {
    }

    std::optional<std::string> whyNot(const std::string& text)
    {
        const auto [command, refusal] = runner::readCommand(text, site_.folders);
        if (!command) {
            return refusal;
        }
        if (const auto* copy = std::get_if<Copy>(&*command)) {
            return whyNotCopied(*copy);
        }
        const auto reason = runner::whyUnsafe(*command, site_);
        return reason ? reason : whyNotTheUsers(*command);
    }

    std::optional<std::string> whyNoRoom() const
    {
        for (const auto& [device, demand] : demands_) {
            if (demand.needed > demand.free) {
                return "There is not enough room for “" + demand.folder
                    + "”: " + sizeInWords(static_cast<std::uintmax_t>(demand.needed)) + " are needed, and "
                    + sizeInWords(static_cast<std::uintmax_t>(demand.free)) + " are free.";
            }
        }
        return std::nullopt;
    }

private:
    std::optional<std::string> whyNotCopied(const Copy& copy)
    {
        const std::string target = targetOf(copy);
        Demand& demand = demandAt(copy);
        const bool isReplaced = access(target.c_str(), F_OK) == 0;
        const auto weigh = [&, prefix = std::size_t{0}](const FTSENT& entry) mutable {
            prefix = entry.fts_level == 0 ? entry.fts_pathlen : prefix;
            demand.needed += demand.onDisk(sizeOf(*entry.fts_statp));
            if (isReplaced) {
                demand.needed -= demand.onDisk(sizeOf(target + (entry.fts_path + prefix)));
            }
        };
        const std::string source = sourceOf(copy.source);
        if (source == copy.source) {
            sources_[target] = source;
            return runner::whyUnsafe(copy, site_, weigh);
        }
        // What is installed first and then copied on: whether it is there shows when its turn comes.
        runner::whyNotCopied(source, runner::Owner::anybody, weigh);
        return runner::whyUnsafe(copy, site_);
    }

    /// Whoever this is for must be able to write where the first of the missing folders will be.
    std::optional<std::string> whyNotTheUsers(const InstallCommand& command) const
    {
        if (!std::holds_alternative<runner::MakeFolder>(command) || !runner::isUsers(command, site_.folders)) {
            return std::nullopt;
        }
        const std::string folder = runner::nearestThere(runner::writtenPath(command));
        if (geteuid() == 0 || faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0) {
            return std::nullopt;
        }
        return "“" + folder + "” cannot be written: " + std::strerror(errno) + ".";
    }

    static std::string targetOf(const Copy& copy)
    {
        const std::string& source = copy.source;
        return copy.folder + (source.ends_with('/') ? "" : source.substr(source.find_last_of('/') + 1));
    }

    /// Where a product's files lie now that will be copied from where they are installed.
    std::string sourceOf(const std::string& path) const
    {
        for (auto end = path.find('/'); end != std::string::npos; end = path.find('/', end + 1)) {
            if (const auto installed = sources_.find(path.substr(0, end)); installed != sources_.end()) {
                return installed->second + path.substr(end);
            }
        }
        return path;
    }

    Demand& demandAt(const Copy& copy)
    {
        const std::string folder = runner::nearestThere(copy.folder);
        struct stat status{};
        struct statvfs room{};
        stat(folder.c_str(), &status);
        Demand& demand = demands_[status.st_dev];
        if (demand.folder.empty() && statvfs(folder.c_str(), &room) == 0 && room.f_frsize > 0) {
            demand.block = static_cast<Size>(room.f_frsize);
            const auto blocks = runner::isUsers(copy, site_.folders) ? room.f_bavail : room.f_bfree;
            demand.free = static_cast<Size>(blocks) * demand.block;
        }
        demand.folder = copy.folder;
        return demand;
    }

    static Size sizeOf(const struct stat& status) { return S_ISREG(status.st_mode) ? status.st_size : 1; }

    static Size sizeOf(const std::string& path)
    {
        struct stat status{};
        return lstat(path.c_str(), &status) == 0 ? sizeOf(status) : 0;
    }

    const runner::Site& site_;
    std::map<dev_t, Demand> demands_;
    /// By what they become.
    std::map<std::string, std::string> sources_;
};

} // namespace

std::optional<Failure> whyNotInstallable(const std::vector<std::string>& commands, const runner::Site& site)
{
    Preflight preflight(site);
    std::optional<std::string> reason;
    for (auto command = commands.begin(); command != commands.end() && !reason; ++command) {
        reason = command->empty() ? std::nullopt : preflight.whyNot(*command);
    }
    reason = reason ? reason : preflight.whyNoRoom();
    return reason ? std::optional(Failure{*std::move(reason), script::error_number::eventFailed}) : std::nullopt;
}

} // namespace corvellane
