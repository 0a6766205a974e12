#pragma once

#include "tools/Finding.h"
#include "tools/ModelTree.h"

#include <string>
#include <vector>

namespace corvellane {

/// What is wrong with the products folder, the products in it and their elements as their maker has them: what cannot
/// be read or copied, modes that are lost or make root refuse them, and what a maker's tools have left behind.
Findings inspectPayload(
    const ModelTree& tree, const std::string& productsFolder, const std::vector<std::string>& elements);

/// What is wrong with one installed element: what the person cannot read, links that lead out of it or nowhere, paths
/// that are too long, not one file.
Findings inspectInstalled(const ModelTree& tree, const std::string& element);

/// Entries below the folder whose names are one where capitals do not count.
Findings inspectNames(const ModelTree& tree, const std::string& folder);

} // namespace corvellane
