#pragma once

#include <QApplication>

namespace corvellane {

/// The application on the display that answers, of X11 or of Wayland, or on what the platform argument or variable of
/// Qt says. Without any, ends the program with one line on standard error and the exit status 2. Both arguments are
/// main's, and outlive it.
QApplication applicationOnDisplay(int& count, char** arguments);

} // namespace corvellane
