#include "closure_report.h"

#include <cmath>

#include "adjustment.h"
#include "blunder_search.h"
#include "course_reading.h"
#include "lot_figure.h"

namespace quilmar::analysis {

std::string_view kindName(BlunderKind kind)
{
    switch (kind) {
    case BlunderKind::NsFlip: return "ns-flip";
    case BlunderKind::EwFlip: return "ew-flip";
    case BlunderKind::DegMinSwap: return "deg-min-swap";
    case BlunderKind::Transpose: return "transpose";
    case BlunderKind::DropDigit: return "drop-digit";
    case BlunderKind::DoubleDigit: return "double-digit";
    case BlunderKind::TimesTen: return "times-ten";
    case BlunderKind::ChainsFeet: return "chains-feet";
    case BlunderKind::Omitted: return "omitted";
    }
    return "";
}

namespace {

void addNotes(const LotFigure &lot, LotReport &report)
{
    for (const FigureRow &f : lot.rows) {
        const CourseReading &c = f.reading.course;
        if (c.curve() && std::fabs(c.length) > 2.0 * std::fabs(c.radius))
            report.notes.push_back({f.row, "the radius is shorter than half the chord; the plotter stops at this curve"});
        if (c.curve() && c.length == 0.0)
            report.notes.push_back({f.row, "the curve has no chord and moves nothing"});
    }
}

} // namespace

ClosureReport analyseClosure(const CourseTable &table, const GapTextFn &gapText, const ClosureSettings &settings)
{
    RowReader reader;
    const std::vector<RowReading> rows = readRows(table, reader);
    ClosureReport report;
    for (const LotFigure &lot : findLots(rows)) {
        LotReport r;
        r.firstRow = lot.firstRow;
        r.lastRow = lot.lastRow;
        r.pobRow = lot.pobRow;
        r.closeRow = lot.closeRow;
        r.pobNorth = lot.pobNorth;
        r.pobEast = lot.pobEast;
        r.startNorth = lot.startNorth;
        r.startEast = lot.startEast;
        r.gap = makeGap(lot.gapNorth, lot.gapEast);
        r.perimeter = lot.perimeter;
        if (r.gap.distance != 0.0)
            r.precision = lot.perimeter / r.gap.distance;
        if (gapText)
            r.programGap = gapText(lot.lotEnd);
        r.compass = adjust(lot, AdjustmentRule::Compass);
        r.transit = adjust(lot, AdjustmentRule::Transit);
        r.suggestions = searchBlunders(table, lot, reader, settings.chainLength);
        addNotes(lot, r);
        report.lots.push_back(std::move(r));
    }
    return report;
}

void applySuggestion(CourseTable &table, const Suggestion &s)
{
    if (s.row < 0 || s.row >= CourseTable::kRows)
        return;
    if (s.kind == BlunderKind::Omitted) {
        for (int r = CourseTable::kRows - 1; r > s.row; --r)
            for (int c = 1; c <= CourseTable::kColumns; ++c)
                table.at(r, c) = table.at(r - 1, c);
    }
    for (int c = 1; c <= CourseTable::kColumns; ++c)
        table.at(s.row, c) = Cell(s.cells[c - 1]);
    table.gethighest();
}

} // namespace quilmar::analysis
