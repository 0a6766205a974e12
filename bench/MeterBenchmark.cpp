// What it costs an installation that the window asks how far it has come. Let both take turns and look at the medians,
// by --benchmark_enable_random_interleaving --benchmark_repetitions=12.

#include "app/System.h"
#include "platform/ScriptService.h"

#include <benchmark/benchmark.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>

namespace corvellane {
namespace {

namespace fs = std::filesystem;

constexpr int elements = 10;
constexpr int filesOfElement = 1000;

struct PromptOfNobody : script::AdministratorPrompt {
    explicit PromptOfNobody(std::shared_ptr<script::Shell> shell)
        : shell_(std::move(shell))
    {
    }
    Expected<std::shared_ptr<script::Shell>> authorize(const std::vector<std::string>&) override { return shell_; }

private:
    std::shared_ptr<script::Shell> shell_;
};

/// Elements of many small files, in a temporary folder of their own.
class Payload {
public:
    Payload()
    {
        for (int element = 0; element < elements; ++element) {
            const fs::path folder = source() / std::to_string(element);
            fs::create_directories(folder);
            for (int file = 0; file < filesOfElement; ++file) {
                std::ofstream(folder / std::to_string(file)) << std::string(4000, 'x');
            }
        }
    }
    Payload(const Payload&) = delete;
    Payload& operator=(const Payload&) = delete;
    ~Payload() { fs::remove_all(root_); }

    void clearTarget() const
    {
        fs::remove_all(target());
        fs::create_directories(target());
    }

    std::string script() const
    {
        std::string lines;
        for (int element = 0; element < elements; ++element) {
            lines += R"(do shell script "cp -R -f )" + quoted(source() / std::to_string(element)) + " "
                + quoted(target()) + "\" with administrator privileges\n";
        }
        return lines;
    }

private:
    static std::string quoted(const fs::path& path) { return R"(\")" + path.native() + R"(\")"; }
    fs::path source() const { return root_ / "Products"; }
    fs::path target() const { return root_ / "Plug-ins"; }

    fs::path root_ = fs::temp_directory_path() / "meter-benchmark";
};

/// Asks ten times a second while it lives, as the window does.
class Asker {
public:
    explicit Asker(WorkMeter& meter)
        : thread_([this, &meter] {
            while (!ends_) {
                benchmark::DoNotOptimize(meter.partDone());
                std::this_thread::sleep_for(std::chrono::milliseconds(100));
            }
        })
    {
    }
    Asker(const Asker&) = delete;
    Asker& operator=(const Asker&) = delete;
    ~Asker()
    {
        ends_ = true;
        thread_.join();
    }

private:
    std::atomic<bool> ends_ = false;
    std::thread thread_;
};

void install(benchmark::State& state, bool isAsked)
{
    const Payload payload;
    System system;
    system.prompt = std::make_shared<PromptOfNobody>(system.shell);
    ScriptService& service = system.platform().scripts;
    while (state.KeepRunning()) {
        state.PauseTiming();
        payload.clearTarget();
        state.ResumeTiming();
        std::optional<Asker> asker;
        if (isAsked) {
            asker.emplace(*system.meter);
        }
        const auto begin = std::chrono::steady_clock::now();
        benchmark::DoNotOptimize(service.create(payload.script())->execute());
        state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
    }
}

void installUnasked(benchmark::State& state)
{
    install(state, false);
}
BENCHMARK(installUnasked)->Unit(benchmark::kMillisecond)->Iterations(1)->MeasureProcessCPUTime()->UseManualTime();

void installWhileAsked(benchmark::State& state)
{
    install(state, true);
}
BENCHMARK(installWhileAsked)->Unit(benchmark::kMillisecond)->Iterations(1)->MeasureProcessCPUTime()->UseManualTime();

} // namespace
} // namespace corvellane
