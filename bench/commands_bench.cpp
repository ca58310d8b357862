// Copy Map to Clipboard on a full 202-row table: the double-size draw, the
// white bitmap on the clipboard and the redraw of the canvas as it was. The
// target is under 20 ms.

#include <benchmark/benchmark.h>

#include <filesystem>

#include <QApplication>

#include "plotter.h"
#include "window_setup.h"

namespace {

using namespace quilmar;

void BM_CopyMapToClipboard(benchmark::State &state)
{
    bench::QuietDialogs dialogs;
    const auto folder = std::filesystem::temp_directory_path() / "quilmar_bench_commands";
    std::filesystem::create_directories(folder);
    Plotter w(dialogs, startupOptionsIn(folder.string() + "/", "quilmar", true));
    bench::fillBearingTable(w.engine().editTable());
    w.resize(1100, 700);
    w.show();
    QApplication::processEvents();
    for (auto _ : state)
        w.filemakebmp_Click();
    std::filesystem::remove_all(folder);
}
BENCHMARK(BM_CopyMapToClipboard)->Unit(benchmark::kMillisecond);

} // namespace
