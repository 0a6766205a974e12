#pragma once

#include <QScrollBar>

namespace corvellane::view {

/// Every bar of the program is one for dragging, without arrows to step by.
void makePlain(QScrollBar& bar);

/// A page further, by key or by a press beside the bar's handle, the line that may have been cut is seen again.
void seeLastLineAgain(QScrollBar& bar);

} // namespace corvellane::view
