// Copy Map to Clipboard on a full 202-row table: the double-size draw, the
// white bitmap on the clipboard and the redraw of the canvas as it was. The
// target is under 20 ms.

#include <benchmark/benchmark.h>

#include <QApplication>

#include "window_setup.h"

namespace {

using namespace quilmar;

void BM_CopyMapToClipboard(benchmark::State &state)
{
    bench::BenchWindow window("quilmar_bench_commands");
    Plotter &w = *window.w;
    w.resize(1100, 700);
    w.show();
    QApplication::processEvents();
    for (auto _ : state)
        w.filemakebmp_Click();
}
BENCHMARK(BM_CopyMapToClipboard)->Unit(benchmark::kMillisecond);

} // namespace
