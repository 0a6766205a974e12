#include "app/AppDelegate.h"
#include "app/CorvellaneInstallerApp.h"
#include "platform/posix/DirectPrompt.h"
#include "platform/posix/ExecutableBundle.h"
#include "platform/posix/PkexecPrompt.h"
#include "platform/posix/PosixFileListing.h"
#include "platform/posix/PosixShell.h"
#include "platform/posix/PosixStandardFolders.h"
#include "platform/posix/StreamConsole.h"
#include "platform/qt/DBusFileManager.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtDispatcher.h"
#include "platform/qt/QtPasteboard.h"
#include "platform/qt/QtWorkspace.h"
#include "platform/qt/Translations.h"
#include "platform/script/InterpretedScriptService.h"

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
    return std::make_unique<PkexecPrompt>(bundle.program("corvellane-command-runner"));
}

int run()
{
    ViewHost::prepareApplication();
    QtApplication application;
    StreamConsole console(stdout);
    QtDispatcher dispatcher;
    PosixFileListing files;
    QtPasteboard pasteboard;
    ExecutableBundle bundle;
    PosixStandardFolders folders;
    PosixShell shell(realUser());
    const auto prompt = makePrompt(bundle);
    DBusFileManager fileManager;
    InterpretedScriptService scripts({shell, *prompt, fileManager, folders});
    QtWorkspace workspace;
    const Translations translations(bundle.folder("translations").value_or(""), QLocale::system());
    CorvellaneInstallerApp scene(
        {application, console, dispatcher, files, pasteboard, bundle, scripts, folders, workspace});
    AppDelegate::applicationDidFinishLaunching(application);
    application.offerMainMenu(scene.window());
    QApplication::setQuitOnLastWindowClosed(AppDelegate::applicationShouldTerminateAfterLastWindowClosed(application));
    scene.window().show();
    return QApplication::exec();
}

} // namespace
} // namespace corvellane

int main(int count, char** arguments)
{
    const QApplication platform(count, arguments);
    return corvellane::run();
}
