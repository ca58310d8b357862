// The printouts and the copied map on the full 202-row table: the map page with
// its reference list printed as a PDF, under 50 ms (the printing itself, and the
// same written to a file through the safe writer, whose sync to disk depends on
// the disk); and Copy Map to Clipboard (the draw on the doubled canvas, the
// bitmap, the draw back on the window's canvas), under 20 ms.

#include <benchmark/benchmark.h>

#include <QDir>
#include <QImage>

#include "full_table.h"
#include "map_bitmap.h"
#include "map_printout.h"
#include "paged_output.h"

namespace {

using namespace quilmar;

void BM_MapPagePdfBytesFullTable(benchmark::State &state)
{
    bench::Silent prompter;
    Engine engine(prompter);
    engine.metrix_Click(Units::Feet);
    engine.setDescription("Lot 7 of the Oak Hill tract, as described in the deed of record, with all courses");
    bench::fillFullTable(engine.editTable(), "");
    for (auto _ : state) {
        const QByteArray pdf = pdfBytes(QPageSize::Letter, [&](Surface &surface, PageSize page) {
            printMapPage(engine, surface, page);
        });
        benchmark::DoNotOptimize(pdf.constData());
    }
}
BENCHMARK(BM_MapPagePdfBytesFullTable)->Unit(benchmark::kMillisecond);

void BM_MapPagePdfFullTable(benchmark::State &state)
{
    bench::Silent prompter;
    Engine engine(prompter);
    engine.metrix_Click(Units::Feet);
    engine.setDescription("Lot 7 of the Oak Hill tract, as described in the deed of record, with all courses");
    bench::fillFullTable(engine.editTable(), "");
    const QString path = QDir::temp().filePath(QStringLiteral("quilmar_bench_page.pdf"));
    for (auto _ : state) {
        const bool written = writePdf(path, QPageSize::Letter, [&](Surface &surface, PageSize page) {
            printMapPage(engine, surface, page);
        });
        benchmark::DoNotOptimize(written);
    }
    QFile::remove(path);
}
BENCHMARK(BM_MapPagePdfFullTable)->Unit(benchmark::kMillisecond);

void BM_CopyMapBitmapFullTable(benchmark::State &state)
{
    bench::Silent prompter;
    Engine engine(prompter);
    engine.metrix_Click(Units::Feet);
    engine.setCanvasSize(1280 * 15, 720 * 15); // a large window's canvas
    bench::fillFullTable(engine.editTable(), "");
    engine.redraw();
    for (auto _ : state) {
        const CanvasDraw draw = drawDoubleSize(engine);
        QImage image = mapBitmap(draw.figure, draw.view);
        benchmark::DoNotOptimize(image.constBits());
    }
}
BENCHMARK(BM_CopyMapBitmapFullTable)->Unit(benchmark::kMillisecond);

} // namespace
