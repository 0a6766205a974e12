#pragma once

#include "view/View.h"

namespace corvellane {

/// The logo and the list of the pages, the current one marked.
View sideBar(const AppSettings& settings);

} // namespace corvellane
