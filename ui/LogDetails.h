#pragma once

#include "view/View.h"

namespace corvellane {

/// The failed installation's message on a card, to be read and copied.
View logDetailsCard(AppSettings& settings);

} // namespace corvellane
