#pragma once

#include "ui/View.h"

namespace corvellane {

/// The welcome message.
View introView();

} // namespace corvellane
