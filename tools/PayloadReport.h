#pragma once

#include "install/InstallScript.h"
#include "platform/Files.h"
#include "products/ProductSelection.h"
#include "tools/PayloadWarnings.h"

#include <string>
#include <vector>

namespace corvellane {

/// What installing a selection would do.
struct PayloadReport {
    /// Product by product in display order, element by element, as lines for a person.
    std::vector<std::string> lines;
    PayloadWarnings warnings;
};

/// Reads the whole payload of the ticked products, and changes nothing.
PayloadReport reportPayload(
    const Files& files, const std::string& productsFolder, const ProductSelection& selection, const HostPaths& hosts);

} // namespace corvellane
