#include "bench/RtfSamples.h"
#include "rtf/Reader.h"
#include "view/qt/RichTextDocument.h"
#include "view/qt/RichTextViewer.h"

#include <QApplication>
#include <QTextDocument>
#include <QTextEdit>

#include <benchmark/benchmark.h>

#include <memory>

// An agreement of 50 KB, or a table of that size, in a viewer as large as the wizard's page: from the text to the first
// picture, and to the end of the layout, which goes on in the background; beside a bare QTextEdit that is handed the
// finished document.

namespace corvellane {

using namespace view;
namespace {

constexpr std::size_t agreementSize = 50'000;
constexpr QSize pageSize(448, 290);

enum Content { paragraphs, table };

const rtf::AttributedText& agreement(std::int64_t content)
{
    static const rtf::AttributedText plain = rtf::read(agreementSample(agreementSize)).value();
    static const rtf::AttributedText rows = rtf::read(tableSample(agreementSize)).value();
    return content == table ? rows : plain;
}

enum Extent { firstPicture, wholeLayout };

void show(QWidget& viewer, std::int64_t extent)
{
    viewer.resize(pageSize);
    viewer.show();
    benchmark::DoNotOptimize(viewer.grab());
    if (extent == wholeLayout) {
        benchmark::DoNotOptimize(static_cast<QTextEdit&>(viewer).document()->size());
    }
}

void viewerOfText(benchmark::State& state)
{
    for (auto step : state) {
        const std::unique_ptr<QWidget> viewer(makeRichTextViewer(agreement(state.range(1)), nullptr));
        show(*viewer, state.range(0));
    }
}

void bareEditOfDocument(benchmark::State& state)
{
    for (auto step : state) {
        state.PauseTiming();
        auto document = std::make_unique<QTextDocument>();
        fillTextDocument(*document, agreement(state.range(1)));
        state.ResumeTiming();
        QTextEdit edit;
        edit.setDocument(document.get());
        show(edit, state.range(0));
    }
}

BENCHMARK(viewerOfText)->ArgsProduct({{firstPicture, wholeLayout}, {paragraphs, table}})->Unit(benchmark::kMillisecond);
BENCHMARK(bareEditOfDocument)
    ->ArgsProduct({{firstPicture, wholeLayout}, {paragraphs, table}})
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace corvellane

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
