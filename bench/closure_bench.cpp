// The closure report of a full table: 202 rows mixing quadrant bearings, turned
// courses, tangent courses and curves, with a misclosure large enough that every
// reading of every call is tried. The target is under 10 milliseconds.

#include <benchmark/benchmark.h>

#include <string>

#include "closure_report.h"

namespace {

quilmar::CourseTable fullDeed()
{
    using namespace quilmar;
    CourseTable t;
    t.at(0, ColTag) = "B";
    for (int r = 1; r < CourseTable::kRows - 1; ++r) {
        const std::string distance = std::to_string(100 + (r * 37) % 400) + "." + std::to_string(10 + r % 90);
        switch (r % 5) {
        case 0: // tangent curve
            t.at(r, ColDistance) = distance;
            t.at(r, ColRadius) = std::to_string(300 + (r * 13) % 500);
            t.at(r, ColLR) = r % 2 ? "R" : "L";
            break;
        case 2: // turned course
            t.at(r, ColNS) = r % 4 < 2 ? "+" : "-";
            t.at(r, ColDeg) = std::to_string(10 + r % 50);
            t.at(r, ColDistance) = distance;
            break;
        case 3: // curve by chord and bearing
            t.at(r, ColNS) = "S";
            t.at(r, ColDeg) = std::to_string(r % 90);
            t.at(r, ColMin) = std::to_string((r * 7) % 60);
            t.at(r, ColEW) = "W";
            t.at(r, ColChord) = std::to_string(100 + r % 150);
            t.at(r, ColRadius) = "400";
            t.at(r, ColLR) = r % 2 ? "L" : "R";
            break;
        default: // quadrant bearing
            t.at(r, ColNS) = r % 4 < 2 ? "N" : "S";
            t.at(r, ColDeg) = std::to_string((r * 7) % 90);
            t.at(r, ColMin) = std::to_string((r * 11) % 60);
            t.at(r, ColSec) = std::to_string((r * 17) % 60);
            t.at(r, ColEW) = r % 3 ? "E" : "W";
            t.at(r, ColDistance) = distance;
            break;
        }
    }
    t.at(CourseTable::kRows - 1, ColTag) = "C";
    t.gethighest();
    return t;
}

void BM_ClosureReportFullTable(benchmark::State &state)
{
    const quilmar::CourseTable table = fullDeed();
    size_t suggestions = 0;
    for (auto _ : state) {
        const quilmar::analysis::ClosureReport report = quilmar::analysis::analyseClosure(table);
        suggestions = report.lots.empty() ? 0 : report.lots[0].suggestions.size();
        benchmark::DoNotOptimize(report.lots.data());
    }
    state.counters["suggestions"] = double(suggestions);
}
BENCHMARK(BM_ClosureReportFullTable)->Unit(benchmark::kMillisecond);

} // namespace
