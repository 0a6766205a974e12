#pragma once

#include "view/View.h"

namespace corvellane {

/// The buttons that move through the wizard, and "Select All" on the page of the products.
View buttonRow(AppSettings& settings);

} // namespace corvellane
