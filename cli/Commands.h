#pragma once

#include "cli/Answer.h"
#include "cli/Installation.h"

namespace corvellane {

/// Names the elements and their kinds.
Answer list(const Order& order);

/// Compares what is installed with what is shipped; failed when something is not as shipped.
Answer verify(const Order& order);

/// Installs everything or, if wanted, only what is not as shipped.
Answer install(const Order& order, bool onlyIfNeeded);

/// Takes away what installing makes; what is not there is no failure.
Answer remove(const Order& order);

} // namespace corvellane
