#pragma once

#include <QScrollBar>

namespace corvellane::view {

/// A page further, by key or by a press beside the bar's handle, the line that may have been cut is seen again.
void seeLastLineAgain(QScrollBar& bar);

} // namespace corvellane::view
