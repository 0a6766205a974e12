#include "platform/posix/ExecutableBundle.h"

#include <filesystem>

namespace corvellane {

ExecutableBundle::ExecutableBundle()
{
    std::error_code error;
    const std::filesystem::path executable = std::filesystem::read_symlink("/proc/self/exe", error);
    if (!error) {
        resources_ = (executable.parent_path().parent_path() / "Resources").native();
    }
}

std::optional<std::string> ExecutableBundle::folder(const std::string& name) const
{
    return resources_ ? std::optional(*resources_ + "/" + name) : std::nullopt;
}

std::optional<std::string> ExecutableBundle::file(const std::string& baseName, const std::string& extension) const
{
    if (!resources_) {
        return std::nullopt;
    }
    const std::string path = *resources_ + "/" + baseName + "." + extension;
    std::error_code error;
    return std::filesystem::exists(path, error) ? std::optional(path) : std::nullopt;
}

} // namespace corvellane
