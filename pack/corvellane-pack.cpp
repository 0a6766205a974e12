// corvellane-pack FOLDER --output DIR: makes installers of a maker's folder. Exits with 0 when all that was asked for
// is there, with 1 when something of the folder's or the machine's is in the way, and with 2 for a wrong command line;
// then nothing has been made.

#include "helper/Program.h"
#include "pack/Installer.h"
#include "tools/CommandLine.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace corvellane::pack {
namespace {

namespace fs = std::filesystem;

constexpr int notMade = 1;

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
    program.add_option("FOLDER", options.folder, "Products, CorvellaneEULA.rtf, Logo.svg or Logo.png, installer.toml")
        ->required()
        ->transform(asPath(program));
    program.add_option("--output", options.output, "Where the installers go")->required()->transform(asPath(program));
    program.add_option("--version", options.version, "Instead of the version in installer.toml")
        ->transform(asValue(program));
    program.add_option("--format", options.formats, "What to make: deb, run, tar.zst, with commas between them")
        ->delimiter(',')
        ->check(CLI::IsMember({"deb", "run", "tar.zst"}));
    program.add_option("--sign", options.key, "Sign the list of checksums with this key of gpg's")
        ->transform(asValue(program));
    program.add_flag("--strict", options.strict, "Let a warning of the rehearsal be an error");
    program.footer("Example:\n  corvellane-pack examples/installer --output made\n  apt install ./made/*.deb");
}

// Other programs

std::string pathOf(const std::string& program)
{
    const char* const path = std::getenv("PATH");
    std::string folders = path != nullptr ? path : "/usr/bin:/bin";
    for (std::size_t begin = 0; begin <= folders.size();) {
        const std::size_t end = std::min(folders.find(':', begin), folders.size());
        const std::string candidate = folders.substr(begin, end - begin) + "/" + program;
        if (fs::is_regular_file(candidate)) {
            return candidate;
        }
        begin = end + 1;
    }
    throw std::runtime_error("the program " + program + " is missing; install it");
}

runner::Reply run(std::vector<std::string> words)
{
    const std::string path = words.front().starts_with('/') ? words.front() : pathOf(words.front());
    const char* const home = std::getenv("HOME");
    return runner::runProgram(path, words,
        {"PATH=/usr/bin:/bin", "LC_ALL=C.UTF-8", std::string("HOME=") + (home != nullptr ? home : "/")}, words.front());
}

std::string outputOf(const std::vector<std::string>& words)
{
    const runner::Reply reply = run(words);
    if (reply.status != 0) {
        throw std::runtime_error(words.front() + ": " + reply.errors);
    }
    return reply.output;
}

std::string checksumOfFile(const std::string& file)
{
    constexpr std::size_t digits = 64;
    return outputOf({"sha256sum", "-z", file}).substr(0, digits);
}

// Steps

/// Folders go with all that is in them at the end.
class Workshop {
public:
    explicit Workshop(const std::string& output)
    {
        fs::create_directories(output);
        path_ = output + "/.making";
        fs::remove_all(path_);
        fs::create_directory(path_);
    }
    Workshop(const Workshop&) = delete;
    Workshop& operator=(const Workshop&) = delete;
    ~Workshop()
    {
        std::error_code error;
        fs::remove_all(path_, error);
    }

    std::string operator/(const std::string& name) const { return path_ + "/" + name; }

private:
    std::string path_;
};

/// How far it is, on a terminal, when it takes longer than a second.
class Progress {
public:
    Progress(std::string what, std::uintmax_t all)
        : what_(std::move(what))
        , all_(std::max<std::uintmax_t>(all, 1))
    {
    }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress()
    {
        if (percent_ >= 0) {
            std::fputs("\r\33[K", stderr);
        }
    }

    void operator()(std::uintmax_t done)
    {
        const int percent = static_cast<int>(done * 100 / all_);
        const bool isDue = std::chrono::steady_clock::now() - begin_ > std::chrono::seconds(1);
        if (isDue && percent != percent_ && fs::is_character_file("/proc/self/fd/2")) {
            percent_ = percent;
            std::fprintf(stderr, "\r%s: %d %%", what_.c_str(), percent);
        }
    }

private:
    std::string what_;
    std::uintmax_t all_;
    int percent_ = -1;
    std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
};

void pack(const std::string& file, const Contents& contents, const std::string& below, std::int64_t epoch)
{
    Progress progress(fs::path(file).filename().native(), contents.size());
    writeArchive(file, contents, below, epoch, [&](std::uintmax_t done) { progress(done); });
}

/// The names of what was made in the workshop.
class Maker {
public:
    Maker(const Ingredients& ingredients, const Workshop& workshop)
        : ingredients_(ingredients)
        , workshop_(workshop)
        , base_(ingredients.description.packageName() + "-" + ingredients.description.version + "-"
              + machineOf(ingredients.kit))
    {
    }

    void make(const std::vector<std::string>& formats)
    {
        const auto wants = [&](const char* format) { return std::ranges::count(formats, format) > 0; };
        if (wants("deb")) {
            makeDebianPackage();
        }
        if (wants("run") || wants("tar.zst")) {
            makeArchives(wants("run"), wants("tar.zst"));
        }
    }

    /// With the list of their checksums, and its signature where there is a key.
    void finish(const std::string& key)
    {
        std::string sums;
        std::ranges::sort(made_);
        for (const std::string& name : made_) {
            sums += checksumOfFile(workshop_ / name) + "  " + name + "\n";
        }
        std::ofstream(workshop_ / "SHA256SUMS") << sums;
        made_.emplace_back("SHA256SUMS");
        if (!key.empty()) {
            outputOf(
                {"gpg", "--batch", "--yes", "--armor", "--local-user", key, "--detach-sign", workshop_ / "SHA256SUMS"});
            made_.emplace_back("SHA256SUMS.asc");
        }
    }

    const std::vector<std::string>& made() const { return made_; }

private:
    void makeDebianPackage()
    {
        const Description& description = ingredients_.description;
        const Contents files = debianFilesOf(ingredients_);
        const std::string data = workshop_ / "data.tar.zst";
        const std::string control = workshop_ / "control.tar.zst";
        pack(data, files, "./", ingredients_.epoch);
        pack(control, debianControlOf(ingredients_, files), "./", ingredients_.epoch);
        made_.push_back(
            description.packageName() + "_" + description.version + "_" + debianMachineOf(ingredients_.kit) + ".deb");
        writeDebianPackage(workshop_ / made_.back(), control, data, ingredients_.epoch);
    }

    void makeArchives(bool starts, bool unpacks)
    {
        const std::string archive = workshop_ / (base_ + ".tar.zst");
        pack(archive, bundleOf(ingredients_), base_ + "/", ingredients_.epoch);
        if (starts) {
            makeStarter(archive);
        }
        if (unpacks) {
            made_.push_back(base_ + ".tar.zst");
        }
    }

    void makeStarter(const std::string& archive)
    {
        const std::string scratch = workshop_ / "starter";
        const auto checksumOf = [&](const std::string& text) {
            std::ofstream(scratch, std::ios::binary) << text;
            return checksumOfFile(scratch);
        };
        made_.push_back(base_ + ".run");
        const std::string file = workshop_ / made_.back();
        std::ofstream(file, std::ios::binary) << starterOf(ingredients_, checksumOfFile(archive), checksumOf)
                                              << std::ifstream(archive, std::ios::binary).rdbuf();
        fs::permissions(file,
            fs::perms::owner_all | fs::perms::group_read | fs::perms::group_exec | fs::perms::others_read
                | fs::perms::others_exec);
    }

    const Ingredients& ingredients_;
    const Workshop& workshop_;
    std::string base_;
    std::vector<std::string> made_;
};

// What is asked for

std::string ownFolder()
{
    return fs::canonical("/proc/self/exe").parent_path().native();
}

/// Of a build where this program is a build's, else of the installed kit.
std::string ownFile(const std::vector<std::string>& places)
{
    for (const std::string& place : places) {
        if (fs::exists(ownFolder() + place)) {
            return fs::canonical(ownFolder() + place).native();
        }
    }
    throw std::runtime_error("“" + ownFolder() + places.back() + "” is missing: it is made by the target “kit” of a build");
}

std::string kitFolder()
{
    return ownFile({"/../kit", "/../lib/corvellane-maker"});
}

std::int64_t epoch()
{
    const char* const given = std::getenv("SOURCE_DATE_EPOCH");
    return given != nullptr
        ? std::strtoll(given, nullptr, 10)
        : std::chrono::duration_cast<std::chrono::seconds>(std::chrono::system_clock::now().time_since_epoch()).count();
}

void tell(const std::vector<std::string>& problems)
{
    for (const std::string& problem : problems) {
        std::fprintf(stderr, "corvellane-pack: %s\n", problem.c_str());
    }
}

/// All at once, not one a run.
std::vector<std::string> problemsOf(const Options& options, Description& description)
{
    std::vector<std::string> problems = whatIsMissing(options.folder);
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

/// Whether what is in the folder can be installed; shows what the rehearsal finds.
bool isRehearsed(const Options& options)
{
    std::vector<std::string> words{ownFile({"/../tools/rehearse", "/rehearse"}), options.folder};
    if (options.strict) {
        words.emplace_back("--strict");
    }
    const runner::Reply reply = run(words);
    if (reply.status != 0) {
        std::fputs((reply.output + reply.errors).c_str(), stderr);
        tell({"nothing is made: the rehearsal found errors in the folder"});
    }
    return reply.status == 0;
}

int make(const Options& options)
{
    Ingredients ingredients{kitFolder(), options.folder, {}, epoch()};
    if (const auto problems = problemsOf(options, ingredients.description); !problems.empty()) {
        tell(problems);
        return notMade;
    }
    if (!isRehearsed(options)) {
        return notMade;
    }
    pathOf("zstd");
    const Workshop workshop(options.output);
    Maker maker(ingredients, workshop);
    maker.make(options.formats);
    maker.finish(options.key);
    for (const std::string& name : maker.made()) {
        fs::rename(workshop / name, options.output + "/" + name);
        std::printf("%s/%s\n", options.output.c_str(), name.c_str());
    }
    return 0;
}

} // namespace
} // namespace corvellane::pack

int main(int count, char** arguments)
{
    using namespace corvellane;
    CLI::App program("Makes installers of a folder with products.", "corvellane-pack");
    pack::Options options;
    pack::addOptions(program, options);
    if (const auto ending = readArguments(program, count, arguments)) {
        return *ending;
    }
    try {
        return pack::make(options);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "corvellane-pack: %s\n", error.what());
        return pack::notMade;
    }
}
