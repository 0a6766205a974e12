#pragma once

#include "products/ProductSelection.h"

#include <string>
#include <vector>

namespace corvellane {

/// The locations of all products, ticked or not, ascending by their folders' names. Names are compared by their
/// Unicode scalar values in canonical composed form (Unicode Standard Annex 15, form C); one that is not valid UTF-8
/// is compared by its bytes. Equal names stay in the order of their locations.
std::vector<std::string> inDisplayOrder(const ProductSelection& selection);

} // namespace corvellane
