#pragma once

#include "view/View.h"

namespace corvellane {

/// All products as a check list, or the message that there are none.
View productsView(AppSettings& settings);

} // namespace corvellane
