// mindraw on a full table: 202 rows mixing straight courses, tangent curves,
// curves by chord and turned courses, as a long subdivision deed would have
// them. The first table closes straight (the close succeeds); the second asks
// for a curved close whose radius is too short, so every draw ends with
// "CANNOT CLOSE." after a caught fault. The target is under 18 microseconds a
// computation for the closing table.

#include <benchmark/benchmark.h>

#include <string>

#include "canvas_image.h"
#include "engine.h"
#include "full_table.h"

namespace {

using quilmar::bench::fillFullTable;
using quilmar::bench::Silent;

void mindrawFullTable(benchmark::State &state, const char *closingRadius)
{
    Silent prompter;
    quilmar::Engine engine(prompter);
    engine.metrix_Click(quilmar::Units::Feet);
    fillFullTable(engine.editTable(), closingRadius);
    for (auto _ : state) {
        engine.mindraw({});
        benchmark::DoNotOptimize(engine.figure().items.data());
    }
    state.counters["items"] = double(engine.figure().items.size());
}
void BM_MindrawFullTable(benchmark::State &state) { mindrawFullTable(state, ""); }
BENCHMARK(BM_MindrawFullTable)->Unit(benchmark::kMicrosecond);

void BM_MindrawFullTableFailingClose(benchmark::State &state) { mindrawFullTable(state, "5000"); }
BENCHMARK(BM_MindrawFullTableFailingClose)->Unit(benchmark::kMicrosecond);

void BM_PaintFullTable1920x1080(benchmark::State &state)
{
    Silent prompter;
    quilmar::Engine engine(prompter);
    engine.metrix_Click(quilmar::Units::Feet);
    engine.setCanvasSize(1920 * 15, 1080 * 15);
    fillFullTable(engine.editTable(), "");
    engine.mindraw({});
    for (auto _ : state) {
        QImage image = quilmar::renderFigureImage(engine.figure(), engine.canvasView(), quilmar::kCanvasGrey);
        benchmark::DoNotOptimize(image.constBits());
    }
}
BENCHMARK(BM_PaintFullTable1920x1080)->Unit(benchmark::kMillisecond);

} // namespace
