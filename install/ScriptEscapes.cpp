#include "install/ScriptEscapes.h"

#include <algorithm>
#include <array>

namespace corvellane {
namespace {

/// What each byte becomes; the empty text stands for the byte itself.
class Escapes {
public:
    constexpr Escapes& with(char character, std::string_view replacement)
    {
        replacements_[static_cast<unsigned char>(character)] = replacement;
        return *this;
    }

    std::string apply(std::string_view text) const
    {
        std::string escaped;
        while (!text.empty()) {
            const std::size_t plain = lengthOfPlainStart(text);
            escaped.append(text.substr(0, plain));
            if (plain < text.size()) {
                escaped.append(replacementOf(text[plain]));
            }
            text.remove_prefix(std::min(plain + 1, text.size()));
        }
        return escaped;
    }

private:
    std::string_view replacementOf(char character) const
    {
        return replacements_[static_cast<unsigned char>(character)];
    }

    std::size_t lengthOfPlainStart(std::string_view text) const
    {
        const auto* end
            = std::find_if(text.begin(), text.end(), [&](char character) { return !replacementOf(character).empty(); });
        return static_cast<std::size_t>(end - text.begin());
    }

    std::array<std::string_view, 256> replacements_{};
};

constexpr Escapes luaEscapes = Escapes().with('\\', R"(\\)").with('"', R"(\")").with('\n', R"(\n)").with('\r', R"(\r)");
constexpr Escapes echoEscapes = Escapes().with('\\', R"(\\)");
constexpr Escapes shellEscapes = Escapes().with('\\', R"(\\)").with('"', R"(\")").with('$', R"(\$)").with('`', R"(\`)");
constexpr Escapes literalEscapes = Escapes().with('\\', R"(\\)").with('"', R"(\")");

} // namespace

std::string asArgument(std::string_view path)
{
    return literalEscapes.apply(shellEscapes.apply(path));
}

std::string asEchoedText(std::string_view path)
{
    return asArgument(echoEscapes.apply(path));
}

std::string asEchoedLuaString(std::string_view path)
{
    return asEchoedText(luaEscapes.apply(path));
}

} // namespace corvellane
