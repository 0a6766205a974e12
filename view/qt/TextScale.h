#pragma once

namespace corvellane::view {

/// How much larger than their points all texts of the window are set: more than 1 where the desktop's own font is
/// larger than usual. Needs a QApplication.
double textScale();

} // namespace corvellane::view
