#pragma once

#include <QWidget>

namespace corvellane {

class Files;
class Resources;

/// Gives the window its icon, at 16 to 256 points, shortly after the start: desktops that find none by the program's
/// name show this one. It is the maker's own, "Icon.svg" of the resources, or where that is no picture the program's.
/// Main thread; the resources and the files outlive the window.
void showIcon(QWidget& window, const Resources& resources, const Files& files);

} // namespace corvellane
