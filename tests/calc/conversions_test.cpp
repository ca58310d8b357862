// The Conversions menu: the unit converters and field shortcuts, the global
// conversion of the table, the curve calculator and the reciprocal angle.

#include <stdexcept>
#include <tuple>

#include <gtest/gtest.h>

#include "curve_calculator.h"
#include "global_conversion.h"
#include "reciprocal_angle.h"
#include "shortcut_conversion.h"
#include "table_builder.h"
#include "unit_converter.h"
#include "vb_math.h"

using namespace quilmar;

using CC = CurveCalculator;
using UC = UnitConverter;

TEST(UnitConverter, ConvertsAndReportsAsTyped)
{
    // The result as "##0.0###": the exact text holds to 0.00005.
    const struct { UnitConverter converter; const char *answer, *result, *acresbox; } cases[] = {
        {UC::Chains, "10.05", "663.3", "10.05 Chains = 663.3 feet"},     // 10.05 x 66
        {UC::Links, "1", "0.66", "1 Links = 0.66 feet"},                 // 66 / 100
        {UC::Rods, " 12 ", "198.0", " 12  Rods = 198.0 feet"},           // 12 x 16.5; answer as typed
        {UC::Perches, "1", "16.5", "1 Perches = 16.5 feet"}, {UC::Furlongs, "1", "660.0", "1 Furlongs = 660.0 feet"},
        {UC::Varas, "3.5", "9.7222", "3.5 Varas = 9.7222 feet"},         // 3.5 / 0.36 = 9.72222...
        {UC::Yards, "1", "3.0", "1 Yards = 3.0 Feet"}, {UC::FeetToMeters, "3.281", "1.0", "3.281 Feet = 1.0 Meters"},
        {UC::FeetToMeters, "1000", "304.7851", "1000 Feet = 304.7851 Meters"}, // 304.78512...
        {UC::MetersToFeet, "-2", "-6.562", "-2 Meters = -6.562 Feet"}};
    for (const auto &c : cases) {
        const CalcResult r = runConverter(c.converter, c.answer);
        EXPECT_EQ(std::tuple(r.clipboard, r.acresbox), std::tuple(c.result, c.acresbox));
        EXPECT_TRUE(r.messages.empty() && !r.field) << c.answer;
    }
    // Bad answers change nothing.
    for (const char *answer : {"", "   ", "abc", "12abc", "1,5", "1e400"})
        EXPECT_TRUE(runConverter(UC::Chains, answer).isEmpty()) << '"' << answer << '"';
}

TEST(ShortcutConversion, ConvertsTheFieldOnly)
{
    // 2 x 16.5; 10000 x 2.7777778 = 27777.778 (dividing by 0.36 would give 27777.7778)
    const struct { ShortcutConversion s; const char *in, *out; } cases[] = {
        {ShortcutConversion::PerchesRods, "2", "33.0"},
        {ShortcutConversion::Varas, "1", "2.7778"}, {ShortcutConversion::Varas, "10000", "27777.778"}};
    for (const auto &c : cases) {
        const CalcResult r = runShortcut(c.s, c.in);
        EXPECT_EQ(r.field, c.out);
        EXPECT_FALSE(r.acresbox || r.clipboard || !r.messages.empty());
    }
    for (const char *text : {"", "N", "12abc", " "})
        EXPECT_TRUE(runShortcut(ShortcutConversion::ChainsLinks, text).isEmpty()) << '"' << text << '"';
}

// Converted values are hundredths: each is checked to 1e-9.
TEST(GlobalConversion, RoundsToHundredthsHalfToEven)
{
    const struct { int index; const char *text; double expected; } cases[] = {
        {0, "100", 328.1}, {1, "250.05", 16503.3}, {2, "2", 33.0}, {3, "0.5", 330.0}, {4, "1", 2.78}, // 2.7777778
        {5, "0.333", 1.0},   // 0.999 to hundredths
        {1, "0.0625", 4.12}, // 412.5 hundredths: tie to even 412
        {5, "0.125", 0.38},  // 37.5 hundredths: tie to even 38
        {5, " 12 ", 36.0},   // blanks around a number are fine
        {-1, "328.1", 100.0}};
    for (const auto &c : cases) {
        const GlobalConversion g = c.index < 0 ? GlobalConversion::feetToMeters() : GlobalConversion::toFeet(c.index);
        CourseTable table;
        table.at(3, ColChord) = Cell(c.text);
        g.apply(table);
        ASSERT_TRUE(table.at(3, ColChord).isNumber()) << c.text;
        EXPECT_NEAR(table.at(3, ColChord).number(), c.expected, 1e-9) << c.text;
    }
}

// The data sit in row 0 only, which is converted too.
TEST(GlobalConversion, ConvertingTwiceMultipliesTwiceAndSetsTheUnits)
{
    CourseTable table = test::makeTable({{"", "", "", "", "", "100", "", "", "", ""}});
    const GlobalConversion meters = GlobalConversion::toFeet(0);
    EXPECT_EQ(meters.apply(table), Units::Feet);
    EXPECT_NEAR(table.at(0, ColDistance).number(), 328.1, 1e-9);
    meters.apply(table);
    EXPECT_NEAR(table.at(0, ColDistance).number(), 1076.5, 1e-9); // 328.1 x 3.281 = 1076.4961
    EXPECT_EQ(GlobalConversion::feetToMeters().apply(table), Units::Meters);
    EXPECT_THROW(GlobalConversion::toFeet(6), std::out_of_range);
}

TEST(GlobalConversion, TouchesOnlyLengthColumnsOfRowsUpToHighestPlusOne)
{
    CourseTable table;
    table.highest = 10;
    for (int row : {0, 11, 12}) {
        table.at(row, ColDistance) = Cell("1");
        table.at(row, ColRadius) = Cell("2");
    }
    table.at(0, ColDeg) = Cell("45");
    GlobalConversion::toFeet(5).apply(table);
    EXPECT_NEAR(table.at(0, ColDistance).number(), 3.0, 1e-9);
    EXPECT_NEAR(table.at(11, ColRadius).number(), 6.0, 1e-9);
    EXPECT_EQ(table.at(12, ColDistance), Cell("1")); // past highest + 1
    EXPECT_EQ(table.at(0, ColDeg), Cell("45"));
    EXPECT_TRUE(table.at(0, ColChord).isEmpty());

    CourseTable full; // highest 202: the walk stops at row 201
    full.at(201, ColDistance) = Cell("1");
    full.gethighest();
    EXPECT_NO_THROW(GlobalConversion::toFeet(1).apply(full));
    EXPECT_NEAR(full.at(201, ColDistance).number(), 66.0, 1e-9);
}

TEST(GlobalConversion, TypeMismatchStopsWhereItIs)
{
    CourseTable table = test::makeTable({{"", "", "", "", "", "100", "", "", "", ""},
                                         {"", "", "", "", "", "50", "12abc", "10", "", ""}});
    try {
        GlobalConversion::toFeet(0).apply(table);
        ADD_FAILURE() << "no type mismatch";
    } catch (const VbError &e) {
        EXPECT_EQ(e.number(), 13);
    }
    EXPECT_NEAR(table.at(1, ColDistance).number(), 164.05, 1e-9); // before the bad cell: converted
    EXPECT_EQ(table.at(1, ColChord), Cell("12abc"));
    EXPECT_EQ(table.at(1, ColRadius), Cell("10"));                // after it: untouched
}

TEST(CurveCalculator, ComputesTheResultLine)
{
    // Lengths print 4 decimals: each golden text holds to 0.00005; seconds to the last decimal shown.
    // The clipboard: nullptr where it is not touched.
    const struct { CurveCalculator calculator; const char *answer, *acresbox, *clipboard; } cases[] = {
        // half circle: 50 x 3.14159265 = 157.0796325
        {CC::Arc, "100 50", "Arc Length  = 157.0796", "157.0796"},
        // 2R asin(c / 2R) = 501 asin(75.175 / 250.5) = 152.70343
        {CC::Arc, "  150.35 250.50 ", "Arc Length  = 152.7034", "152.7034"},
        // single(314.159265) = 314.1592712 = single(100 x pi): half-circle branch, s / pi = 100.0000019
        {CC::Chord, "314.159265 100", "Chord  = 100.0", "100.0"},
        // a little short of the half circle: 200 sin(314 / 200) = 199.99994
        {CC::Chord, "314 100", "Chord  = 199.9999", "199.9999"},
        // 50 x 360 / (2 pi 26.96) = 106.26073 deg; 0.26073 x 3600 = 938.617" = 15' 38.617"
        {CC::Angle, "50  26.96", "Angle = 106\u00B0 15' 38.617''", nullptr},
        // one radian held in single precision is 57.29578018 deg: 17' 44.809" (a double gives 44.806)
        {CC::Angle, "100 100", "Angle = 57\u00B0 17' 44.809''", nullptr},
        // asin(25 / 75.5) = 19.337123 deg = 19 deg 20' 13.64"
        {CC::Tangent, "50  75.50", "Angle (difference) = 19\u00B0 20' 13.64''", nullptr},
        // asin(1/2) is 30 deg, but the short pi leaves 29.99999993: 59' 60.00", kept as it falls
        {CC::Tangent, "100 100", "Angle (difference) = 29\u00B0 59' 60.00''", nullptr},
        // the short pi leaves x = -6.2e-9 for a tiny chord: its whole part is 0, not -1 (59' 60.00")
        {CC::Tangent, "1 1e12", "Angle (difference) = 0\u00B0 0' 0.00''", nullptr}};
    for (const auto &c : cases) {
        const CalcResult r = runCurveCalculator(c.calculator, c.answer);
        EXPECT_EQ(r.acresbox, c.acresbox);
        EXPECT_EQ(r.clipboard, c.clipboard ? std::optional<std::string>(c.clipboard) : std::nullopt);
        EXPECT_TRUE(r.messages.empty()) << c.answer;
    }
}

TEST(CurveCalculator, BadAnswersChangeNothing)
{
    const struct { CurveCalculator c; const char *answer, *message; } cases[] = {
        {CC::Arc, "100 49", "Chord cannot be longer than 2 x radius"},
        {CC::Chord, "315 100", "Arc length cannot be longer than radius x pi"},
        {CC::Arc, "150.35", "Invlid entry)"}, {CC::Chord, "abc def", "Invlid entry)"},
        {CC::Angle, "50", "Invalid entry"}, {CC::Tangent, "12abc 5", "Invalid entry"},
        {CC::Angle, "50 26 9", "Invalid entry"}};
    for (const auto &c : cases) {
        const CalcResult r = runCurveCalculator(c.c, c.answer);
        EXPECT_EQ(r.messages, std::vector<std::string>{c.message}) << c.answer;
        EXPECT_FALSE(r.acresbox || r.clipboard) << c.answer;
    }
    // Empty answers and faults change nothing and say nothing.
    for (CurveCalculator c : {CC::Arc, CC::Chord, CC::Angle, CC::Tangent})
        for (const char *answer : {"", "   ", "1e39 5"}) // the last is beyond single range
            EXPECT_TRUE(runCurveCalculator(c, answer).isEmpty()) << answer;
    EXPECT_TRUE(runCurveCalculator(CC::Tangent, "0 10").isEmpty());   // d / h with h = 0
    EXPECT_TRUE(runCurveCalculator(CC::Tangent, "200 50").isEmpty()); // chord beyond the diameter
    EXPECT_TRUE(runCurveCalculator(CC::Angle, "10 0").isEmpty());     // zero circumference
}

TEST(ReciprocalAngle, ComplementsToNinetyDegrees)
{
    const struct { const char *answer, *acresbox; } cases[] = {
        // 324000 - 162620 = 161380" = 44 x 3600 + 49 x 60 + 40
        {"45 10 20", "Reciprocal of 45 10 20 = 44  49  40"}, {"90 0 0", "Reciprocal of 90 0 0 = 0  0  0"},
        // 324000 - 219660 = 104340" = 28 x 3600 + 59 x 60 + 0
        {"60 60 60", "Reciprocal of 60 60 60 = 28  59  0"},
        // 161379.5" rounds to even 161380 -> 44; 2979.5 rounds to 2980 -> 49; 39.5" left
        {"45 10 20.5", "Reciprocal of 45 10 20.5 = 44  49  39.5"},
        // missing parts are 0: 162000" leaves 45 0 0; 162600" leaves 161400 = 44 50 0
        {"45", "Reciprocal of 45 = 45  0  0"}, {"45 10", "Reciprocal of 45 10 = 44  50  0"},
        // the double blank leaves the minutes empty: 45 0 10 -> 161990" = 44 59 50
        {"45  10  20", "Reciprocal of 45  10  20 = 44  59  50"},
        {" 45 10 20", "Reciprocal of  45 10 20 = 44  49  40"}, {"abc", "Reciprocal of abc = 90  0  0"}};
    for (const auto &c : cases) {
        const CalcResult r = reciprocalAngle(c.answer);
        EXPECT_EQ(r.acresbox, c.acresbox);
        EXPECT_FALSE(r.clipboard || !r.messages.empty()) << c.answer;
    }
    for (const char *answer : {"91 0 0", "45 61 0", "45 0 61", "90.5 0 0"}) {
        const CalcResult r = reciprocalAngle(answer);
        EXPECT_EQ(r.messages, std::vector<std::string>{"Incorrect Input"}) << answer;
        EXPECT_FALSE(r.acresbox);
    }
    for (const char *answer : {"", "  ", "-1e9 0 0"}) // the last is beyond the 32-bit seconds range
        EXPECT_TRUE(reciprocalAngle(answer).isEmpty()) << answer;
}
