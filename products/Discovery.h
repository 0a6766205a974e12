#pragma once

#include "platform/Files.h"

#include <string>
#include <vector>

namespace corvellane {

class Resources;

/// The folders directly in `folder`, files and links left out, in the listing's order: the products of the products
/// folder, the elements of a product. Their paths have no trailing "/".
Expected<std::vector<std::string>> foldersIn(const Files& files, const std::string& folder);

/// The folders of the resource folder's "Products" folder.
Expected<std::vector<std::string>> discoverProducts(const Resources& resources, const Files& files);

} // namespace corvellane
