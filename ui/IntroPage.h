#pragma once

#include "view/View.h"

namespace corvellane {

/// The welcome message.
View introView();

} // namespace corvellane
