#include "install/ScriptEscapes.h"

#include <algorithm>
#include <array>

namespace corvellane {
namespace {

/// What each byte becomes; those without a replacement stay as they are.
class Escapes {
public:
    constexpr Escapes& with(char character, std::string_view replacement)
    {
        replacements_[static_cast<unsigned char>(character)] = replacement;
        return *this;
    }

    std::string apply(std::string text) const
    {
        if (std::ranges::all_of(text, [&](char byte) { return replacementOf(byte).empty(); })) {
            return text;
        }
        std::string escaped;
        for (const char byte : text) {
            const std::string_view replacement = replacementOf(byte);
            escaped += replacement.empty() ? std::string_view(&byte, 1) : replacement;
        }
        return escaped;
    }

private:
    std::string_view replacementOf(char byte) const { return replacements_[static_cast<unsigned char>(byte)]; }

    std::array<std::string_view, 256> replacements_{};
};

constexpr Escapes luaEscapes = Escapes().with('\\', R"(\\)").with('"', R"(\")").with('\n', R"(\n)").with('\r', R"(\r)");
constexpr Escapes echoEscapes = Escapes().with('\\', R"(\\)");
constexpr Escapes shellEscapes = Escapes().with('\\', R"(\\)").with('"', R"(\")").with('$', R"(\$)").with('`', R"(\`)");
constexpr Escapes literalEscapes = Escapes().with('\\', R"(\\)").with('"', R"(\")");

} // namespace

std::string asArgument(std::string_view path)
{
    return literalEscapes.apply(shellEscapes.apply(std::string(path)));
}

std::string asEchoedText(std::string_view path)
{
    return asArgument(echoEscapes.apply(std::string(path)));
}

std::string asEchoedLuaString(std::string_view path)
{
    return asEchoedText(luaEscapes.apply(std::string(path)));
}

} // namespace corvellane
