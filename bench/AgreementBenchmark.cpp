#include "bench/RtfSamples.h"
#include "rtf/Reader.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sys/resource.h>

namespace corvellane {
namespace {

using Sample = std::string (*)(std::size_t);

struct Named {
    const char* name;
    Sample sample;
};

constexpr std::size_t megabyte = 1'000'000;

std::size_t bytesOf(const benchmark::State& state)
{
    return static_cast<std::size_t>(state.range(0)) * megabyte;
}

void readWhole(benchmark::State& state, Sample sample)
{
    const std::string bytes = sample(bytesOf(state));
    for ([[maybe_unused]] auto _ : state) {
        auto result = rtf::read(bytes);
        if (!result) {
            state.SkipWithError("not read");
        }
        benchmark::DoNotOptimize(result);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}

void scan(benchmark::State& state, Sample sample)
{
    const std::string bytes = sample(bytesOf(state));
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(scanForControls(bytes));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}

double seconds(const timeval& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

double childSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// User and system time of a whole process, its start and its output included.
void runUnrtf(benchmark::State& state, Sample sample)
{
    const auto path = std::filesystem::temp_directory_path() / "corvellane-agreement-benchmark.rtf";
    std::ofstream(path, std::ios::binary) << sample(bytesOf(state));
    const std::string command = "unrtf --text '" + path.string() + "' > /dev/null 2>&1";
    for ([[maybe_unused]] auto _ : state) {
        const double before = childSeconds();
        if (std::system(command.c_str()) != 0) { // NOLINT(cert-env33-c,concurrency-mt-unsafe): one thread, own text
            state.SkipWithError("unrtf failed");
        }
        state.SetIterationTime(childSeconds() - before);
    }
    std::filesystem::remove(path);
}

void add(const std::string& name, Sample sample)
{
    for (const int size : {1, 10, 100}) {
        benchmark::RegisterBenchmark((name + "/read").c_str(), readWhole, sample)
            ->Arg(size)
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::RegisterBenchmark((name + "/scan").c_str(), scan, sample)->Arg(10)->Unit(benchmark::kMillisecond);
}

void addUnrtf(const std::string& name, Sample sample)
{
    benchmark::RegisterBenchmark((name + "/unrtf").c_str(), runUnrtf, sample)
        ->Arg(10)
        ->Iterations(1)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
}

} // namespace
} // namespace corvellane

int main(int count, char** arguments)
{
    using namespace corvellane;
    benchmark::Initialize(&count, arguments);
    // unrtf gives up on raw bytes of two-byte characters.
    for (const auto& [name, sample] :
        {Named{"agreement", agreementSample}, Named{"multiByte", multiByteSample}, Named{"list", listSample}}) {
        add(name, sample);
        addUnrtf(name, sample);
    }
    add("rawMultiByte", rawMultiByteSample);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
