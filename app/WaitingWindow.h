#pragma once

#include "platform/qt/QtDispatcher.h"
#include "view/qt/ViewHost.h"

namespace corvellane {

/// Has the window live through the dispatcher's waits: it stays painted, makes no tree and hears no person until the
/// outcome is on the screen. The window outlives the waits.
inline void showWaits(QtDispatcher& dispatcher, view::ViewHost& window)
{
    dispatcher.observeWaits({
        [&window] { window.beginWait(); },
        [&window] { window.endWait(); },
        [&window] { window.showOutcome(); },
    });
}

} // namespace corvellane
