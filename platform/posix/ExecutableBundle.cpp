#include "platform/posix/ExecutableBundle.h"

#include <filesystem>

namespace corvellane {

namespace fs = std::filesystem;

ExecutableBundle::ExecutableBundle(std::optional<std::string> executable)
    : executable_(std::move(executable))
{
}

std::optional<std::string> ExecutableBundle::program(const std::string& name) const
{
    return executable_ ? std::optional((fs::path(*executable_).parent_path() / name).native()) : std::nullopt;
}

std::optional<std::string> ExecutableBundle::folder(const std::string& name) const
{
    if (!executable_) {
        return std::nullopt;
    }
    return (fs::path(*executable_).parent_path().parent_path() / "Resources" / name).native();
}

std::optional<std::string> ExecutableBundle::file(const std::string& baseName, const std::string& extension) const
{
    auto path = folder(baseName + "." + extension);
    std::error_code error;
    return path && fs::exists(*path, error) ? std::move(path) : std::nullopt;
}

} // namespace corvellane
