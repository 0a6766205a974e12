#include "platform/posix/ExecutableBundle.h"

#include <filesystem>

namespace corvellane {

ExecutableBundle::ExecutableBundle()
{
    std::error_code error;
    const std::filesystem::path executable = std::filesystem::read_symlink("/proc/self/exe", error);
    if (!error) {
        folder_ = executable.parent_path().parent_path().native();
    }
}

std::string ExecutableBundle::program(const std::string& name) const
{
    return folder_.value_or("") + "/bin/" + name;
}

std::optional<std::string> ExecutableBundle::folder(const std::string& name) const
{
    return folder_ ? std::optional(*folder_ + "/Resources/" + name) : std::nullopt;
}

std::optional<std::string> ExecutableBundle::file(const std::string& baseName, const std::string& extension) const
{
    const auto path = folder(baseName + "." + extension);
    std::error_code error;
    return path && std::filesystem::exists(*path, error) ? path : std::nullopt;
}

} // namespace corvellane
