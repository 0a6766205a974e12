#pragma once

namespace corvellane::view {

/// Tells assistive technology what the host's own widgets are: the log and the alerts. Called once, after
/// the QApplication was made.
void installAccessibility();

} // namespace corvellane::view
