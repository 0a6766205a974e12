#include "tools/WindowRehearsal.h"

#include "app/WaitingWindow.h"

namespace corvellane {

WindowRehearsal::WindowRehearsal(
    const std::string& productsFolder, const std::string& into, Application& application, Console& console)
    : resources_(productsFolder)
    , folders_(into)
    , scene_({application, console, dispatcher_, files_, pasteboard_, resources_, scripts_, folders_, workspace_})
{
    showWaits(dispatcher_, window());
}

} // namespace corvellane
