#include <gtest/gtest.h>

#include "closure_report.h"
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
    return makeTable({{"", "", "", "", "", "", "", "", "", "B"},
                      {"N", "0", "0", "0", "E", "500.00", "", "", "", ""},
                      {"N", "90", "0", "0", "E", "400.00", "", "", "", ""},
                      {"S", "36", "52", "12", "E", "250.00", "", "", "", ""},
                      {"S", "0", "0", "0", "W", "300.10", "", "", "", ""},
                      {"N", "90", "0", "0", "W", "549.90", "", "", "", ""}});
}

struct Corner { double north, east; };

} // namespace

TEST(Adjustment, FiveSidedTraverseByHand)
{
    const ClosureReport report = analyseClosure(fiveSided());
    ASSERT_EQ(report.lots.size(), 1u);
    const LotReport &lot = report.lots[0];
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
    ASSERT_EQ(lot.compass.calls.size(), 5u);
    ASSERT_EQ(lot.transit.calls.size(), 5u);
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
                                                        {"N", "90", "0", "0", "E", "", "100", "100", side, ""},
                                                        {"S", "0", "0", "0", "E", "100", "", "", "", ""},
                                                        {"N", "90", "0", "0", "W", "100", "", "", "", ""}}))
                                  .lots.at(0);
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
    const ClosureReport report = analyseClosure(makeTable({{"N", "90", "0", "0", "E", "50", "", "", "", "B"},
                                                           {"N", "0", "0", "0", "E", "10", "", "", "", ""},
                                                           {"N", "90", "0", "0", "E", "10", "", "", "", ""},
                                                           {"S", "0", "0", "0", "E", "10", "", "", "", ""},
                                                           {"N", "90", "0", "0", "W", "9", "", "", "", "N"},
                                                           {"N", "0", "0", "0", "E", "20", "", "", "", ""},
                                                           {"N", "90", "0", "0", "E", "20", "", "", "", ""},
                                                           {"S", "0", "0", "0", "E", "20", "", "", "", ""},
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
