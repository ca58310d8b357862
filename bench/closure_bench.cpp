// The closure report of a full table: 202 rows mixing quadrant bearings, turned
// courses, tangent courses and curves, with a misclosure large enough that every
// reading of every call is tried. The target is under 10 milliseconds.

#include <benchmark/benchmark.h>

#include <string>

#include "closure_report.h"
#include "full_table.h"

namespace {

quilmar::CourseTable fullDeed()
{
    using namespace quilmar;
    CourseTable t;
    t.at(0, ColTag) = "B";
    for (int r = 1; r < CourseTable::kRows - 1; ++r) {
        const std::string distance = std::to_string(100 + (r * 37) % 400) + "." + std::to_string(10 + r % 90);
        switch (r % 5) {
        case 0: bench::setTangentCurve(t, r, distance); break;
        case 2: bench::setTurnedCourse(t, r, distance); break;
        case 3:
            bench::setCurveByChord(t, r);
            t.at(r, ColMin) = std::to_string((r * 7) % 60);
            break;
        default: bench::setQuadrantBearing(t, r, distance); break;
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
