#include "helper/PlainFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

namespace corvellane::runner {

namespace fs = std::filesystem;

int openAnew(const std::string& path)
{
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0666);
    struct stat status{};
    if (file >= 0 && (fstat(file, &status) != 0 || !S_ISREG(status.st_mode))) {
        close(file);
        errno = ENXIO;
        return -1;
    }
    return file;
}

std::string isNoFile(const std::string& path)
{
    return "“" + path
        + "” is a pipe, a device or a socket, where a file is to be written. Remove it and install again.";
}

std::optional<std::string> whyNotCopiedOver(const Copy& copy)
{
    const fs::path source = copy.source;
    std::error_code error;
    for (fs::recursive_directory_iterator entry(source, error); !error && entry != fs::recursive_directory_iterator();
        entry.increment(error)) {
        const fs::path target = copy.folder / entry->path().lexically_relative(source.parent_path());
        std::error_code unknown;
        if (fs::is_other(fs::status(target, unknown))) {
            return isNoFile(target);
        }
    }
    return std::nullopt;
}

} // namespace corvellane::runner
