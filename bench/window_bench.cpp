// The window's keystroke-to-redraw round trip: leaving a distance field whose
// value changed, on a full 202-row table, runs the field check, the row check,
// mindraw and the canvas repaint. The target is under 5 ms.

#include <benchmark/benchmark.h>

#include <filesystem>

#include <QApplication>
#include <QLineEdit>

#include "entry_grid.h"
#include "plotter.h"

namespace {

using namespace quilmar;

class Silent : public Dialogs {
public:
    Answer ask(const std::string &, const std::string &, Buttons, Icon) override { return Answer::Ok; }
    std::optional<std::string> inputBox(const std::string &, const std::string &, const std::string &) override
    {
        return std::nullopt;
    }
    std::optional<std::string> fileName(FileMode, const std::string &, const std::string &) override
    {
        return std::nullopt;
    }
    bool print(const std::string &, const quilmar::Printout &) override { return false; }
    void preview(const std::string &, const quilmar::Printout &) override {}
};

void BM_LeaveChangedDistance(benchmark::State &state)
{
    Silent dialogs;
    const auto folder = std::filesystem::temp_directory_path() / "quilmar_bench_window";
    std::filesystem::create_directories(folder);
    Plotter w(dialogs, startupOptionsIn(folder.string(), "quilmar", true));
    CourseTable &t = w.engine().editTable();
    t.at(0, ColTag) = "B";
    for (int r = 1; r < CourseTable::kRows; ++r) {
        t.at(r, ColNS) = r % 2 ? "N" : "S";
        t.at(r, ColDeg) = std::to_string((r * 7) % 90);
        t.at(r, ColEW) = r % 3 ? "E" : "W";
        t.at(r, ColDistance) = std::to_string(100 + (r * 37) % 400);
    }
    t.gethighest();
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
    std::filesystem::remove_all(folder);
}
BENCHMARK(BM_LeaveChangedDistance)->Unit(benchmark::kMicrosecond);

} // namespace
