#include "pack/Programs.h"

#include "helper/Program.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace corvellane::pack {
namespace {

namespace fs = std::filesystem;

std::string inherited(const char* name, const char* otherwise)
{
    const char* const value = std::getenv(name);
    return value != nullptr ? value : otherwise;
}

} // namespace

std::string pathOf(const std::string& program, const std::string& package)
{
    const std::string folders = inherited("PATH", "/usr/bin:/bin");
    for (std::size_t begin = 0; begin <= folders.size();) {
        const std::size_t end = std::min(folders.find(':', begin), folders.size());
        const std::string candidate = folders.substr(begin, end - begin) + "/" + program;
        if (fs::is_regular_file(candidate)) {
            return candidate;
        }
        begin = end + 1;
    }
    throw std::runtime_error("the program " + program + " is missing; install the package " + package);
}

std::string outputOf(const std::vector<std::string>& words, const std::vector<std::string>& environment)
{
    std::vector<std::string> whole = environment;
    whole.insert(whole.end(), {"PATH=/usr/bin:/bin", "LC_ALL=C.UTF-8", "HOME=" + inherited("HOME", "/")});
    const runner::Reply reply = runner::runProgram(words.front(), words, whole, words.front());
    if (reply.status != 0) {
        const std::string errors = reply.errors.substr(0, reply.errors.find_last_not_of('\n') + 1);
        throw std::runtime_error(words.front() + ": " + errors);
    }
    return reply.output;
}

} // namespace corvellane::pack
