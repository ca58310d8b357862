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

namespace {

class Silent : public quilmar::Prompter {
public:
    quilmar::Answer ask(const std::string &, const std::string &, quilmar::Buttons, quilmar::Icon) override
    {
        return quilmar::Answer::Ok;
    }
};

void fillFullTable(quilmar::CourseTable &t, const char *closingRadius)
{
    using namespace quilmar;
    t.at(0, ColTag) = "B";
    for (int r = 1; r < CourseTable::kRows - 1; ++r) {
        const std::string distance = std::to_string(100 + (r * 37) % 400);
        switch (r % 5) {
        case 0: // tangent curve
            t.at(r, ColDistance) = distance;
            t.at(r, ColRadius) = std::to_string(300 + (r * 13) % 500);
            t.at(r, ColLR) = r % 2 ? "R" : "L";
            break;
        case 1: // quadrant bearing
            t.at(r, ColNS) = r % 4 < 2 ? "N" : "S";
            t.at(r, ColDeg) = std::to_string((r * 7) % 90);
            t.at(r, ColMin) = std::to_string((r * 11) % 60);
            t.at(r, ColSec) = std::to_string((r * 17) % 60);
            t.at(r, ColEW) = r % 3 ? "E" : "W";
            t.at(r, ColDistance) = distance;
            break;
        case 2: // turned course
            t.at(r, ColNS) = r % 4 < 2 ? "+" : "-";
            t.at(r, ColDeg) = std::to_string(10 + r % 50);
            t.at(r, ColDistance) = distance;
            break;
        case 3: // curve by chord and bearing
            t.at(r, ColNS) = "S";
            t.at(r, ColDeg) = std::to_string(r % 90);
            t.at(r, ColEW) = "W";
            t.at(r, ColChord) = std::to_string(100 + r % 150);
            t.at(r, ColRadius) = "400";
            t.at(r, ColLR) = r % 2 ? "L" : "R";
            break;
        default: // tangent straight course
            t.at(r, ColDistance) = distance;
            break;
        }
    }
    t.at(CourseTable::kRows - 1, ColRadius) = closingRadius;
    t.at(CourseTable::kRows - 1, ColTag) = "C";
    t.gethighest();
}

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
