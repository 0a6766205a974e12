#pragma once

#include <QWidget>

namespace corvellane {

/// Gives the window the program's picture as its icon, at 16 to 256 points, shortly after the start: desktops that
/// find no icon by the program's name show this one.
void showIcon(QWidget& window);

} // namespace corvellane
