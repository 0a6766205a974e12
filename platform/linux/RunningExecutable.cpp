#include "platform/linux/RunningExecutable.h"

#include <filesystem>

namespace corvellane {

std::optional<std::string> runningExecutable()
{
    std::error_code error;
    const std::filesystem::path executable = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::nullopt : std::optional(executable.native());
}

} // namespace corvellane
