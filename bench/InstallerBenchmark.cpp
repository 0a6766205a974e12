// Discovery, element listing and composition, each beside the least that could do the same.

#include "app/System.h"
#include "base/Observable.h"
#include "install/InstallScript.h"
#include "platform/Resources.h"
#include "state/AppSettings.h"

#include <benchmark/benchmark.h>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <map>

namespace corvellane {
namespace {

namespace fs = std::filesystem;

/// A products folder of `count` products with `elements` elements each, kept for the whole run.
const std::string& productsFolder(int count, int elements)
{
    static std::map<std::pair<int, int>, std::string> made;
    std::string& folder = made[{count, elements}];
    if (folder.empty()) {
        std::string name = (fs::temp_directory_path() / "corvellane-bench-XXXXXX").native();
        folder = mkdtemp(name.data());
        for (int product = 0; product < count; ++product) {
            const std::string path = folder + "/Velvetgrain Product " + std::to_string(product * 7919 % count);
            fs::create_directory(path);
            for (int element = 0; element < elements; ++element) {
                fs::create_directory(path + "/Element " + std::to_string(element) + ".plugin");
            }
        }
        std::atexit([] {
            for (const auto& entry : made) {
                fs::remove_all(entry.second);
            }
        });
    }
    return folder;
}

/// The same list as the product's, by a bare loop.
void bareList(const std::string& folder, std::vector<std::string>& paths)
{
    DIR* handle = opendir(folder.c_str());
    const std::size_t first = paths.size();
    while (const dirent* entry = readdir(handle)) {
        struct stat status{};
        if (std::strcmp(entry->d_name, ".") != 0 && std::strcmp(entry->d_name, "..") != 0
            && fstatat(dirfd(handle), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(status.st_mode)) {
            paths.push_back(folder + "/" + entry->d_name);
        }
    }
    closedir(handle);
    std::sort(paths.begin() + static_cast<std::ptrdiff_t>(first), paths.end());
}

/// The state on the real system, whose products lie in a folder of the benchmark's.
std::shared_ptr<AppSettings> settingsOn(const std::string& folder)
{
    struct Located : Resources {
        explicit Located(std::string folder)
            : path(std::move(folder))
        {
        }
        std::optional<std::string> folder(const std::string&) const override { return path; }
        std::optional<std::string> file(const std::string&, const std::string&) const override { return std::nullopt; }
        std::string path;
    };
    static System system;
    system.resources = std::make_shared<Located>(folder);
    return std::make_shared<AppSettings>(system.platform());
}

void discoverBare(benchmark::State& state)
{
    const std::string& folder = productsFolder(static_cast<int>(state.range(0)), 0);
    for (auto _ : state) {
        std::vector<std::string> paths;
        bareList(folder, paths);
        benchmark::DoNotOptimize(paths);
    }
}
BENCHMARK(discoverBare)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void discover(benchmark::State& state)
{
    const auto settings = settingsOn(productsFolder(static_cast<int>(state.range(0)), 0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(settings->productsToInstall());
    }
}
BENCHMARK(discover)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void listElementsBare(benchmark::State& state)
{
    const std::string& folder = productsFolder(static_cast<int>(state.range(0)), 3);
    std::vector<std::string> products;
    bareList(folder, products);
    for (auto _ : state) {
        std::vector<std::string> paths;
        for (const std::string& product : products) {
            bareList(product, paths);
        }
        benchmark::DoNotOptimize(paths);
    }
}
BENCHMARK(listElementsBare)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void listElements(benchmark::State& state)
{
    const auto settings = settingsOn(productsFolder(static_cast<int>(state.range(0)), 3));
    settings->refreshProducts();
    for (auto _ : state) {
        benchmark::DoNotOptimize(settings->elementsToCopy());
    }
}
BENCHMARK(listElements)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

const HostPaths hosts{"/Applications/Corvellane/",
    "/Library/Application Support/Adobe/Common/Plug-ins/7.0/MediaCore/Corvellane/",
    "/Library/Application Support/Adobe/Plug-Ins/CC/Corvellane/",
    "/Users/user/Library/Application Support/Adobe/Lightroom/"};

/// Every third element is one of each kind.
std::vector<std::string> elements(std::int64_t count)
{
    const std::string base = "/Volumes/Installer/Installer.app/Contents/Resources/Products/";
    std::vector<std::string> paths;
    for (std::int64_t index = 0; index < count; ++index) {
        const std::string number = std::to_string(index);
        const std::vector<std::string> kinds{"Velvetgrain Tessellane/Velvetgrain Tessellane " + number + ".plugin",
            "Velvetgrain Photo/Velvetgrain " + number + ".plugin",
            "Velvetgrain Lightroom/Velvetgrain 3 Lightroom " + number};
        paths.push_back(base + kinds[static_cast<std::size_t>(index % 3)]);
    }
    return paths;
}

void copyFinishedText(benchmark::State& state)
{
    std::vector<std::string> finished;
    for (const std::string& element : elements(state.range(0))) {
        finished.push_back(composeInstallScript(hosts, {element}));
        finished.back().resize(finished.back().rfind("\n\non error") + 1);
        finished.back().erase(0, finished.back().find("cp -R"));
    }
    for (auto _ : state) {
        std::string script;
        for (const std::string& lines : finished) {
            script += lines;
        }
        benchmark::DoNotOptimize(script);
    }
}
BENCHMARK(copyFinishedText)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void compose(benchmark::State& state)
{
    const std::vector<std::string> paths = elements(state.range(0));
    for (auto _ : state) {
        benchmark::DoNotOptimize(composeInstallScript(hosts, paths));
    }
}
BENCHMARK(compose)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void writeWithObservers(benchmark::State& state)
{
    Signal signal;
    Observable<bool> value(signal, false);
    int calls = 0;
    std::vector<Subscription> subscriptions;
    for (int count = 0; count < 100; ++count) {
        subscriptions.push_back(signal.subscribe([&] { ++calls; }));
    }
    for (auto _ : state) {
        value.set(true);
    }
    benchmark::DoNotOptimize(calls);
}
BENCHMARK(writeWithObservers);

} // namespace
} // namespace corvellane
