#include "base/PathNames.h"
#include "platform/posix/ProcessSetup.h"
#include "platform/posix/StreamConsole.h"
#include "tools/AgreementReport.h"
#include "tools/FolderTree.h"
#include "tools/PayloadReport.h"
#include "tools/PrintableText.h"
#include "tools/Rehearsal.h"
#include "tools/RehearseOptions.h"

#include <algorithm>
#include <cstdio>

namespace corvellane {
namespace {

constexpr int allWell = 0;
constexpr int notWell = 1;
constexpr int wrongUsage = 2;

int complain(const std::string& message)
{
    std::fprintf(stderr, "rehearse: %s\n", message.c_str());
    return wrongUsage;
}

/// Ticks the named products and no others; gives a name that no product has.
std::optional<std::string> select(AppSettings& settings, const std::vector<std::string>& names)
{
    const std::vector<std::string> locations = *settings.products.get().locations();
    const auto hasName = [](const std::string& name) {
        return [&name](const std::string& location) { return lastPathComponent(location) == name; };
    };
    for (const std::string& name : names) {
        if (std::none_of(locations.begin(), locations.end(), hasName(name))) {
            return name;
        }
    }
    for (const std::string& location : locations) {
        const auto isProduct = [&](const std::string& name) { return hasName(name)(location); };
        if (!names.empty() && std::none_of(names.begin(), names.end(), isProduct)) {
            settings.toggleProduct(location);
        }
    }
    return std::nullopt;
}

int showScript(AppSettings& settings)
{
    const std::string script = composeInstallScript(settings.hostPaths(), settings.elementsToCopy());
    std::fwrite(script.data(), 1, script.size(), stdout);
    return allWell;
}

int showPayload(AppSettings& settings, const std::string& productsFolder, Console& console)
{
    const auto report = reportPayload(PosixFiles(), productsFolder, settings.products.get(), settings.hostPaths());
    for (const std::string& line : report.lines) {
        console.print(line);
    }
    for (const PayloadWarning& warning : report.warnings) {
        console.print("warning: " + printable(warning.path) + ": " + printable(warning.message));
    }
    return report.warnings.empty() ? allWell : notWell;
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

int rehearseProducts(const RehearseOptions& options)
{
    // The script stands alone on standard output.
    StreamConsole console(options.script ? stderr : stdout);
    Rehearsal rehearsal(options.productsFolder, options.into.value_or(""), console);
    if (const auto unknown = select(rehearsal.settings(), options.select)) {
        return complain("there is no product " + quotedPrintable(*unknown));
    }
    if (options.script) {
        return showScript(rehearsal.settings());
    }
    if (options.into) {
        return install(rehearsal, *options.into, console);
    }
    return showPayload(rehearsal.settings(), options.productsFolder, console);
}

int rehearse(const std::vector<std::string>& arguments)
{
    const auto parsed = parseOptions(arguments);
    if (const auto* error = std::get_if<UsageError>(&parsed)) {
        return complain(error->message);
    }
    const auto& options = std::get<RehearseOptions>(parsed);
    if (options.subject == RehearseOptions::Subject::usage) {
        std::puts(rehearseUsage);
        return allWell;
    }
    if (options.subject == RehearseOptions::Subject::products) {
        return rehearseProducts(options);
    }
    StreamConsole console(stdout);
    const bool asText = options.subject == RehearseOptions::Subject::agreementText;
    return reportAgreement(
        PosixFiles(), options.agreement, asText ? AgreementForm::plainText : AgreementForm::json, console);
}

} // namespace
} // namespace corvellane

int main(int count, char** arguments)
{
    corvellane::setUpProcess();
    return corvellane::rehearse({arguments + 1, arguments + count});
}
