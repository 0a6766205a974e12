#include "app/Installer.h"
#include "platform/Resources.h"
#include "platform/posix/ProcessSetup.h"
#include "platform/qt/Display.h"
#include "tools/CommandLine.h"
#include "tools/Rehearsal.h"

#include <algorithm>
#include <span>

namespace corvellane {
namespace {

constexpr const char* moreHelp
    = R"(FOLDER is a maker's folder, which holds Products, CorvellaneEULA.rtf and a logo, or a
products folder beside which the other two lie. What is installed really is, as yourself
and without a password, but below the folder of --into.

Example:
  rehearse-window --into /tmp/try ~/installer

Exit status: 0 when the window was closed; 2 for wrong usage, and when there is no display
to open it on.)";

struct Options {
    std::string folder;
    std::string into;
    std::string translations;
};

void addOptions(CLI::App& program, Options& options)
{
    addCommonOptions(program, moreHelp);
    program.add_option("FOLDER", options.folder, "The maker's folder, or its products folder")
        ->required()
        ->transform(asPath(program))
        ->check(CLI::ExistingDirectory.description(""))
        ->type_name(" ");
    program.add_option("--into", options.into, "Install below this folder, which is made")
        ->required()
        ->transform(asPath(program))
        ->type_name("FOLDER");
    program.add_option("--translations", options.translations, "Take the translated texts from this folder")
        ->transform(asPath(program))
        ->type_name("FOLDER");
}

/// What is answered without a display.
bool isQuestion(int count, char** arguments)
{
    return std::ranges::any_of(std::span(arguments, static_cast<std::size_t>(count)),
        [](std::string_view argument) { return argument == "--help" || argument == "--version"; });
}

int rehearse(int count, char** arguments)
{
    Options options;
    CLI::App program("The wizard with its window, installing below a scratch folder.", "rehearse-window");
    addOptions(program, options);
    if (isQuestion(count, arguments)) {
        return endOutput(program, readArguments(program, count, arguments).value_or(0));
    }
    const QApplication platform = applicationOnDisplay(count, arguments);
    if (const auto ending = readArguments(program, count, arguments)) {
        return *ending;
    }
    const std::string products = productsFolderIn(options.folder);
    if (const auto refused = refuseAmongProducts(program, options.into, products)) {
        return *refused;
    }
    view::ViewHost::prepareApplication();
    DesktopSystem system;
    if (options.translations.empty()) {
        options.translations = system.resources->folder("translations").value_or("");
    }
    makeRehearsal(system, products, options.into);
    return Installer(system, options.translations).run();
}

} // namespace
} // namespace corvellane

int main(int count, char** arguments)
{
    corvellane::setUpProcess();
    return corvellane::rehearse(count, arguments);
}
