#pragma once

#include "install/InstallScript.h"
#include "platform/Files.h"

#include <string>
#include <vector>

namespace corvellane {

/// Something about a maker's products that will not go as its maker means it.
struct PayloadWarning {
    std::string path;
    std::string message;
};

using PayloadWarnings = std::vector<PayloadWarning>;

/// Entries of a folder that are no folders, and so are neither products nor elements; or that it cannot be listed.
PayloadWarnings warnAboutEntries(const Files& files, const std::string& folder);

/// The agreement of the resource folder that the products folder lies in; nothing when it lies in another folder.
PayloadWarnings warnAboutAgreement(const Files& files, const std::string& productsFolder);

/// A product that installs nothing.
PayloadWarnings warnAboutMissingElements(const std::string& product, const std::vector<std::string>& elements);

/// A name that the script can only hold escaped.
PayloadWarnings warnAboutName(const std::string& path);

/// What an element's own name and contents make of it. Reads the element's whole tree.
PayloadWarnings warnAboutElement(const std::string& path);

/// The folder for links that a script for these elements relies on and does not create.
PayloadWarnings warnAboutUncreatedFolder(const HostPaths& hosts, const std::vector<std::string>& elements);

} // namespace corvellane
