#pragma once

#include "state/Page.h"

#include <string>

namespace corvellane {

/// What the side bar calls a page.
std::string sideBarLabel(Page page);

/// The title over a page; empty for a page without one.
std::string pageTitle(Page page);

} // namespace corvellane
