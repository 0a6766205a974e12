#include "app/Installer.h"

#include "app/AppDelegate.h"
#include "app/WaitingWindow.h"
#include "platform/posix/DirectPrompt.h"
#include "platform/posix/PkexecPrompt.h"

#include <QApplication>

#include <unistd.h>

namespace corvellane {
namespace {

/// Root need not be asked.
std::unique_ptr<AdministratorPrompt> makePrompt(const ExecutableBundle& bundle)
{
    if (geteuid() == 0) {
        return std::make_unique<DirectPrompt>(realUser());
    }
    return std::make_unique<PkexecPrompt>(bundle.program("corvellane-command-runner"), bundle.folder("Products"));
}

} // namespace

Installer::Installer()
    : prompt_(makePrompt(bundle_))
    , scripts_({shell_, *prompt_, fileManager_, folders_})
    , translations_(bundle_.folder("translations").value_or(""), QLocale::system())
    , scene_({application_, console_, dispatcher_, files_, pasteboard_, bundle_, scripts_, folders_, workspace_})
{
    AppDelegate::applicationDidFinishLaunching(application_);
    showWaits(dispatcher_, window());
    application_.offerMainMenu(window(), [this] { return window().hears(); });
    QApplication::setQuitOnLastWindowClosed(AppDelegate::applicationShouldTerminateAfterLastWindowClosed(application_));
}

int Installer::run()
{
    window().show();
    return QApplication::exec();
}

} // namespace corvellane
