// The command runner beside a root shell that does the same. Root, on a machine with polkit:
//
//     tests/machine/on-a-copy tests/machine/with-polkit build/release/bench/runner-benchmark BUNDLE/bin
//
// The first argument is the folder of the command runner. To compare, let both take turns and look at the medians, by
// --benchmark_enable_random_interleaving --benchmark_repetitions=12.

#include "install/InstallScript.h"
#include "platform/linux/PkexecPrompt.h"
#include "platform/linux/ShellDialect.h"
#include "platform/posix/ChildProcess.h"

#include <benchmark/benchmark.h>

#include <fcntl.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <vector>

namespace corvellane {
namespace {

namespace fs = std::filesystem;

std::string runnerPath;

std::shared_ptr<script::Shell> runner()
{
    auto shell = PkexecPrompt(runnerPath).authorize();
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

/// The commands that install a folder's products below a scratch folder.
std::vector<std::string> installCommands(const std::vector<std::string>& elements)
{
    const std::string base = fs::temp_directory_path() / "runner-benchmark";
    const HostPaths hosts{base + "/app/", base + "/video/", base + "/photo/", base + "/lightroom/"};
    fs::create_directories(hosts.photo);
    return commandsOf(composeInstallScript(hosts, elements));
}

const std::vector<std::string>& sampleCommands()
{
    static const std::vector<std::string> commands = [] {
        const std::string samples = fs::absolute("resources/Products");
        return installCommands({samples + "/Velvetgrain Tessellane/Velvetgrain Tessellane 2.plugin",
            samples + "/Velvetgrain Photo/Velvetgrain.plugin",
            samples + "/Velvetgrain Lightroom/Velvetgrain 3 Lightroom"});
    }();
    return commands;
}

/// One element of 10,000 files with 1 GB in all.
const std::vector<std::string>& largeCommands()
{
    static const std::vector<std::string> commands = [] {
        const fs::path element = fs::temp_directory_path() / "large" / "Large.plugin";
        const std::string contents(100000, 'x');
        for (int file = 0; file < 10000; ++file) {
            const fs::path folder = element / std::to_string(file % 100);
            fs::create_directories(folder);
            std::ofstream(folder / std::to_string(file)) << contents;
        }
        return installCommands({element});
    }();
    return commands;
}

/// A shell script that runs each command in a shell of its own, as `do shell script` does.
std::string shellScriptOf(const std::vector<std::string>& commands)
{
    const fs::path folder = fs::temp_directory_path() / "commands";
    fs::create_directories(folder);
    std::string script = "set -e\n";
    for (const std::string& command : commands) {
        const fs::path file = folder / std::to_string(script.size());
        std::ofstream(file) << inBsdDialect(command);
        script += "/bin/sh " + file.native() + "\n";
    }
    const fs::path file = folder / ("script-" + std::to_string(script.size()));
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
    const auto shell = runner();
    runAll(state, *shell, commands());
    for (auto _ : state) {
        runAll(state, *shell, commands());
    }
}

void byRootShell(benchmark::State& state, const std::vector<std::string>& (*commands)())
{
    const std::string script = shellScriptOf(commands());
    runAll(state, *runner(), commands());
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
    for (auto _ : state) {
        benchmark::DoNotOptimize(runner()->run("true"));
    }
}
BENCHMARK(promptToFirstCommand)->UseRealTime()->Unit(benchmark::kMillisecond)->MinTime(2);

std::string peakMemoryOf(script::Shell& shell)
{
    return shell.run("sed -n 's/^VmHWM:[[:space:]]*//p' /proc/$PPID/status")->output;
}

void printPeakMemory()
{
    const auto shell = runner();
    for (const std::string& command : sampleCommands()) {
        benchmark::DoNotOptimize(shell->run(command));
    }
    std::cout << "the runner's peak memory after the samples: " << peakMemoryOf(*shell);
    benchmark::DoNotOptimize(shell->run("head -c 100000000 /dev/zero; head -c 100000000 /dev/zero >&2"));
    std::cout << "and after 100 MB on each stream: " << peakMemoryOf(*shell);
}

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
    corvellane::printPeakMemory();
    return 0;
}
