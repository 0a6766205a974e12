#include "pack/Signature.h"

#include "pack/Programs.h"
#include "pack/Templates.h"
#include "platform/posix/StreamConsole.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <vector>

namespace corvellane::pack {
namespace {

namespace fs = std::filesystem;

/// Where gpg has its keys, and where it can ask for a passphrase.
std::vector<std::string> personsEnvironment()
{
    std::vector<std::string> environment;
    for (const char* const name : {"GNUPGHOME", "GPG_TTY", "TERM", "DISPLAY", "WAYLAND_DISPLAY", "XAUTHORITY",
             "XDG_RUNTIME_DIR", "DBUS_SESSION_BUS_ADDRESS"}) {
        if (const char* const value = std::getenv(name)) {
            environment.push_back(std::string(name) + "=" + value);
        }
    }
    if (std::getenv("GPG_TTY") == nullptr && isTerminal(stderr)) {
        environment.push_back("GPG_TTY=" + fs::read_symlink("/proc/self/fd/2").native());
    }
    return environment;
}

} // namespace

void findKey(const std::string& key)
{
    outputOf({pathOf("gpg", "gpg"), "--batch", "--quiet", "--no-auto-check-trustdb", "--list-secret-keys", "--", key},
        personsEnvironment());
}

void sign(const std::string& file, const std::string& key)
{
    outputOf({pathOf("gpg", "gpg"), "--batch", "--yes", "--armor", "--local-user", key, "--detach-sign", file},
        personsEnvironment());
}

void signRpm(const std::string& package, const std::string& key)
{
    // It looks along no path.
    const std::string gpg = "__gpg " + pathOf("gpg", "gpg");
    const std::string name = "_gpg_name " + replaced(key, {{"%", "%%"}});
    outputOf({pathOf("rpmsign", "rpm"), "--define", gpg, "--define", name, "--addsign", package}, personsEnvironment());
}

} // namespace corvellane::pack
