#include "cli/Advice.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace corvellane {
namespace {

struct Advice {
    /// The system's own words; the tools are told to speak English.
    std::string_view reason;
    std::string_view advice;
};

constexpr std::array advices{
    Advice{"No space left on device", "Make room there"},
    Advice{"There is not enough room", "Make room there"},
    Advice{"Disk quota exceeded", "Make room there"},
    Advice{"Is a directory", "Move away what stands there"},
    Advice{"File exists", "Move away what stands there"},
    Advice{"Not a directory", "Move away the file that stands where a folder must be"},
    Advice{"Directory nonexistent", "Move away what stands where a folder must be"},
    Advice{"cannot overwrite", "Move away what stands there"},
    Advice{"Read-only file system", "Have it mounted for writing"},
    Advice{"cannot be read", "Let whoever runs this read it, or unpack or install the installer anew as root"},
    Advice{"could not be started", "Unpack or install the installer anew as root"},
    Advice{"Permission denied", "Let the user write there"},
    Advice{"", "See to that"},
};

void putInOneLine(std::string& text)
{
    for (auto end = text.find('\n'); end != std::string::npos; end = text.find('\n', end)) {
        text.replace(end, 1, "; ");
    }
}

} // namespace

std::string withAdvice(std::string words)
{
    putInOneLine(words);
    if (words.ends_with(" again.")) {
        return words;
    }
    const auto* const fitting = std::ranges::find_if(
        advices, [&](const Advice& each) { return words.find(each.reason) != std::string::npos; });
    return words + (words.ends_with('.') ? " " : ". ") + std::string(fitting->advice) + ", and run this again.";
}

} // namespace corvellane
