#include "app/CorvellaneInstallerApp.h"
#include "tests/FakePlatform.h"

#include <QApplication>
#include <QListView>
#include <QStandardItemModel>

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <memory>
#include <new>
#include <string>

namespace {

std::size_t allocations = 0;

} // namespace

// Where only some of these were inlined, the compiler would take memory for that of another allocator.
[[gnu::noinline]] void* operator new(std::size_t size)
{
    ++allocations;
    if (void* const memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc();
}

[[gnu::noinline]] void operator delete(void* memory) noexcept
{
    std::free(memory);
}

[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace corvellane {
namespace {

/// Counts the frames that a widget paints.
class Frames : public QObject {
public:
    explicit Frames(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

std::string nameOf(std::int64_t number)
{
    return "Velvetgrain " + std::to_string(100000 + number);
}

/// The wizard on the page of so many products.
struct Wizard {
    explicit Wizard(std::int64_t products)
    {
        for (std::int64_t number = 0; number < products; ++number) {
            platform.addProduct(nameOf(number), {});
        }
        scene = std::make_unique<CorvellaneInstallerApp>(platform.services());
        scene->settings().currentPage.set(Page::products);
        scene->window().show();
        QApplication::processEvents();
    }

    FakePlatform platform;
    std::unique_ptr<CorvellaneInstallerApp> scene;
};

void toggleInTheWizard(benchmark::State& state)
{
    Wizard wizard(state.range(0));
    Frames frames(*wizard.scene->window().findChild<QListView*>()->viewport());
    for (auto _ : state) {
        wizard.scene->settings().toggleProduct("/Resources/Products/" + nameOf(2));
        QApplication::processEvents();
    }
    state.counters["frames"] = benchmark::Counter(frames.count, benchmark::Counter::kAvgIterations);
}

void toggleInABareList(benchmark::State& state)
{
    QStandardItemModel model;
    for (std::int64_t number = 0; number < state.range(0); ++number) {
        auto* const item = new QStandardItem(QString::fromStdString(nameOf(number)));
        item->setCheckable(true);
        model.appendRow(item);
    }
    QListView list;
    list.setUniformItemSizes(true);
    list.setModel(&model);
    list.resize(433, 95);
    list.show();
    QApplication::processEvents();
    Frames frames(*list.viewport());
    bool ticked = false;
    for (auto _ : state) {
        ticked = !ticked;
        model.item(2)->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
        QApplication::processEvents();
    }
    state.counters["frames"] = benchmark::Counter(frames.count, benchmark::Counter::kAvgIterations);
}

void redrawWithoutADifference(benchmark::State& state)
{
    Wizard wizard(state.range(0));
    const std::size_t before = allocations;
    for (auto _ : state) {
        wizard.scene->window().redraw();
    }
    state.counters["allocations"]
        = benchmark::Counter(static_cast<double>(allocations - before), benchmark::Counter::kAvgIterations);
}

void openALog(benchmark::State& state)
{
    Wizard wizard(1);
    AppSettings& settings = wizard.scene->settings();
    std::string log;
    for (std::int64_t line = 0; line < state.range(0); ++line) {
        log += "cp: cannot stat the file of a line of a log, number " + std::to_string(line) + "\n";
    }
    settings.logDetailsStr = log + std::string(1'000'000, 'm');
    settings.currentPage.set(Page::summary);
    for (auto _ : state) {
        settings.showLogDetailsWindow.set(true);
        QApplication::processEvents();
        state.PauseTiming();
        settings.showLogDetailsWindow.set(false);
        QApplication::processEvents();
        state.ResumeTiming();
    }
}

BENCHMARK(toggleInTheWizard)->Arg(10)->Arg(10'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(toggleInABareList)->Arg(10)->Arg(10'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(redrawWithoutADifference)->Arg(10)->Arg(10'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(openALog)->Arg(0)->Arg(200'000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace corvellane

int main(int count, char** arguments)
{
    const QApplication platform(count, arguments);
    corvellane::view::ViewHost::prepareApplication();
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
