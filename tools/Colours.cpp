#include "tools/Colours.h"

#include "platform/posix/StreamConsole.h"

#include <array>
#include <cstdlib>

namespace corvellane {

bool showsColours(std::FILE* stream)
{
    const char* const refusal = std::getenv("NO_COLOR");
    const char* const terminal = std::getenv("TERM");
    return isTerminal(stream) && (refusal == nullptr || *refusal == '\0') && terminal != nullptr
        && std::string_view(terminal) != "dumb";
}

std::string coloured(std::string_view text, Colour colour, bool isShown)
{
    constexpr std::array<std::string_view, 3> codes{"31", "33", "36"};
    std::string result(text);
    if (isShown) {
        result.insert(0, "m").insert(0, codes.at(static_cast<std::size_t>(colour))).insert(0, "\x1b[1;");
        result += "\x1b[0m";
    }
    return result;
}

} // namespace corvellane
