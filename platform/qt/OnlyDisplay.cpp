#include "platform/qt/Display.h"

namespace corvellane {

/// Where there is one kind of display, and it is always there.
QApplication applicationOnDisplay(int& count, char** arguments)
{
    return {count, arguments};
}

} // namespace corvellane
