// corvellane-cli list|install|verify|remove: the installer without a window, for whoever cannot click. It installs as
// the wizard does, and compares with what is shipped or takes away what installing makes; docs/cli.md.

#include "base/PathNames.h"
#include "cli/Choice.h"
#include "cli/Commands.h"
#include "platform/Resources.h"
#include "platform/posix/ProcessSetup.h"
#include "platform/posix/StreamConsole.h"
#include "tools/AgreementReport.h"
#include "tools/CommandLine.h"

#include <algorithm>
#include <cstdio>
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

/// In maker's packages the program has a name of theirs.
constexpr std::string_view ownName = "corvellane-cli";

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

/// With the name that the program was called by.
std::string moreHelpFor(const std::string& name)
{
    std::string text = moreHelp;
    for (auto place = text.find(ownName); place != std::string::npos; place = text.find(ownName, place + name.size())) {
        text.replace(place, ownName.size(), name);
    }
    return text;
}

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
    addCommonOptions(program, moreHelpFor(program.get_name()));
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

Answer refusal(const std::string& command, Refusal reason)
{
    Answer answer{.command = command, .status = reason.status, .message = std::move(reason.message)};
    answer.changed = command == "install" || command == "remove" ? std::optional(false) : std::nullopt;
    return answer;
}

/// Why nothing is to be done with the order, which is filled in; absent when nothing is in the way.
std::optional<Refusal> prepare(Order& order, const System& system, const std::string& command, const Options& options)
{
    const bool changes = command == "install" || command == "remove";
    if (command == "install" && !options.acceptsLicense) {
        return Refusal{Status::wrongUsage,
            "nothing is installed without --accept-license; --license prints the licence agreement"};
    }
    auto refused = command == "install" ? whyWithoutLicense(*system.resources) : std::nullopt;
    refused = refused ? refused : chooseElements(order, *system.resources, *system.files, options.select);
    refused = refused ? refused : choosePersons(order, options.users, changes);
    return refused || !changes ? refused : whyHomeless(order);
}

Answer carryOut(const std::string& command, const Options& options)
{
    const System system;
    Order order{system.resources->folder("Products").value_or(""), {}, {}};
    if (auto refused = prepare(order, system, command, options)) {
        return refusal(command, *std::move(refused));
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
    if (auto refused = whyWithoutLicense(*system.resources)) {
        return say(program, options, refusal("license", *std::move(refused)));
    }
    const std::string file = system.resources->file("CorvellaneEULA", "rtf").value_or("");
    const auto words = agreementReport(*system.files, file, AgreementForm::plainText);
    if (!words) {
        return say(program, options, refusal("license", notWhole(words.error().message)));
    }
    std::fwrite(words->data(), 1, words->size(), stdout);
    return static_cast<int>(Status::done);
}

int runCommandLine(int count, char** arguments)
{
    Options options;
    const std::span<char*> words(arguments, static_cast<std::size_t>(count));
    const std::string_view name = words.empty() ? ownName : lastPathComponent(words.front());
    CLI::App program("Installs without a window, compares, and takes away again.", std::string(name));
    addCommands(program, options);
    const bool wantsJson = std::ranges::find(words, std::string_view("--json")) != words.end();
    const auto refuse = [&](const CLI::App&, const std::string& reason) {
        options.json = wantsJson;
        return say(program, options, refusal("", {Status::wrongUsage, reason + "; --help tells the usage"}));
    };
    if (const auto ending = readArguments(program, count, arguments, refuse)) {
        return endOutput(program, *ending);
    }
    if (options.license) {
        return endOutput(program, showLicense(program, options));
    }
    if (program.get_subcommands().empty()) {
        return refuse(program, "a command is missing");
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
