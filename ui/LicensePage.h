#pragma once

#include "ui/View.h"

namespace corvellane {

/// The agreement, with its formatting, in the panel's full size.
View licenseView(const AttributedText& agreement);

} // namespace corvellane
