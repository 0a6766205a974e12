#pragma once

#include "ui/View.h"

namespace corvellane {

/// The products that will be installed.
View selectedProductsView(const AppSettings& settings);

} // namespace corvellane
