#pragma once

#include "view/View.h"

#include <QColor>
#include <QPalette>

namespace corvellane::view {

QColor colorOf(Tint tint);

/// The light scheme, the same for windows with and without the focus; every role of every group is set.
QPalette lightPalette();

} // namespace corvellane::view
