// corvellane-cli list|install|verify|remove: the installer without a window, for whoever cannot click. It installs as
// the wizard does, and compares with what is shipped or takes away what installing makes; docs/cli.md.

#include "base/PathNames.h"
#include "cli/Commands.h"
#include "install/ElementKind.h"
#include "platform/Resources.h"
#include "platform/posix/PosixStandardFolders.h"
#include "platform/posix/ProcessSetup.h"
#include "platform/posix/StreamConsole.h"
#include "products/Discovery.h"
#include "products/Product.h"
#include "products/ProductSelection.h"
#include "tools/AgreementReport.h"
#include "tools/CommandLine.h"
#include "tools/PrintableText.h"
#include "tools/ProductNames.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <iterator>
#include <span>
#include <string_view>

namespace corvellane {
namespace {

struct Options {
    bool license = false;
    bool acceptsLicense = false;
    bool onlyIfNeeded = false;
    bool json = false;
    std::vector<std::string> select;
    std::vector<std::string> users;
};

constexpr const char* moreHelp
    = R"(What installs or removes needs root, or asks through polkit, on the desktop or on the
terminal. Nothing else ever waits for an answer.

Examples:
  corvellane-cli --license
  sudo corvellane-cli install --accept-license
  sudo corvellane-cli install --accept-license --if-needed --for-user anna --json
  corvellane-cli verify --select "Velvetgrain Photo"
  sudo corvellane-cli remove --for-user anna

Exit status: 0 done; 1 failed, or not as shipped; 2 wrong usage; 3 not authorised or
declined.)";

void addSelection(CLI::App& command, Options& options)
{
    command.add_option("--select", options.select, "Take this product, and others only if they are named as well")
        ->transform(asValue(command))
        ->type_name("NAME")
        ->allow_extra_args(false);
    command.add_option("--for-user", options.users, "For this user's Lightroom, and others' if they are named as well")
        ->transform(asValue(command))
        ->type_name("NAME")
        ->allow_extra_args(false);
}

void addCommands(CLI::App& program, Options& options)
{
    addCommonOptions(program, moreHelp);
    program.add_flag("--license", options.license, "Print the licence agreement and end");
    program.require_subcommand(0, 1);
    CLI::App* const list = program.add_subcommand("list", "Name the products and what is in them");
    CLI::App* const install = program.add_subcommand("install", "Install");
    install->add_flag("--accept-license", options.acceptsLicense, "Agree to the licence agreement");
    install->add_flag("--if-needed", options.onlyIfNeeded, "Install only what is not as shipped");
    CLI::App* const verify = program.add_subcommand("verify", "Compare what is installed with what is shipped");
    CLI::App* const remove = program.add_subcommand("remove", "Take away what installing makes, and nothing else");
    for (CLI::App* const command : {install, verify, remove}) {
        addSelection(*command, options);
    }
    for (CLI::App* const command : {list, install, verify, remove}) {
        command->add_flag("--json", options.json, "Print the answer as JSON");
    }
}

constexpr const char* unpackAnew = " Unpack or install the installer anew, as root.";

/// Prints what is said, and gives the exit status.
int say(const CLI::App& program, const Options& options, const Answer& answer)
{
    StreamConsole console(stdout);
    if (options.json) {
        console.print(answerJson(answer));
    } else {
        std::ranges::for_each(answerLines(answer), [&](const auto& line) { console.print(line); });
    }
    if (!answer.message.empty()) {
        refuseUsage(program, answer.message);
    }
    return static_cast<int>(answer.status);
}

Answer refusal(const std::string& command, Status status, std::string message)
{
    Answer answer{.command = command, .status = status, .message = std::move(message)};
    answer.changed = command == "install" || command == "remove" ? std::optional(false) : std::nullopt;
    return answer;
}

/// Fills in the persons; gives what is wrong with them.
std::optional<Answer> choosePersons(Order& order, const std::string& command, const std::vector<std::string>& names)
{
    std::vector<UserAccount> accounts;
    for (const std::string& name : names) {
        const auto account = userNamed(name);
        if (!account) {
            return refusal(command, Status::wrongUsage, "there is no user “" + name + "”");
        }
        if (command != "verify" && !hasRootRights() && account->id != realUser().id) {
            return refusal(command, Status::notAuthorized, "only root does this for another user; start it with sudo");
        }
        if (std::ranges::find(accounts, account->id, &UserAccount::id) == accounts.end()) {
            accounts.push_back(*account);
        }
    }
    for (const UserAccount& account : accounts.empty() ? std::vector{realUser()} : accounts) {
        const PosixStandardFolders folders("", account);
        order.persons.push_back({account, hostPathsOf(Product(folders))});
    }
    return std::nullopt;
}

/// Fills in the elements of the named products, or of all; gives what is wrong with them.
std::optional<Answer> chooseElements(
    Order& order, const System& system, const std::string& command, const std::vector<std::string>& names)
{
    const auto found = discoverProducts(*system.resources, *system.files);
    if (!found) {
        return refusal(command, Status::failed, found.error().message + unpackAnew);
    }
    const ProductSelection all(*found);
    if (all.empty()) {
        return refusal(command, Status::failed, std::string("There is no product in this installer.") + unpackAnew);
    }
    std::vector<std::string> chosen = names.empty() ? *all.locations() : std::vector<std::string>();
    for (const std::string& name : names) {
        const std::string* product = productNamed(*all.locations(), name);
        if (product == nullptr) {
            return refusal(command, Status::wrongUsage, "there is no product “" + name + "”; “list” names them");
        }
        chosen.push_back(*product);
    }
    for (const std::string& product : *all.locations()) {
        const bool isChosen = std::ranges::find(chosen, product) != chosen.end();
        auto elements = isChosen ? foldersIn(*system.files, product) : Expected<std::vector<std::string>>();
        if (!elements) {
            return refusal(command, Status::failed, elements.error().message + unpackAnew);
        }
        std::ranges::move(*elements, std::back_inserter(order.elements));
    }
    return std::nullopt;
}

/// Why an installation or a removal must not begin.
std::optional<Answer> whyNotBegun(const Order& order, const std::string& command)
{
    const bool isForHomes = std::ranges::find(order.elements, ElementKind::lightroom, &kindOf) != order.elements.end();
    for (const Person& person : order.persons) {
        std::error_code error;
        if (isForHomes && !std::filesystem::exists(person.account.home, error)) {
            return refusal(command, Status::failed,
                "the home “" + person.account.home + "” of the user " + person.account.name
                    + " is not there; mount it, or leave that user out");
        }
    }
    return std::nullopt;
}

std::optional<Answer> whyNotLicensed(const System& system, const Options& options)
{
    if (!options.acceptsLicense) {
        return refusal("install", Status::wrongUsage,
            "nothing is installed without --accept-license; --license prints the licence agreement");
    }
    if (!system.resources->file("CorvellaneEULA", "rtf")) {
        return refusal("install", Status::failed,
            std::string("The licence agreement CorvellaneEULA.rtf is missing.") + unpackAnew);
    }
    return std::nullopt;
}

Answer carryOut(const std::string& command, const Options& options)
{
    const System system;
    Order order{system.resources->folder("Products").value_or(""), {}, {}};
    auto refused = command == "install" ? whyNotLicensed(system, options) : std::nullopt;
    refused = refused ? refused : chooseElements(order, system, command, options.select);
    refused = refused ? refused : choosePersons(order, command, options.users);
    const bool changes = command == "install" || command == "remove";
    refused = refused || !changes ? refused : whyNotBegun(order, command);
    if (refused) {
        return *refused;
    }
    if (command == "install") {
        return install(order, options.onlyIfNeeded);
    }
    if (command == "verify") {
        return verify(order);
    }
    return command == "remove" ? remove(order) : list(order);
}

int showLicense(const CLI::App& program, const Options& options)
{
    System system;
    const auto file = system.resources->file("CorvellaneEULA", "rtf");
    if (!file) {
        return say(program, options,
            refusal("license", Status::failed,
                std::string("The licence agreement CorvellaneEULA.rtf is missing.") + unpackAnew));
    }
    return reportAgreement(*system.files, *file, AgreementForm::plainText, *system.console);
}

int runCommandLine(int count, char** arguments)
{
    Options options;
    CLI::App program("Installs without a window, compares, and takes away again.", "corvellane-cli");
    addCommands(program, options);
    const std::span<char*> words(arguments, static_cast<std::size_t>(count));
    const bool wantsJson = std::ranges::find(words, std::string_view("--json")) != words.end();
    const auto refuse = [&](const CLI::App&, const std::string& reason) {
        options.json = wantsJson;
        return say(program, options, refusal("", Status::wrongUsage, reason));
    };
    if (const auto ending = readArguments(program, count, arguments, refuse)) {
        return endOutput(program, *ending);
    }
    if (options.license) {
        return endOutput(program, showLicense(program, options));
    }
    if (program.get_subcommands().empty()) {
        return refuse(program, "a command is missing; --help tells the usage");
    }
    const Answer answer = carryOut(program.get_subcommands().front()->get_name(), options);
    return endOutput(program, say(program, options, answer));
}

} // namespace
} // namespace corvellane

int main(int count, char** arguments)
{
    corvellane::setUpProcess();
    return corvellane::runCommandLine(count, arguments);
}
