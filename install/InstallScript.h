#pragma once

#include "install/HostPaths.h"
#include "install/ScriptText.h"

#include <string>
#include <vector>

namespace corvellane {

/// The whole automation script that installs the elements, in their order; ends without a line feed.
///
/// Every change is one shell command with administrator privileges; the first that fails ends the script, which then
/// gives that command's message, and else "Ok". Of the two folders for links only that of the kind that comes first
/// is created. Element paths have no trailing "/". Paths may hold any byte but NUL: they are escaped so that the
/// commands get them unchanged.
std::string composeInstallScript(const HostPaths& hosts, const std::vector<std::string>& elements);

/// Which of the folders for links a script creates.
enum class LinkFolders {
    /// That of the kind that comes first: the host applications have made the other one.
    ofTheFirstKind,
    /// Those of all kinds that come, as on a machine that no host application has been on.
    ofEachKind,
};

/// Appends the commands that install the elements.
void appendInstallation(
    ScriptText& script, const HostPaths& hosts, const std::vector<std::string>& elements, LinkFolders folders);

} // namespace corvellane
