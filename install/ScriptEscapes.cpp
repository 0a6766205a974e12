#include "install/ScriptEscapes.h"

#include <algorithm>
#include <array>

namespace corvellane {
namespace {

/// The bytes that get a backslash before them, and what each becomes behind it.
class Escapes {
public:
    constexpr explicit Escapes(std::string_view escaped)
    {
        for (const char byte : escaped) {
            with(byte, byte);
        }
    }

    constexpr Escapes& with(char byte, char name)
    {
        names_[static_cast<unsigned char>(byte)] = name;
        return *this;
    }

    std::string apply(std::string text) const
    {
        if (std::ranges::none_of(text, [&](char byte) { return nameOf(byte) != 0; })) {
            return text;
        }
        std::string escaped;
        for (const char byte : text) {
            if (const char name = nameOf(byte)) {
                escaped += {'\\', name};
            } else {
                escaped += byte;
            }
        }
        return escaped;
    }

private:
    char nameOf(char byte) const { return names_[static_cast<unsigned char>(byte)]; }

    std::array<char, 256> names_{};
};

constexpr Escapes luaEscapes = Escapes("\\\"").with('\n', 'n').with('\r', 'r');
constexpr Escapes echoEscapes("\\");
constexpr Escapes shellEscapes("\\\"$`");
constexpr Escapes literalEscapes("\\\"");

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
