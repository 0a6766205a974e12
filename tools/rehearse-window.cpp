#include "app/Installer.h"
#include "platform/posix/ProcessSetup.h"
#include "platform/qt/Display.h"
#include "tools/CommandLine.h"
#include "tools/Rehearsal.h"

int main(int count, char** arguments)
{
    using namespace corvellane;
    setUpProcess();
    const QApplication platform = applicationOnDisplay(count, arguments);
    CLI::App program("The wizard with its window, installing below a scratch folder.", "rehearse-window");
    std::string products;
    std::string into;
    std::string translations;
    program.set_help_flag("--help", "Print this and end");
    program.add_option("PRODUCTS", products, "The products folder; the agreement and the logo lie beside it")
        ->required()
        ->transform(asPath(program))
        ->check(CLI::ExistingDirectory)
        ->type_name("FOLDER");
    program.add_option("--into", into, "Install below this folder, which is made")
        ->required()
        ->transform(asPath(program))
        ->type_name("FOLDER");
    program.add_option("--translations", translations, "Take the translated texts from this folder")
        ->transform(asPath(program))
        ->type_name("FOLDER");
    if (const auto ending = readArguments(program, count, arguments)) {
        return *ending;
    }
    view::ViewHost::prepareApplication();
    DesktopSystem system;
    makeRehearsal(system, products, into);
    return Installer(system, translations).run();
}
