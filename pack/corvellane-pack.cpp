// corvellane-pack FOLDER --output DIR: makes installers of a maker's folder. Exits with 0 when all that was asked for
// is there, with 1 when something of the folder's or the machine's is in the way, and with 2 for a wrong command line;
// then nothing has been made.

#include "pack/Maker.h"
#include "pack/Progress.h"
#include "pack/Reading.h"
#include "platform/posix/ProcessSetup.h"
#include "tools/Colours.h"
#include "tools/CommandLine.h"
#include "tools/Rehearsal.h"
#include "tools/ReportForms.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string_view>
#include <system_error>

namespace corvellane::pack {
namespace {

namespace fs = std::filesystem;

constexpr int notMade = 1;

constexpr const char* moreHelp = R"(FOLDER holds Products, CorvellaneEULA.rtf, Logo.svg or Logo.png, maybe Icon.svg, and
installer.toml, which says who makes the installer and which version it is. It is rehearsed
first; where the rehearsal finds errors, nothing is made. DIR has a list of checksums beside
the installers.

Formats, all but rpm unless told otherwise:
  deb      for Debian and its like; uses the machine's own Qt
  rpm      the same for Fedora and openSUSE; needs the program rpmbuild
  run      for anybody: one file to download and start; brings Qt along
  tar.zst  for anybody: a folder to unpack, with a file to click on top

Examples:
  corvellane-pack my-installer --output made
  corvellane-pack my-installer --output made --version 1.2 --format deb,rpm --strict
  SOURCE_DATE_EPOCH=1700000000 corvellane-pack my-installer --output made

With the same SOURCE_DATE_EPOCH, in seconds since 1970, the same folder gives the same bytes.
--version with nothing else prints the version of this program.

Exit status: 0 when all that was asked for is there; 1 when something of the folder's or the
machine's is in the way; 2 for wrong usage.)";

struct Options {
    std::string folder;
    std::string output;
    std::string version;
    std::vector<std::string> formats{"deb", "run", "tar.zst"};
    std::string key;
    bool strict = false;
};

void addOptions(CLI::App& program, Options& options)
{
    program.set_help_flag("--help", "Print this and end");
    program.footer(moreHelp);
    program.add_option("FOLDER", options.folder, "The maker's folder")
        ->required()
        ->transform(asPath(program))
        ->check(CLI::ExistingDirectory.description(""))
        ->type_name(" ");
    program.add_option("--output", options.output, "Where the installers go; it is made")
        ->required()
        ->transform(asPath(program))
        ->type_name("DIR");
    program.add_option("--version", options.version, "Instead of the version in installer.toml")
        ->transform(asValue(program))
        ->type_name("V");
    program.add_option("--format", options.formats, "What to make, with commas between")
        ->delimiter(',')
        ->check(CLI::IsMember({"deb", "rpm", "run", "tar.zst"}).description(""))
        ->type_name("LIST");
    program.add_option("--sign", options.key, "Sign the list of checksums, and an rpm, with this key of gpg's")
        ->transform(asValue(program))
        ->type_name("KEY");
    program.add_flag("--strict", options.strict, "Let a warning of the rehearsal be an error");
}

// What is asked for

std::string ownFolder()
{
    return fs::canonical("/proc/self/exe").parent_path().native();
}

/// That of a build where this program is a build's, else of the installed kit.
std::string kitFolder()
{
    std::string kit;
    for (const char* const place : {"/../kit", "/../lib/corvellane-maker"}) {
        kit = ownFolder() + place;
        if (fs::exists(kit)) {
            return fs::canonical(kit).native();
        }
    }
    throw std::runtime_error("“" + kit + "” is missing: it is made by the target “kit” of a build");
}

std::int64_t epoch()
{
    const char* const given = std::getenv("SOURCE_DATE_EPOCH");
    if (given == nullptr) {
        return std::chrono::duration_cast<std::chrono::seconds>(std::chrono::system_clock::now().time_since_epoch())
            .count();
    }
    const std::string_view digits = given;
    std::int64_t seconds = 0;
    const auto read = std::from_chars(digits.begin(), digits.end(), seconds);
    constexpr std::int64_t lastOfYear9999 = 253402300799;
    if (read.ec != std::errc() || read.ptr != digits.end() || seconds < 0 || seconds > lastOfYear9999) {
        throw std::runtime_error("SOURCE_DATE_EPOCH must be a number of seconds since 1970");
    }
    return seconds;
}

/// All at once, not one a run.
std::vector<std::string> problemsOf(const Options& options, Description& description)
{
    std::vector<std::string> problems = whatIsMissing(options.folder);
    if (liesIn(options.output, options.folder + "/Products")) {
        problems.push_back(
            "“" + options.output + "” lies in the products: what is made would be taken for one of them");
    }
    if (!fs::is_regular_file(options.folder + "/installer.toml")) {
        problems.emplace_back(
            "the file “installer.toml” is missing: who makes this installer, and which version it is");
        return problems;
    }
    DescriptionReading reading = readDescription(textOf(options.folder + "/installer.toml"), options.version);
    description = reading.description;
    problems.insert(problems.end(), reading.problems.begin(), reading.problems.end());
    return problems;
}

/// Modes are put right in what is packed, and room is needed elsewhere.
bool isNoMatter(std::string_view code)
{
    return code == "closed" || code == "open" || code == "no-room";
}

/// What stands in the way of installing what is in the folder; shows what the rehearsal finds.
std::vector<std::string> problemsOfRehearsal(const Options& options)
{
    PayloadReport report = rehearsedPayload(options.folder + "/Products");
    std::erase_if(report.findings, [](const Finding& finding) { return isNoMatter(finding.code.name()); });
    for (const std::string& line : findingLines(report, Severity::warning, showsColours(stderr))) {
        std::fprintf(stderr, "%s\n", line.c_str());
    }
    if (isRefused(report, false)) {
        return {"nothing is made: the rehearsal found errors in the folder"};
    }
    if (isRefused(report, options.strict)) {
        return {"nothing is made: the rehearsal has warnings, and --strict takes them for errors"};
    }
    return {};
}

int make(const CLI::App& program, const Options& options)
{
    Ingredients ingredients{kitFolder(), options.folder, {}, epoch()};
    std::vector<std::string> problems = problemsOf(options, ingredients.description);
    if (problems.empty()) {
        problems = problemsOfRehearsal(options);
    }
    if (!problems.empty()) {
        std::ranges::for_each(problems, [&](const std::string& problem) { complain(program, problem); });
        return notMade;
    }
    for (const std::string& file : makeInstallers(ingredients, options.formats, options.output, options.key)) {
        std::printf("%s\n", file.c_str());
    }
    return 0;
}

/// As a program ends that does not listen to signals.
int endBy(int signal)
{
    std::signal(signal, SIG_DFL);
    std::raise(signal);
    return notMade;
}

} // namespace
} // namespace corvellane::pack

int main(int count, char** arguments)
{
    using namespace corvellane;
    setUpProcess();
    pack::stopByProgress();
    CLI::App program("Makes installers of a folder with products.", "corvellane-pack");
    if (count == 2 && std::string_view(arguments[1]) == "--version") {
        addCommonOptions(program, "");
        return endOutput(program, readArguments(program, count, arguments).value_or(0));
    }
    pack::Options options;
    pack::addOptions(program, options);
    if (const auto ending = readArguments(program, count, arguments)) {
        return endOutput(program, *ending);
    }
    try {
        return endOutput(program, pack::make(program, options));
    } catch (const pack::Stopped& stopped) {
        return pack::endBy(stopped.signal);
    } catch (const std::filesystem::filesystem_error& error) {
        complain(program, "“" + error.path1().native() + "”: " + error.code().message());
    } catch (const std::exception& error) {
        complain(program, error.what());
    }
    return pack::notMade;
}
