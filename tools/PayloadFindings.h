#pragma once

#include "platform/Files.h"
#include "tools/Finding.h"

#include <string>
#include <string_view>
#include <vector>

namespace corvellane {

/// Whether files of that name are made by the tools of a maker, and meant for nobody.
bool isLeftover(std::string_view name);

/// What the entries of the products folder or of a product are taken for: those that are no folders are ignored.
Findings inspectEntries(const Files& files, const std::string& folder);

/// What a product's own name, and its having elements, make of it.
Findings inspectProduct(const std::string& product, const std::vector<std::string>& elements);

/// What an element's names make of it.
Findings inspectElement(const std::string& path);

/// A name that the script can only hold escaped.
Findings inspectName(const std::string& path);

/// The agreement and the logo, which lie beside the products folder.
Findings inspectResources(const Files& files, const std::string& productsFolder);

} // namespace corvellane
