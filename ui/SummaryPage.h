#pragma once

#include "view/View.h"

namespace corvellane {

/// How the installation ended; after a failure with a link to the details.
View summaryView(AppSettings& settings);

} // namespace corvellane
