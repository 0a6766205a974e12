// The script service beside bare process starts, and its parser by size.

#include "app/System.h"
#include "platform/ScriptService.h"
#include "platform/script/Parser.h"

#include <benchmark/benchmark.h>

#include <spawn.h>
#include <sys/wait.h>

#include <array>

namespace corvellane {
namespace {

constexpr int commandCount = 1000;

void spawnBare(benchmark::State& state)
{
    std::array<std::string, 3> words{"/bin/sh", "-c", "true"};
    std::array<char*, 4> arguments{words[0].data(), words[1].data(), words[2].data(), nullptr};
    for (auto _ : state) {
        for (int count = 0; count < commandCount; ++count) {
            pid_t process = 0;
            posix_spawn(&process, "/bin/sh", nullptr, nullptr, arguments.data(), environ);
            waitpid(process, nullptr, 0);
        }
    }
}
BENCHMARK(spawnBare)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(3);

void runScriptOfCommands(benchmark::State& state)
{
    System system;
    ScriptService& service = system.platform().scripts;
    std::string source;
    for (int count = 0; count < commandCount; ++count) {
        source += "do shell script \"true\"\n";
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(service.create(source)->execute());
    }
}
BENCHMARK(runScriptOfCommands)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(3);

void parse(benchmark::State& state)
{
    const std::string line = R"(do shell script "cp -R -f \"/Volumes/Installer/Products/Velvetgrain.plugin\" )"
                             R"(\"/Applications/Corvellane/\"" with administrator privileges)"
                             "\n";
    std::string source;
    while (source.size() < static_cast<std::size_t>(state.range(0)) << 20U) {
        source += line;
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(script::parse(source));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(source.size()));
}
BENCHMARK(parse)->Arg(5)->Arg(50)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace corvellane
