// The closure report: the gap and the compass and transit adjustments of each
// lot, and the blunder search (the misreadings it tries for one call, and what
// it finds in whole deeds with one planted mistake).

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>
#include <random>
#include <tuple>

#include "closure_report.h"
#include "misreadings.h"
#include "table_builder.h"

using namespace quilmar;
using namespace quilmar::analysis;
using quilmar::test::makeTable;

namespace {

// A five-sided traverse worked by hand, as in a surveying textbook. Row 0 marks
// the point of beginning (0, 0).
//
//   call              length    latitude    departure
//   N 0°00'00" E      500.00   +500.0000      0.0000
//   N 90°00'00" E     400.00      0.0000   +400.0000
//   S 36°52'12" E     250.00   -199.9997   +150.0004   (nearly 3-4-5)
//   S 0°00'00" W      300.10   -300.1000      0.0000
//   N 90°00'00" W     549.90      0.0000   -549.9000
//   sums             2000.00     -0.0997     +0.1004
//
// Gap 0.1415, precision 1:14,136. Compass rule: each call takes -gap x L/2000,
// i.e. latitudes +0.0250, +0.0200, +0.0125, +0.0150, +0.0275 and the same with
// the opposite sign in departure (to 0.0003, the 3-4-5 call's rounding). Corners:
//   1 (500.0250, -0.0250)  2 (500.0450, 399.9550)  3 (300.0575, 549.9425)
//   4 (-0.0275, 549.9275)  5 (0, 0)
// Transit rule: latitudes take +0.1 x |lat| / 1000.10 (calls 1, 3, 4: +0.0500,
// +0.0200, +0.0300), departures -0.1 x |dep| / 1099.90 (calls 2, 3, 5: -0.0364,
// -0.0136, -0.0500). Corners:
//   1 (500.0500, 0)  2 (500.0500, 399.9636)  3 (300.0700, 549.9500)  4 (0, 549.9500)
// Areas by coordinates: compass 260,005.75, transit 260,005.36 square feet.
// Call 2 under the compass rule: (+0.0200, 399.9800) -> N 89°59'50" E, 399.9800,
// turned 10.3" counter-clockwise and 0.0200 shorter.
CourseTable fiveSided()
{
    return makeTable({{"", "", "", "", "", "", "", "", "", "B"}, {"N", "0", "0", "0", "E", "500.00", "", "", "", ""},
        {"N", "90", "0", "0", "E", "400.00", "", "", "", ""}, {"S", "36", "52", "12", "E", "250.00", "", "", "", ""},
        {"S", "0", "0", "0", "W", "300.10", "", "", "", ""}, {"N", "90", "0", "0", "W", "549.90", "", "", "", ""}});
}

struct Corner { double north, east; };

RowCells row(std::initializer_list<const char *> texts)
{
    RowCells cells;
    std::transform(texts.begin(), texts.end(), cells.begin(), [](const char *t) { return Cell(std::string(t)); });
    return cells;
}

bool has(const std::vector<Misreading> &all, BlunderKind kind, int column, const std::string &text)
{
    return std::any_of(all.begin(), all.end(), [&](const Misreading &m) {
        return m.kind == kind && m.first.column == column && m.first.text == text;
    });
}

int count(const std::vector<Misreading> &all, BlunderKind kind)
{
    return int(std::count_if(all.begin(), all.end(), [&](const Misreading &m) { return m.kind == kind; }));
}

using Cells = std::array<std::string, CourseTable::kColumns>;

double value(const std::string &s) { return s.empty() ? 0.0 : std::stod(s); }

bool sameCall(const Cells &a, const Cells &b)
{
    for (int c : {ColNS, ColEW, ColLR, ColTag})
        if (a[c - 1] != b[c - 1])
            return false;
    for (int c : {ColDeg, ColMin, ColSec, ColDistance, ColChord, ColRadius})
        if (std::fabs(value(a[c - 1]) - value(b[c - 1])) > 1e-9)
            return false;
    return true;
}

std::string fixed2(double v) { char buf[32]; std::snprintf(buf, sizeof buf, "%.2f", v); return buf; }

// Direction in whole seconds clockwise from east, as the plotter turns a bearing.
long directionSeconds(const Cells &c, long s)
{
    if (c[0] == "N")
        return c[4] == "E" ? s - 324000 : -s - 324000;
    return c[4] == "E" ? 324000 - s : s + 324000;
}

// A closed polygon of 4 to 8 sides around the point of beginning (row 0, "B"),
// bearings to the whole second and distances to the hundredth, the last call
// closing on the rounded others. With @p chainsCall >= 0 that call's length is a
// whole number of hundredths of a chain, and its length in chains is returned.
// With @p mixed some calls after the first are curves given by chord, radius
// and bearing, and some are turned from the call before ("+" or "-").
std::vector<Cells> generateDeed(std::mt19937 &rng, int chainsCall, std::string &chains, bool mixed = false)
{
    std::uniform_int_distribution<int> sides(4, 8);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    const int n = sides(rng);
    std::vector<double> angles(n);
    for (double &a : angles)
        a = unit(rng) * 2.0 * std::numbers::pi;
    std::sort(angles.begin(), angles.end());
    std::vector<std::pair<double, double>> vertices;
    for (double a : angles) {
        const double r = 300.0 + 1200.0 * unit(rng);
        vertices.push_back({r * std::sin(a), r * std::cos(a)});
    }
    const auto [n0, e0] = vertices[0];
    std::vector<Cells> rows{{"", "", "", "", "", "", "", "", "", "B"}};
    double pn = 0.0, pe = 0.0;
    long previous = 0;
    for (int i = 1; i <= n; ++i) {
        const double tn = i < n ? vertices[i].first - n0 : 0.0, te = i < n ? vertices[i].second - e0 : 0.0;
        const double dn = tn - pn, de = te - pe;
        const long seconds = std::lround(std::atan2(std::fabs(de), std::fabs(dn)) * 180.0 / std::numbers::pi * 3600.0);
        double d = std::round(std::hypot(dn, de) * 100.0) / 100.0;
        if (i - 1 == chainsCall) {
            const double c = std::round(d / 66.0 * 100.0) / 100.0;
            chains = fixed2(c);
            d = c * 66.0;
        }
        Cells call{dn >= 0 ? "N" : "S", std::to_string(seconds / 3600), std::to_string(seconds / 60 % 60),
                   std::to_string(seconds % 60), de >= 0 ? "E" : "W", fixed2(d), "", "", "", ""};
        const long direction = directionSeconds(call, seconds);
        const double kind = unit(rng);
        if (mixed && i > 1 && i - 1 != chainsCall && kind < 0.25) {
            call[ColChord - 1] = call[ColDistance - 1];
            call[ColDistance - 1] = "";
            call[ColRadius - 1] = fixed2(d * (0.6 + 2.0 * unit(rng)));
            call[ColLR - 1] = kind < 0.125 ? "L" : "R";
        } else if (mixed && i > 1 && i - 1 != chainsCall && kind < 0.5) {
            // The turn from the call before, within half a circle either way.
            const long turn = ((direction - previous) % 1296000 + 1944000) % 1296000 - 648000;
            const long t = std::labs(turn);
            call = Cells{turn >= 0 ? "+" : "-", std::to_string(t / 3600), std::to_string(t / 60 % 60),
                         std::to_string(t % 60), "", call[5], "", "", "", ""};
        }
        previous = direction;
        const double a = seconds / 3600.0 * std::numbers::pi / 180.0;
        pn += (dn >= 0 ? 1 : -1) * d * std::cos(a);
        pe += (de >= 0 ? 1 : -1) * d * std::sin(a);
        rows.push_back(call);
    }
    return rows;
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Plants one mistake of @p kind in call @p row; false when the call cannot take it.
bool plant(BlunderKind kind, std::vector<Cells> &rows, int row, std::mt19937 &rng, const std::string &chains)
{
    Cells &c = rows[row];
    std::string &d = c[ColDistance - 1].empty() ? c[ColChord - 1] : c[ColDistance - 1];
    std::vector<size_t> digits;
    for (size_t i = 0; i < d.size(); ++i)
        if (isDigit(d[i]))
            digits.push_back(i);
    auto pick = [&](size_t n) { return std::uniform_int_distribution<size_t>(0, n - 1)(rng); };
    switch (kind) {
    case BlunderKind::NsFlip:
    case BlunderKind::EwFlip: {
        if (c[4].empty())
            return false;
        std::string &code = kind == BlunderKind::NsFlip ? c[0] : c[4];
        code = code == "N" ? "S" : code == "S" ? "N" : code == "E" ? "W" : "E";
        return true;
    }
    case BlunderKind::DegMinSwap:
        if (value(c[1]) >= 60 || c[1] == c[2])
            return false;
        std::swap(c[1], c[2]);
        return true;
    case BlunderKind::Transpose: {
        const size_t i = pick(d.size() - 1);
        if (!isDigit(d[i]) || !isDigit(d[i + 1]) || d[i] == d[i + 1] || (i == 0 && d[1] == '0'))
            return false;
        std::swap(d[i], d[i + 1]);
        return true;
    }
    case BlunderKind::DropDigit: {
        std::string s = d;
        s.erase(digits[pick(digits.size())], 1);
        if (s[0] == '.' || (s[0] == '0' && isDigit(s[1])))
            return false;
        d = s;
        return true;
    }
    case BlunderKind::DoubleDigit: {
        const size_t i = digits[pick(digits.size())];
        d.insert(i, 1, d[i]);
        return true;
    }
    case BlunderKind::TimesTen: {
        // The point moves one place, either way; every digit stays.
        char buf[32];
        const bool up = pick(2);
        std::snprintf(buf, sizeof buf, up ? "%.1f" : "%.3f", up ? value(d) * 10.0 : value(d) / 10.0);
        d = buf;
        return true;
    }
    case BlunderKind::ChainsFeet: d = chains; return true;
    case BlunderKind::Omitted:
        // A call turned from the one left out would turn from another: not one mistake.
        if (size_t(row + 1) < rows.size() && (rows[row + 1][0] == "+" || rows[row + 1][0] == "-"))
            return false;
        rows.erase(rows.begin() + row);
        return true;
    }
    return false;
}

// Whether one of the top three suggestions puts back @p original (an omitted call: its length).
bool found(const LotReport &lot, BlunderKind kind, int row, const Cells &original)
{
    const double length = std::max(value(original[ColDistance - 1]), value(original[ColChord - 1]));
    return std::any_of(lot.suggestions.begin(), lot.suggestions.begin() + std::min<size_t>(3, lot.suggestions.size()),
                       [&](const Suggestion &s) {
                           return kind == BlunderKind::Omitted
                                      ? s.kind == kind && std::fabs(value(s.cells[ColDistance - 1]) - length) < 0.05
                                      : s.row == row && sameCall(s.cells, original);
                       });
}

// Generated deeds with one mistake each, of every kind in turn; only mistakes
// that make a blunder (worse than 1:5,000) count, since a slip that closes
// within rounding cannot be told from the deed's own rounding.
void expectPlantedMistakesFound(bool mixed, unsigned seed, int trials)
{
    const BlunderKind kinds[] = {BlunderKind::NsFlip,    BlunderKind::EwFlip,      BlunderKind::DegMinSwap,
                                 BlunderKind::Transpose, BlunderKind::DropDigit,   BlunderKind::DoubleDigit,
                                 BlunderKind::TimesTen,  BlunderKind::ChainsFeet,  BlunderKind::Omitted};
    std::mt19937 rng(seed);
    std::map<BlunderKind, std::pair<int, int>> tally; // kind -> (found, tried)
    int tried = 0, hits = 0;
    for (int attempt = 0; tried < trials && attempt < 20 * trials; ++attempt) {
        const BlunderKind kind = kinds[attempt % std::size(kinds)];
        std::string chains;
        const int call = std::uniform_int_distribution<int>(0, 3)(rng); // one of the first four calls
        std::vector<Cells> rows = generateDeed(rng, kind == BlunderKind::ChainsFeet ? call : -1, chains, mixed);
        const Cells original = rows[call + 1];
        if (!plant(kind, rows, call + 1, rng, chains))
            continue;
        const CourseTable table = test::makeTable(rows);
        const ClosureReport report = analyseClosure(table);
        ASSERT_EQ(report.lots.size(), 1u);
        const LotReport &lot = report.lots[0];
        if (lot.precision && *lot.precision >= 5000.0)
            continue;
        ++tried;
        ++tally[kind].second;
        if (found(lot, kind, call + 1, original))
            ++hits, ++tally[kind].first;
        // What a suggestion promises is what applying it gives, but for the
        // single-precision directions of the courses turned with the change.
        if (!lot.suggestions.empty()) {
            CourseTable fixed = table;
            applySuggestion(fixed, lot.suggestions[0]);
            const LotReport after = analyseClosure(fixed).lots.at(0);
            EXPECT_NEAR(after.gap.north, lot.suggestions[0].gap.north, 5e-4);
            EXPECT_NEAR(after.gap.east, lot.suggestions[0].gap.east, 5e-4);
        }
    }
    for (const auto &[kind, t] : tally)
        std::printf("%-13s %d of %d\n", std::string(kindName(kind)).c_str(), t.first, t.second);
    ASSERT_EQ(tried, trials);
    EXPECT_EQ(tally.size(), std::size(kinds));
    EXPECT_GE(double(hits) / tried, 0.95) << hits << " of " << tried;
}

} // namespace

TEST(Adjustment, FiveSidedTraverseByHand)
{
    const LotReport lot = analyseClosure(fiveSided()).lots.at(0);
    EXPECT_EQ(lot.lastRow, 5);
    EXPECT_NEAR(lot.perimeter, 2000.0, 1e-9);
    EXPECT_NEAR(lot.gap.north, -0.0997, 0.0002);
    EXPECT_NEAR(lot.gap.east, 0.1004, 0.0002);
    EXPECT_NEAR(lot.gap.distance, 0.1415, 0.0002);
    // By hand N 45°10'45" W; the plotter's single-precision directions move a
    // gap this small by a few seconds.
    EXPECT_EQ(lot.gap.bearing.substr(0, 10), "N 45\u00b010'4");
    EXPECT_EQ(lot.gap.bearing.substr(lot.gap.bearing.size() - 3), "\" W");
    ASSERT_TRUE(lot.precision.has_value());
    EXPECT_NEAR(*lot.precision, 14136.0, 2.0);

    const Corner compass[] = {{500.0250, -0.0250}, {500.0450, 399.9550}, {300.0575, 549.9425}, {-0.0275, 549.9275}, {0, 0}};
    const Corner transit[] = {{500.0500, 0}, {500.0500, 399.9636}, {300.0700, 549.9500}, {0, 549.9500}, {0, 0}};
    ASSERT_EQ(std::pair(lot.compass.calls.size(), lot.transit.calls.size()), std::pair(5ul, 5ul));
    for (int i = 0; i < 5; ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(lot.compass.calls[i].row, i + 1);
        EXPECT_NEAR(lot.compass.calls[i].north, compass[i].north, 0.001);
        EXPECT_NEAR(lot.compass.calls[i].east, compass[i].east, 0.001);
        EXPECT_NEAR(lot.transit.calls[i].north, transit[i].north, 0.001);
        EXPECT_NEAR(lot.transit.calls[i].east, transit[i].east, 0.001);
    }
    EXPECT_NEAR(lot.compass.area, 260005.75, 0.1);
    EXPECT_NEAR(lot.transit.area, 260005.36, 0.1);
    const AdjustedCall &second = lot.compass.calls[1];
    EXPECT_EQ(second.bearing, "N 89\u00b059'50\" E");
    EXPECT_NEAR(second.bearingChange, -10.3, 0.2);
    EXPECT_NEAR(second.distanceChange, -0.0200, 0.0003);
}

TEST(Adjustment, CurveKeepsItsRadiusAndItsSegmentCountsOnItsSide)
{
    // A 100 x 100 square walked clockwise whose north side is a curve of radius
    // 100 over its 100 chord: the segment R^2/2 (pi/3 - sin pi/3) = 905.86 lies
    // outside for "R" (area 10,905.86) and inside for "L" (9,094.14). The figure
    // closes, so the adjustment leaves it alone and the arc is 104.72.
    for (const char *side : {"R", "L"}) {
        SCOPED_TRACE(side);
        const LotReport lot = analyseClosure(makeTable({{"N", "0", "0", "0", "E", "100", "", "", "", ""},
            {"N", "90", "0", "0", "E", "", "100", "100", side, ""}, {"S", "0", "0", "0", "E", "100", "", "", "", ""},
            {"N", "90", "0", "0", "W", "100", "", "", "", ""}})).lots.at(0);
        EXPECT_LT(lot.gap.distance, 1e-4);
        EXPECT_NEAR(lot.perimeter, 300.0 + 104.72, 0.01);
        EXPECT_NEAR(lot.compass.area, side[0] == 'R' ? 10905.86 : 9094.14, 0.05);
        const AdjustedCall &curve = lot.compass.calls.at(1);
        EXPECT_TRUE(curve.curve);
        ASSERT_TRUE(curve.arc.has_value());
        EXPECT_NEAR(*curve.arc, 104.72, 0.01);
    }
}

TEST(Adjustment, LotsAreCutAtNewLotRowsAndCloseWhereBeginPutThePen)
{
    // A tie course east 50, then "B"; a 10 x 10 square with its last side 1 short;
    // "N"; a 20 x 20 square from the origin without a "B" of its own, which the
    // plotter closes on the first lot's point of beginning, 50 east.
    const ClosureReport report = analyseClosure(makeTable(
        {{"N", "90", "0", "0", "E", "50", "", "", "", "B"}, {"N", "0", "0", "0", "E", "10", "", "", "", ""},
         {"N", "90", "0", "0", "E", "10", "", "", "", ""}, {"S", "0", "0", "0", "E", "10", "", "", "", ""},
         {"N", "90", "0", "0", "W", "9", "", "", "", "N"}, {"N", "0", "0", "0", "E", "20", "", "", "", ""},
         {"N", "90", "0", "0", "E", "20", "", "", "", ""}, {"S", "0", "0", "0", "E", "20", "", "", "", ""},
         {"N", "90", "0", "0", "W", "20", "", "", "", ""}}));
    ASSERT_EQ(report.lots.size(), 2u);
    EXPECT_EQ(std::pair(report.lots[0].firstRow, report.lots[0].lastRow), std::pair(0, 4));
    EXPECT_NEAR(report.lots[0].pobEast, 50.0, 1e-6);
    EXPECT_NEAR(report.lots[0].gap.east, 1.0, 1e-5);
    EXPECT_EQ(report.lots[0].gap.bearing, "N 90\u00b000'00\" W");
    // The compass rule moves each call west by length / 39: corners (10, -0.2564),
    // (10, 9.4872), (0, 9.2308); area 94.872.
    EXPECT_NEAR(report.lots[0].compass.area, 94.872, 0.001);
    const LotReport &second = report.lots[1];
    EXPECT_EQ(std::pair(second.firstRow, second.pobRow), std::pair(5, 0));
    EXPECT_NEAR(second.pobEast, 50.0, 1e-6);
    EXPECT_NEAR(second.gap.east, -50.0, 1e-5);
    EXPECT_NEAR(second.compass.calls.back().east, 50.0, 1e-9) << "the adjusted figure ends on the point of beginning";
}

TEST(BlunderSearch, FindsThePlantedMistakeInItsTopThree) { expectPlantedMistakesFound(false, 20261122, 450); }

TEST(BlunderSearch, FindsThePlantedMistakeAmongCurvesAndTurnedCourses) { expectPlantedMistakesFound(true, 7, 300); }

TEST(BlunderSearch, BestSuggestionPutsBackTheCallAndCloses)
{
    // East typed as west on row 1, and row 2 turns 90 degrees right from it (so runs north, not south):
    // only flipping row 1, which turns row 2 back with it, closes the square. Then a square missing its
    // west side, which nothing closes as well as the reversed gap inserted as row 4.
    const struct { std::vector<test::Row> rows; BlunderKind kind; int row; Cells cells; } cases[] = {
        {{{"N", "0", "0", "0", "E", "100", "", "", "", ""}, {"N", "90", "0", "0", "W", "100", "", "", "", ""},
          {"+", "90", "0", "0", "", "100", "", "", "", ""}, {"N", "90", "0", "0", "W", "100", "", "", "", ""}},
         BlunderKind::EwFlip, 1, {"N", "90", "0", "0", "E", "100", "", "", "", ""}},
        {{{"", "", "", "", "", "", "", "", "", "B"}, {"N", "0", "0", "0", "E", "250", "", "", "", ""},
          {"N", "90", "0", "0", "E", "250", "", "", "", ""}, {"S", "0", "0", "0", "E", "250", "", "", "", ""}},
         BlunderKind::Omitted, 4, {"N", "90", "0", "0", "W", "250", "", "", "", ""}}};
    for (const auto &c : cases) {
        CourseTable table = makeTable(c.rows);
        const LotReport lot = analyseClosure(table).lots.at(0);
        ASSERT_FALSE(lot.suggestions.empty());
        const Suggestion &best = lot.suggestions[0];
        EXPECT_EQ(std::tuple(best.kind, best.row, best.cells), std::tuple(c.kind, c.row, c.cells));
        EXPECT_LT(best.gap.distance, 1e-3);
        applySuggestion(table, best);
        EXPECT_LT(analyseClosure(table).lots.at(0).gap.distance, 1e-3);
    }
}

TEST(Misreadings, DistanceDigitsPointAndChains)
{
    const auto all = misreadings(row({"N", "12", "45", "0", "E", "1034.20"}), {}, {true, 2, 66.0});
    EXPECT_TRUE(has(all, BlunderKind::Transpose, ColDistance, "1304.20"));
    EXPECT_TRUE(has(all, BlunderKind::Transpose, ColDistance, "1034.02"));
    EXPECT_FALSE(has(all, BlunderKind::Transpose, ColDistance, "0134.20")) << "no leading zero";
    EXPECT_TRUE(has(all, BlunderKind::DropDigit, ColDistance, "10374.20"));
    EXPECT_FALSE(has(all, BlunderKind::DropDigit, ColDistance, "1034.205")) << "no third decimal";
    EXPECT_FALSE(has(all, BlunderKind::DropDigit, ColDistance, "01034.20")) << "same number";
    EXPECT_EQ(count(all, BlunderKind::DoubleDigit), 0);
    EXPECT_TRUE(has(all, BlunderKind::TimesTen, ColDistance, "103.420"));
    EXPECT_TRUE(has(all, BlunderKind::TimesTen, ColDistance, "10342.0"));
    EXPECT_TRUE(has(all, BlunderKind::ChainsFeet, ColDistance, "68257.2"));
    EXPECT_TRUE(has(all, BlunderKind::NsFlip, ColNS, "S"));
    EXPECT_TRUE(has(all, BlunderKind::EwFlip, ColEW, "W"));
    ASSERT_EQ(count(all, BlunderKind::DegMinSwap), 1);
    const Misreading &swap = *std::find_if(all.begin(), all.end(),
                                           [](const Misreading &m) { return m.kind == BlunderKind::DegMinSwap; });
    EXPECT_EQ(std::tuple(swap.first.text, swap.second->column, swap.second->text), std::tuple("45", ColMin, "12"));
}

TEST(Misreadings, WholeFeetCardinalRowsAndCurvesByChord)
{
    // Whole feet: a doubled digit comes out, the point never moves into decimals.
    auto all = misreadings(row({"E", "", "", "", "", "1224"}), {}, {true, 0, 66.0});
    EXPECT_TRUE(has(all, BlunderKind::DoubleDigit, ColDistance, "124"));
    EXPECT_TRUE(has(all, BlunderKind::TimesTen, ColDistance, "12240"));
    EXPECT_FALSE(has(all, BlunderKind::TimesTen, ColDistance, "122.4"));
    EXPECT_TRUE(has(all, BlunderKind::EwFlip, ColNS, "W")) << "a due-east row turns west in its N/S cell";
    EXPECT_EQ(count(all, BlunderKind::NsFlip) + count(all, BlunderKind::DegMinSwap), 0);

    // Degrees of 60 and more cannot have been minutes.
    all = misreadings(row({"S", "75", "10", "0", "W", "100"}), {}, {false, 2, 66.0});
    EXPECT_EQ(count(all, BlunderKind::DegMinSwap), 0);
    EXPECT_EQ(count(all, BlunderKind::DropDigit), 0) << "lengths left out";

    // A curve given by its chord is read again in its chord.
    CourseReading curve;
    curve.radius = 400.0;
    all = misreadings(row({"N", "10", "0", "0", "E", "", "251.30", "400", "R"}), curve, {true, 2, 66.0});
    EXPECT_TRUE(has(all, BlunderKind::Transpose, ColChord, "215.30"));
}
