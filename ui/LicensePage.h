#pragma once

#include "view/View.h"

namespace corvellane {

/// The agreement, with its formatting, in the panel's full size.
View licenseView(const rtf::AttributedText& agreement);

} // namespace corvellane
