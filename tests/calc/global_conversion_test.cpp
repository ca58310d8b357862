#include "global_conversion.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "vb_math.h"

using namespace quilmar;

// Converted values are hundredths: each is checked to 1e-9.
TEST(GlobalConversion, RoundsToHundredthsHalfToEven)
{
    const struct { int index; const char *text; double expected; } cases[] = {
        {0, "100", 328.1}, {1, "250.05", 16503.3}, {2, "2", 33.0}, {3, "0.5", 330.0},
        {4, "1", 2.78},      // 2.7777778
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
    CourseTable table;
    table.at(0, ColDistance) = Cell("100");
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
    CourseTable table;
    table.at(0, ColDistance) = Cell("100");
    table.at(1, ColDistance) = Cell("50");
    table.at(1, ColChord) = Cell("12abc");
    table.at(1, ColRadius) = Cell("10");
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
