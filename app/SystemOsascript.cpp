#include "app/System.h"

#include "platform/osascript/OsascriptService.h"
#include "platform/posix/ExecutableBundle.h"

#include <mach-o/dyld.h>

#include <array>
#include <cstdint>
#include <filesystem>

namespace corvellane {
namespace {

std::optional<std::string> runningExecutable()
{
    std::array<char, 4096> path{};
    std::uint32_t size = path.size();
    std::error_code error;
    if (_NSGetExecutablePath(path.data(), &size) != 0) {
        return std::nullopt;
    }
    const std::filesystem::path executable = std::filesystem::canonical(path.data(), error);
    return error ? std::nullopt : std::optional(executable.native());
}

} // namespace

void System::addServicesOfItsOwn(const UserAccount&, script::PasswordAsked)
{
    resources = std::make_shared<ExecutableBundle>(runningExecutable());
}

std::shared_ptr<script::AdministratorPrompt> System::makeRehearsalPrompt(const std::string&, const std::string&) const
{
    return nullptr;
}

std::shared_ptr<ScriptService> System::makeScripts() const
{
    return std::make_shared<OsascriptService>();
}

} // namespace corvellane
