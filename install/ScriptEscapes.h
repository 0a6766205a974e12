#pragma once

#include <string>
#include <string_view>

namespace corvellane {

/// `path` for a place inside a script's quoted text where the shell reads a text in double quotes. Each of these
/// leaves a path of ordinary characters as it is.

/// As a command's argument or a redirection's target.
std::string asArgument(std::string_view path);

/// As text that the command `echo` writes, which interprets backslashes itself.
std::string asEchoedText(std::string_view path);

/// As part of a quoted Lua string in a text that `echo` writes.
std::string asEchoedLuaString(std::string_view path);

} // namespace corvellane
