#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace corvellane {

/// What stands around a text in double quotes for the shell, inside a literal of a script.
constexpr std::string_view quote = R"(\")";

/// An automation script of shell commands with administrator privileges: the first that fails ends it, and it then
/// gives that command's message, and else "Ok".
class ScriptText {
public:
    /// The command's parts, one after the other; what they quote has been escaped for it before. `space` stands between
    /// the command and the words that ask for the privileges.
    void append(std::initializer_list<std::string_view> command, std::string_view space = " ");

    /// Ends without a line feed.
    std::string finish() &&;

private:
    std::string text_ = "try\n";
};

} // namespace corvellane
