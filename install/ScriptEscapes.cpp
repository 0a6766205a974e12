#include "install/ScriptEscapes.h"

#include <algorithm>
#include <array>

namespace corvellane {
namespace {

/// What each byte becomes; most stay as they are.
class Escapes {
public:
    constexpr Escapes& with(char character, std::string_view replacement)
    {
        replacements_[static_cast<unsigned char>(character)] = replacement;
        isPlain_[static_cast<unsigned char>(character)] = false;
        return *this;
    }

    std::string apply(std::string text) const
    {
        const auto firstEscaped = std::find_if_not(text.begin(), text.end(), [&](char byte) { return isPlain(byte); });
        if (firstEscaped == text.end()) {
            return text;
        }
        std::string escaped(text.begin(), firstEscaped);
        std::for_each(firstEscaped, text.end(), [&](char byte) { append(escaped, byte); });
        return escaped;
    }

private:
    bool isPlain(char byte) const { return isPlain_[static_cast<unsigned char>(byte)]; }

    void append(std::string& escaped, char byte) const
    {
        if (isPlain(byte)) {
            escaped += byte;
        } else {
            escaped += replacements_[static_cast<unsigned char>(byte)];
        }
    }

    static constexpr std::array<bool, 256> allPlain()
    {
        std::array<bool, 256> plain{};
        plain.fill(true);
        return plain;
    }

    std::array<std::string_view, 256> replacements_{};
    std::array<bool, 256> isPlain_ = allPlain();
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
