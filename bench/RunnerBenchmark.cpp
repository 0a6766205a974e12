// The command runner beside one root shell that does the same. Root, on a machine with polkit:
//
//     tests/machine/on-a-copy tests/machine/with-polkit build/bench/bench/runner-benchmark BUNDLE/bin
//
// The first argument is the folder of the command runner. To compare, let both take turns and look at the medians, by
// --benchmark_enable_random_interleaving --benchmark_repetitions=12.

#include "install/InstallScript.h"
#include "platform/linux/PkexecPrompt.h"
#include "platform/linux/Preflight.h"
#include "platform/linux/ShellDialect.h"
#include "platform/posix/ChildProcess.h"

#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <fts.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <vector>

namespace corvellane {
namespace {

namespace fs = std::filesystem;

std::string runnerPath;

const fs::path products = "/opt/runner-benchmark";

std::shared_ptr<script::Shell> runner(const std::vector<std::string>& commands)
{
    auto shell = PkexecPrompt(runnerPath, products).authorize(commands);
    if (!shell) {
        std::cerr << shell.error().message << '\n';
        std::exit(1);
    }
    return *std::move(shell);
}

int runChild(const std::vector<std::string>& words)
{
    const FileDescriptor nothing(open("/dev/null", O_RDWR | O_CLOEXEC));
    const auto child
        = startChild({words, {"PATH=/usr/bin:/bin", "USER=root"}}, {nothing.get(), nothing.get(), nothing.get()});
    return exitStatusOf(*child);
}

/// The commands of an install script: what stands between "do shell script "" and its end, unescaped.
std::vector<std::string> commandsOf(const std::string& script)
{
    std::vector<std::string> commands;
    const std::string opening = "do shell script \"";
    for (auto at = script.find(opening); at != std::string::npos; at = script.find(opening, at)) {
        std::string command;
        for (at += opening.size(); script[at] != '"'; ++at) {
            at += script[at] == '\\' ? 1 : 0;
            command += script[at];
        }
        commands.push_back(command);
    }
    return commands;
}

/// The commands that install elements into this machine's folders, for root.
std::vector<std::string> installCommands(const std::vector<std::string>& elements)
{
    const auto folders = runner::installFolders("", "/root", products);
    fs::create_directories(folders.photo);
    return commandsOf(
        composeInstallScript({folders.application, folders.video, folders.photo, folders.lightroom}, elements));
}

const std::vector<std::string>& sampleCommands()
{
    static const std::vector<std::string> commands = [] {
        fs::copy("resources/Products", products, fs::copy_options::recursive | fs::copy_options::skip_existing);
        return installCommands({products / "Velvetgrain Tessellane/Velvetgrain Tessellane 2.plugin",
            products / "Velvetgrain Photo/Velvetgrain.plugin",
            products / "Velvetgrain Lightroom/Velvetgrain 3 Lightroom"});
    }();
    return commands;
}

void fill(const fs::path& element, int files, std::size_t size)
{
    for (int file = 0; file < files; ++file) {
        const fs::path folder = element / std::to_string(file % 100);
        fs::create_directories(folder);
        std::ofstream(folder / std::to_string(file)) << std::string(size, 'x');
    }
}

/// One element of 10,000 files with 1 GB in all.
const std::vector<std::string>& largeCommands()
{
    static const std::vector<std::string> commands = [] {
        const fs::path element = products / "Large/Large.plugin";
        fill(element, 10000, 100000);
        return installCommands({element});
    }();
    return commands;
}

/// A script for one shell that stops at the first failure.
std::string shellScriptOf(const std::vector<std::string>& commands)
{
    std::string script = inBsdDialect("set -e\n");
    for (const std::string& command : commands) {
        script += command + "\n";
    }
    const fs::path file = fs::temp_directory_path() / ("script-" + std::to_string(script.size()));
    std::ofstream(file) << script;
    return file;
}

void runAll(benchmark::State& state, script::Shell& shell, const std::vector<std::string>& commands)
{
    for (const std::string& command : commands) {
        const auto result = shell.run(command);
        if (result->status != 0) {
            state.SkipWithError(result->errors.c_str());
        }
    }
}

/// As every run but the first finds it: installed. What comes first would create the files and the others replace them.
void throughRunner(benchmark::State& state, const std::vector<std::string>& (*commands)())
{
    const auto shell = runner(commands());
    runAll(state, *shell, commands());
    for (auto _ : state) {
        runAll(state, *shell, commands());
    }
}

void byRootShell(benchmark::State& state, const std::vector<std::string>& (*commands)())
{
    const std::string script = shellScriptOf(commands());
    runAll(state, *runner(commands()), commands());
    for (auto _ : state) {
        if (runChild({"/bin/sh", script}) != 0) {
            state.SkipWithError("the shell script failed");
        }
    }
}

BENCHMARK_CAPTURE(byRootShell, samples, sampleCommands)->UseRealTime()->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK_CAPTURE(throughRunner, samples, sampleCommands)->UseRealTime()->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK_CAPTURE(byRootShell, large, largeCommands)->UseRealTime()->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK_CAPTURE(throughRunner, large, largeCommands)->UseRealTime()->Unit(benchmark::kMillisecond)->Iterations(5);

void pkexecTrue(benchmark::State& state)
{
    for (auto _ : state) {
        runChild({"/usr/bin/pkexec", "--disable-internal-agent", "/bin/true"});
    }
}
BENCHMARK(pkexecTrue)->UseRealTime()->Unit(benchmark::kMillisecond)->MinTime(2);

void promptToFirstCommand(benchmark::State& state)
{
    const std::vector<std::string> commands{"rm -R -f \"/Applications/Corvellane/none\""};
    for (auto _ : state) {
        benchmark::DoNotOptimize(runner(commands)->run(commands[0]));
    }
}
BENCHMARK(promptToFirstCommand)->UseRealTime()->Unit(benchmark::kMillisecond)->MinTime(2);

fs::path manyFiles()
{
    const fs::path element = products / "Many/Many.plugin";
    if (!fs::exists(element)) {
        fill(element, 50000, 1);
    }
    return element;
}

void walkBare(benchmark::State& state)
{
    std::string element = manyFiles();
    const std::array<char*, 2> roots{element.data(), nullptr};
    for (auto _ : state) {
        FTS* const walk = fts_open(roots.data(), FTS_PHYSICAL | FTS_NOCHDIR, nullptr);
        while (fts_read(walk) != nullptr) { }
        fts_close(walk);
    }
}
BENCHMARK(walkBare)->UseRealTime()->Unit(benchmark::kMillisecond);

void lookBeforeThePassword(benchmark::State& state)
{
    const auto commands = installCommands({manyFiles()});
    const runner::Site site{runner::installFolders("", "/root", products), {.home = "/root"}, runner::Owner::rootAlone};
    for (auto _ : state) {
        if (const auto reason = whyNotInstallable(commands, site)) {
            state.SkipWithError(reason->message.c_str());
        }
    }
}
BENCHMARK(lookBeforeThePassword)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace corvellane

int main(int count, char** arguments)
{
    benchmark::Initialize(&count, arguments);
    if (count != 2) {
        std::cerr << "runner-benchmark: the folder of the command runner is missing\n";
        return 2;
    }
    corvellane::runnerPath = corvellane::fs::absolute(arguments[1]) / "corvellane-command-runner";
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
