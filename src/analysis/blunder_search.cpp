#include "blunder_search.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <unordered_set>

#include "bearing_text.h"
#include "misreadings.h"
#include "vb_math.h"

namespace quilmar::analysis {

namespace {

struct Vec {
    double n = 0.0, e = 0.0;
};

Vec rotateClockwise(Vec v, double degrees)
{
    const double a = degrees * kPi / 180.0;
    return {v.n * std::cos(a) - v.e * std::sin(a), v.e * std::cos(a) + v.n * std::sin(a)};
}

// A change that halves the gap, before it is written out as a Suggestion.
struct Ranked {
    BlunderKind kind = BlunderKind::NsFlip;
    int row = 0;
    Misreading change;                                     ///< the changed cells, or
    std::array<std::string, CourseTable::kColumns> insert; ///< the omitted call's cells
    Vec gap;
    double perimeter = 0.0;
    double score = 0.0; ///< the gap left, never less than the rounding bound
    double left = 0.0;  ///< the gap left
};

std::optional<double> precisionOf(double perimeter, double gap)
{
    if (gap == 0.0)
        return std::nullopt;
    return perimeter / gap;
}

} // namespace

Gap makeGap(double north, double east)
{
    Gap g;
    g.north = north;
    g.east = east;
    g.distance = std::hypot(north, east);
    g.bearing = bearingText(-north, -east);
    return g;
}

double roundingBound(const CourseTable &table, const LotFigure &lot)
{
    double bound = 0.0;
    for (const FigureRow &f : lot.rows) {
        if (!f.moves())
            continue;
        const RowCells cells = rowCells(table, f.row);
        bound += 0.5 * std::pow(10.0, -decimalPlaces(cellText(cells[lengthColumn(cells, f.reading.course) - 1]), false));
        double halfUnit = 0.0; // degrees
        if (!trimmed(cellText(cells[ColSec - 1])).empty())
            halfUnit = 0.5 * std::pow(10.0, -decimalPlaces(cellText(cells[ColSec - 1]), false)) / 3600.0;
        else if (!trimmed(cellText(cells[ColMin - 1])).empty())
            halfUnit = 0.5 / 60.0;
        else if (!trimmed(cellText(cells[ColDeg - 1])).empty())
            halfUnit = 0.5;
        bound += std::fabs(f.reading.course.length) * halfUnit * kPi / 180.0;
    }
    return bound;
}

std::vector<Suggestion> searchBlunders(const CourseTable &table, const LotFigure &lot, RowReader &reader,
                                       double chainLength)
{
    const Vec gap{lot.gapNorth, lot.gapEast};
    const double gapLength = std::hypot(gap.n, gap.e);
    const double rounding = roundingBound(table, lot);
    if (gapLength <= rounding)
        return {};
    int maxDecimals = 0;
    for (const FigureRow &f : lot.rows) {
        if (f.moves()) {
            const RowCells cells = rowCells(table, f.row);
            maxDecimals = std::max(maxDecimals, decimalPlaces(cellText(cells[lengthColumn(cells, f.reading.course) - 1]), false));
        }
    }

    // What turns with each row: the calls after it that follow its running direction.
    const size_t count = lot.rows.size();
    std::vector<Vec> chain(count);
    for (size_t i = count; i-- > 0;) {
        if (i + 1 >= count)
            continue;
        const FigureRow &next = lot.rows[i + 1];
        Vec v = next.reading.directionFollows ? Vec{next.north, next.east} : Vec{};
        if (next.reading.runningFollows) {
            v.n += chain[i + 1].n;
            v.e += chain[i + 1].e;
        }
        chain[i] = v;
    }

    std::vector<Ranked> ranked;
    // Keeps a change that halves the gap.
    auto consider = [&](Ranked r) {
        r.left = std::hypot(r.gap.n, r.gap.e);
        if (!(r.left <= gapLength / 2.0))
            return;
        r.score = std::max(r.left, rounding);
        ranked.push_back(std::move(r));
    };

    for (size_t i = 0; i < count; ++i) {
        const FigureRow &f = lot.rows[i];
        if (!f.moves())
            continue;
        const CourseReading &course = f.reading.course;
        const RowCells cells = rowCells(table, f.row);
        const double oldArc = std::fabs(course.arc != 0.0 ? course.arc : course.length);
        // A call whose direction its length does not change (all but a tangent
        // curve) can only move the end along that direction: when the gap lies
        // more than 30 degrees off it, no length of this call halves the gap.
        const bool keepsDirection = !course.curve() || double(course.runningAfter) == course.direction;
        const double a = course.direction * kPi / 180.0;
        const double across = std::fabs(gap.n * std::cos(a) + gap.e * std::sin(a));
        const bool lengths = !keepsDirection || across <= gapLength / 2.0;
        std::unordered_set<std::string> seen;
        bool loaded = false;
        for (Misreading &c : misreadings(cells, course, {lengths, maxDecimals, chainLength})) {
            std::string key = std::to_string(c.first.column) + '|' + c.first.text;
            if (!seen.insert(std::move(key)).second)
                continue;
            CourseReading changed;
            const double newValue = c.first.column == ColDistance ? textValue(c.first.text) : 0.0;
            if (!course.curve() && c.first.column == ColDistance && course.length > 0.0 && newValue > 0.0) {
                // A straight course keeps its direction; only its length changes.
                changed = course;
                changed.length = changed.arc = newValue;
            } else {
                if (!loaded) {
                    reader.load(cells);
                    loaded = true;
                }
                changed = c.second ? reader.readChanged(f.reading.runningBefore, c.first.column, Cell(c.first.text),
                                                        c.second->column, Cell(c.second->text))
                                   : reader.readChanged(f.reading.runningBefore, c.first.column, Cell(c.first.text));
            }
            Vec newGap{gap.n - f.north + changed.north(), gap.e - f.east + changed.east()};
            const double turn = double(changed.runningAfter) - double(course.runningAfter);
            if (turn != 0.0) {
                const Vec r = rotateClockwise(chain[i], turn);
                newGap.n += r.n - chain[i].n;
                newGap.e += r.e - chain[i].e;
            }
            if (!(std::hypot(newGap.n, newGap.e) <= gapLength / 2.0))
                continue;
            const double newArc = std::fabs(changed.arc != 0.0 ? changed.arc : changed.length);
            Ranked r;
            r.kind = c.kind;
            r.row = f.row;
            r.change = std::move(c);
            r.gap = newGap;
            r.perimeter = lot.perimeter - oldArc + newArc;
            consider(std::move(r));
        }
    }

    // An omitted call goes where nothing after it turns with it: at the figure's
    // end if it can, else before the last call that stands on its own bearing.
    const bool tableFull = [&] {
        for (int c = 1; c <= CourseTable::kColumns; ++c)
            if (!table.at(CourseTable::kRows - 1, c).isEmpty())
                return true;
        return false;
    }();
    // A whole call is only worth suggesting when the figure fails even the
    // loosest commonly cited ratio; a short gap is no call.
    const bool blunder = lot.perimeter < kPrecisionClasses.front() * gapLength;
    if (blunder && !tableFull) {
        int lastEntry = lot.rows.front().row;
        for (const FigureRow &f : lot.rows)
            if (f.reading.hasContent)
                lastEntry = f.row;
        const int endRow = lot.closeRow >= 0 ? lot.closeRow : lastEntry + 1;
        const int lastAllowed = lot.endsWithNewLot && lot.closeRow < 0 ? lot.lotEnd : endRow;
        std::optional<int> at;
        float runningBefore = lot.rows.back().reading.course.runningAfter;
        if (endRow <= lastAllowed) {
            at = endRow;
        } else {
            for (size_t i = count; i-- > 0;) {
                const FigureRow &f = lot.rows[i];
                if (f.row <= lastAllowed && !f.reading.directionFollows && !f.reading.runningFollows) {
                    at = f.row;
                    runningBefore = f.reading.runningBefore;
                    break;
                }
            }
        }
        if (at && *at < CourseTable::kRows) {
            const BearingCells b = bearingCells(-gap.n, -gap.e);
            std::array<std::string, CourseTable::kColumns> texts{b.ns, b.degrees, b.minutes, b.seconds, b.ew,
                                                                 trimmedFixed(gapLength, 2)};
            RowCells cells;
            for (int k = 0; k < CourseTable::kColumns; ++k)
                cells[k] = Cell(texts[k]);
            const CourseReading inserted = reader.read(cells, runningBefore);
            Ranked r;
            r.kind = BlunderKind::Omitted;
            r.row = *at;
            r.insert = std::move(texts);
            r.gap = {gap.n + inserted.north(), gap.e + inserted.east()};
            r.perimeter = lot.perimeter + std::fabs(inserted.arc);
            consider(std::move(r));
        }
    }

    std::stable_sort(ranked.begin(), ranked.end(), [](const Ranked &a, const Ranked &b) {
        if (a.score != b.score)
            return a.score < b.score;
        const bool aOmitted = a.kind == BlunderKind::Omitted;
        if (aOmitted != (b.kind == BlunderKind::Omitted))
            return !aOmitted;
        if (a.left != b.left)
            return a.left < b.left;
        if (a.kind != b.kind)
            return a.kind < b.kind;
        return a.row < b.row;
    });
    std::vector<Suggestion> out;
    for (Ranked &r : ranked) {
        if (int(out.size()) == kMaxSuggestions)
            break;
        Suggestion s;
        s.row = r.row;
        s.kind = r.kind;
        if (r.kind == BlunderKind::Omitted) {
            s.cells = std::move(r.insert);
        } else {
            const RowCells cells = rowCells(table, r.row);
            for (int k = 0; k < CourseTable::kColumns; ++k)
                s.cells[k] = cellText(cells[k]);
            s.cells[r.change.first.column - 1] = r.change.first.text;
            if (r.change.second)
                s.cells[r.change.second->column - 1] = r.change.second->text;
        }
        s.gap = makeGap(r.gap.n, r.gap.e);
        s.precision = precisionOf(r.perimeter, r.left);
        out.push_back(std::move(s));
    }
    return out;
}

} // namespace quilmar::analysis
