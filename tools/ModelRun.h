#pragma once

#include "install/HostPaths.h"
#include "tools/Finding.h"
#include "tools/ModelTree.h"

#include <string>

namespace corvellane {

/// Adds the host folders to a model as the host applications leave them: those for links are there.
void addHostFolders(ModelTree& tree, const HostPaths& hosts);

/// Carries the commands of an installation's script out on a model that holds the products, and gives what does not go
/// well on the way: what an element's commands made is overwritten or removed for another element, or something that
/// a command needs is not there. The products folder has no "/" at its end.
Findings runOnModel(
    ModelTree& tree, const std::string& script, const std::string& productsFolder, const HostPaths& hosts);

} // namespace corvellane
