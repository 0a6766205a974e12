#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

/// The six commands of an installation, as its script writes them for a shell. A path or text in double quotes has a
/// backslash before each `\`, `"`, `$` and backtick, and before nothing else.
namespace corvellane::runner {

/// `mkdir -p "PATH"`
struct MakeFolder {
    std::string path;
};

/// `cp -R -f "SOURCE" "FOLDER"`: with a "/" at the end of SOURCE, what lies in it.
struct Copy {
    std::string source;
    std::string folder;
};

/// `rm -R -f "PATH"`
struct Remove {
    std::string path;
};

/// `ln -f -h -s "TARGET" "LINK"`: a link at LINK is replaced; in a folder there, the link gets the target's name.
struct Link {
    std::string target;
    std::string link;
};

/// `echo "TEXT" > "PATH"`
struct WriteText {
    /// As it is written: backslashes interpreted as POSIX's XSI option has `echo` do it, and a line feed at the end.
    std::string text;
    std::string path;
};

/// `chown -R $USER "PATH"`
struct HandOver {
    std::string path;
};

using InstallCommand = std::variant<MakeFolder, Copy, Remove, Link, WriteText, HandOver>;

/// Absent for anything that is not exactly one of the six.
std::optional<InstallCommand> parseCommand(std::string_view text);

} // namespace corvellane::runner
