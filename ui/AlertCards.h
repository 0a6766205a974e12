#pragma once

#include "view/View.h"

namespace corvellane {

/// A card that takes the space the window offers up to its maximum, in points.
View card(View content, Tint fill, int maximumWidth, int maximumHeight);

View agreementCard(AppSettings& settings);

View installConfirmationCard(AppSettings& settings);

/// Repeats the probe of the permission once a second for as long as it is shown and the permission is missing.
View automationPermissionCard(AppSettings& settings);

} // namespace corvellane
