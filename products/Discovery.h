#pragma once

#include "platform/FileListing.h"

#include <string>
#include <vector>

namespace corvellane {

class Resources;

/// The folders directly in `folder`, files and links left out, in the listing's order: the products of the products
/// folder, the elements of a product. Their paths have no trailing "/".
std::variant<std::vector<std::string>, ListingFailure> foldersIn(const FileListing& files, const std::string& folder);

/// The folders of the resource folder's "Products" folder.
std::variant<std::vector<std::string>, ListingFailure> discoverProducts(
    const Resources& resources, const FileListing& files);

} // namespace corvellane
