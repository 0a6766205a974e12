#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

/// The six commands of an installation and the two more of a removal, as their scripts write them for a shell. A path
/// or text in double quotes has a backslash before each `\`, `"`, `$` and backtick, and before nothing else.
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

/// `[ "$(readlink -n "LINK")" != "TARGET" ] || rm -f "LINK"`: the link, only while it points there.
struct Unlink {
    std::string link;
    std::string target;
};

/// `rmdir -p "PATH"`: the folder, if it is empty and an installation has made it, and then those above it as far as the
/// same is true of them. One that stays is no error.
struct RemoveFolders {
    std::string path;
};

using InstallCommand = std::variant<MakeFolder, Copy, Remove, Link, WriteText, HandOver, Unlink, RemoveFolders>;

/// Absent for anything that is not exactly one of them.
std::optional<InstallCommand> parseCommand(std::string_view text);

} // namespace corvellane::runner
