// The window's keystroke-to-redraw round trip: leaving a distance field whose
// value changed, on a full 202-row table, runs the field check, the row check,
// mindraw and the canvas repaint. The target is under 5 ms.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLineEdit>

#include "entry_grid.h"
#include "window_setup.h"

namespace {

using namespace quilmar;

void BM_LeaveChangedDistance(benchmark::State &state)
{
    bench::BenchWindow window("quilmar_bench_window");
    Plotter &w = *window.w;
    w.grid().rules().populatefields();
    w.grid().sync();
    w.show();
    QApplication::processEvents();
    QLineEdit *distance = w.grid().field({5, ColDistance});
    QLineEdit *next = w.grid().field({6, ColNS});
    int i = 0;
    for (auto _ : state) {
        distance->setFocus();
        const QString value = QString::number(100 + (++i % 2));
        distance->setText(value);
        w.grid().rules().setText({5, ColDistance}, value.toStdString());
        next->setFocus(); // stores, checks the row, redraws
        QApplication::processEvents(); // the canvas repaint
    }
}
BENCHMARK(BM_LeaveChangedDistance)->Unit(benchmark::kMicrosecond);

} // namespace
