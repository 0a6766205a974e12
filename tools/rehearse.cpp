#include "base/PathNames.h"
#include "platform/posix/ProcessSetup.h"
#include "platform/posix/StreamConsole.h"
#include "tools/AgreementReport.h"
#include "tools/Colours.h"
#include "tools/CommandLine.h"
#include "tools/FolderTree.h"
#include "tools/PrintableText.h"
#include "tools/ProductNames.h"
#include "tools/Rehearsal.h"
#include "tools/ReportForms.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace corvellane {
namespace {

constexpr int allWell = 0;
constexpr int notWell = 1;

/// What the command line asks for. Paths are absolute.
struct Options {
    std::string productsFolder;
    bool script = false;
    std::optional<std::string> into;
    bool json = false;
    bool strict = false;
    /// The names of the products to tick; all of them when there is none.
    std::vector<std::string> select;
    std::string agreement;
    std::string agreementText;
};

constexpr const char* moreHelp
    = R"(FOLDER is a maker's folder, which holds Products, CorvellaneEULA.rtf and a logo, or a
products folder itself. Without an option, every product is shown with what becomes of
it; the script is carried out on a model, and what will not go well is told. Nothing is
changed.

A finding is an error (the installation or a plug-in will not work), a warning (likely
not meant) or a note, and is written as "SEVERITY: PATH: TEXT [CODE]".

Examples:
  rehearse ~/installer                        look before you ship
  rehearse --strict --json ~/installer        the same for a program that ships
  rehearse --into /tmp/try ~/installer        really install below /tmp/try, as yourself
  rehearse --select "Velvetgrain Photo" --script ~/installer

Exit status: 0 when all is well; 1 for errors, with --strict for warnings too, and for an
installation that fails; 2 for wrong usage.)";

void addOptions(CLI::App& program, Options& options)
{
    addCommonOptions(program, moreHelp);
    program.add_option("FOLDER", options.productsFolder, "The maker's folder, or its products folder")
        ->transform(asPath(program))
        ->check(CLI::ExistingDirectory.description(""))
        ->type_name(" ");
    program.add_flag("--strict", options.strict, "Exit with 1 for warnings too");
    program.add_flag("--json", options.json, "Print products and findings as JSON");
    program.add_flag("--script", options.script, "Print the script that would run, and nothing else");
    program.add_option("--into", options.into, "Install below this folder")
        ->transform(asPath(program))
        ->type_name("FOLDER");
    program.add_option("--select", options.select, "Take this product, and others only if they are named as well")
        ->transform(asValue(program))
        ->type_name("NAME")
        ->allow_extra_args(false);
    program.add_option("--agreement", options.agreement, "Print an agreement as the wizard reads it, as JSON")
        ->transform(asValue(program))
        ->type_name("FILE");
    program.add_option("--agreement-text", options.agreementText, "Print the words of an agreement")
        ->transform(asValue(program))
        ->type_name("FILE");
}

/// Ticks the named products and no others, all of them for no names; gives a name that no product has.
std::optional<std::string> select(AppSettings& settings, const std::vector<std::string>& names)
{
    std::vector<std::string> unwanted = *settings.products.get().locations();
    const std::vector<std::string> locations = unwanted;
    for (const std::string& name : names) {
        const std::string* product = productNamed(locations, name);
        if (product == nullptr) {
            return name;
        }
        std::erase(unwanted, *product);
    }
    if (!names.empty()) {
        std::ranges::for_each(unwanted, [&](const auto& location) { settings.toggleProduct(location); });
    }
    return std::nullopt;
}

int showScript(AppSettings& settings)
{
    const std::string script = composeInstallScript(settings.hostPaths(), settings.elementsToCopy());
    std::fwrite(script.data(), 1, script.size(), stdout);
    return allWell;
}

int showPayload(const PayloadReport& report, const Options& options, Console& console)
{
    if (options.json) {
        console.print(reportJson(report));
    } else {
        std::ranges::for_each(
            reportLines(report, showsColours(stdout)), [&](const auto& line) { console.print(line); });
    }
    return isRefused(report, options.strict) ? notWell : allWell;
}

std::vector<std::string> describeHostFolders(const HostPaths& hosts, const std::string& into)
{
    std::vector<std::string> lines;
    for (const std::string& folder : {hosts.application, hosts.photo, hosts.video, hosts.lightroom}) {
        const auto tree = describeTree(folder, into);
        lines.insert(lines.end(), tree.begin(), tree.end());
    }
    return lines;
}

int install(Rehearsal& rehearsal, const std::string& into, Console& console)
{
    rehearsal.install();
    const AppSettings& settings = rehearsal.settings();
    const bool withErrors = settings.completedWithErrors.get();
    console.print("page: " + std::string(nameOf(settings.currentPage.get())));
    console.print(std::string("completedWithErrors: ") + (withErrors ? "true" : "false"));
    console.print("log: " + *settings.logDetailsStr);
    for (const std::string& line : describeHostFolders(settings.hostPaths(), into)) {
        console.print(line);
    }
    return settings.currentPage.get() == Page::summary && !withErrors ? allWell : notWell;
}

int rehearseProducts(const CLI::App& program, const Options& options, const System& system)
{
    const std::string into = options.into.value_or("");
    Rehearsal rehearsal(system, options.productsFolder, into == "/" ? "" : into);
    if (const auto unknown = select(rehearsal.settings(), options.select)) {
        return refuseUsage(program, "there is no product “" + *unknown + "”");
    }
    if (options.script) {
        return showScript(rehearsal.settings());
    }
    if (options.into) {
        return install(rehearsal, into, *system.console);
    }
    return showPayload(rehearsal.report(), options, *system.console);
}

int showAgreement(const CLI::App& program, const Options& options, const Files& files)
{
    if (program.parse_order().size() > 1) {
        return refuseUsage(program, "an agreement is shown by itself, without products and what is done with them");
    }
    const auto report = options.agreement.empty()
        ? agreementReport(files, options.agreementText, AgreementForm::plainText)
        : agreementReport(files, options.agreement, AgreementForm::json);
    if (!report) {
        complain(program, printable(report.error().message));
        return notWell;
    }
    std::fwrite(report->data(), 1, report->size(), stdout);
    return allWell;
}

int carryOut(const CLI::App& program, Options& options)
{
    System system;
    if (!options.agreement.empty() || !options.agreementText.empty()) {
        return showAgreement(program, options, *system.files);
    }
    if (options.productsFolder.empty()) {
        return refuseUsage(program, "FOLDER is missing; --help tells the usage");
    }
    const std::array wanted{options.script, options.into.has_value(), options.json || options.strict};
    if (std::ranges::count(wanted, true) > 1) {
        return refuseUsage(
            program, "--script, --into and the report of --json and --strict are three different things");
    }
    options.productsFolder = productsFolderIn(options.productsFolder);
    if (const auto refused = refuseAmongProducts(program, options.into.value_or(""), options.productsFolder)) {
        return *refused;
    }
    if (options.script) {
        // The script stands alone on standard output.
        system.console = std::make_shared<StreamConsole>(stderr);
    }
    return rehearseProducts(program, options, system);
}

int rehearse(int count, char** arguments)
{
    Options options;
    CLI::App program("What becomes of a maker's products and agreement.", "rehearse");
    addOptions(program, options);
    const auto ending = readArguments(program, count, arguments);
    return endOutput(program, ending ? *ending : carryOut(program, options));
}

} // namespace
} // namespace corvellane

int main(int count, char** arguments)
{
    corvellane::setUpProcess();
    return corvellane::rehearse(count, arguments);
}
