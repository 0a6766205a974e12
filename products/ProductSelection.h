#pragma once

#include <map>
#include <string>

namespace corvellane {

/// The products on offer: the path of each product's folder, and whether it is ticked.
using ProductSelection = std::map<std::string, bool>;

/// Turns the product's tick to its opposite; a product that is absent is added ticked.
void toggleProduct(ProductSelection& selection, const std::string& location);

/// The same products, all of them ticked.
ProductSelection allSelected(ProductSelection selection);

bool anySelected(const ProductSelection& selection);

/// The products that are ticked, and no others.
ProductSelection onlySelected(const ProductSelection& selection);

} // namespace corvellane
