#pragma once

#include "view/View.h"

namespace corvellane {

/// The products that will be installed.
View selectedProductsView(const AppSettings& settings);

} // namespace corvellane
