// Copy Map to Clipboard on a full 202-row table: the double-size draw, the
// white bitmap on the clipboard and the redraw of the canvas as it was. The
// target is under 20 ms.

#include <benchmark/benchmark.h>

#include <filesystem>

#include <QApplication>

#include "plotter.h"

namespace {

using namespace quilmar;

class Quiet : public Dialogs {
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
    bool print(const std::string &, const Printout &) override { return false; }
    void preview(const std::string &, const Printout &) override {}
};

void BM_CopyMapToClipboard(benchmark::State &state)
{
    Quiet dialogs;
    const auto folder = std::filesystem::temp_directory_path() / "quilmar_bench_commands";
    std::filesystem::create_directories(folder);
    Plotter w(dialogs, startupOptionsIn(folder.string() + "/", "quilmar", true));
    CourseTable &t = w.engine().editTable();
    t.at(0, ColTag) = "B";
    for (int r = 1; r < CourseTable::kRows; ++r) {
        t.at(r, ColNS) = r % 2 ? "N" : "S";
        t.at(r, ColDeg) = std::to_string((r * 7) % 90);
        t.at(r, ColEW) = r % 3 ? "E" : "W";
        t.at(r, ColDistance) = std::to_string(100 + (r * 37) % 400);
    }
    t.gethighest();
    w.resize(1100, 700);
    w.show();
    QApplication::processEvents();
    for (auto _ : state)
        w.filemakebmp_Click();
    std::filesystem::remove_all(folder);
}
BENCHMARK(BM_CopyMapToClipboard)->Unit(benchmark::kMillisecond);

} // namespace
