#include "global_conversion.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "vb_math.h"

namespace quilmar {
namespace {

struct GlobalCase {
    int index;        // -1: feet to metres
    const char *text;
    double expected;  // hundredths; tolerance 1e-9
};

class GlobalConversionTest : public ::testing::TestWithParam<GlobalCase> {};

TEST_P(GlobalConversionTest, RoundsToHundredths)
{
    const GlobalCase &c = GetParam();
    const GlobalConversion g = c.index < 0 ? GlobalConversion::feetToMeters() : GlobalConversion::toFeet(c.index);
    CourseTable table;
    table.at(3, ColChord) = Cell(c.text);
    g.apply(table);
    ASSERT_TRUE(table.at(3, ColChord).isNumber());
    EXPECT_NEAR(table.at(3, ColChord).number(), c.expected, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(Units, GlobalConversionTest, ::testing::Values(
    GlobalCase{0, "100", 328.1},       // 100 x 3.281
    GlobalCase{1, "250.05", 16503.3},  // 250.05 x 66
    GlobalCase{1, "0.0625", 4.12},     // 412.5 hundredths: tie goes to even 412
    GlobalCase{2, "2", 33.0},          // 2 x 16.5
    GlobalCase{3, "0.5", 330.0},
    GlobalCase{4, "1", 2.78},          // 2.7777778
    GlobalCase{5, "0.333", 1.0},       // 0.999 to hundredths
    GlobalCase{5, "0.125", 0.38},      // 37.5 hundredths: tie goes to even 38
    GlobalCase{5, " 12 ", 36.0},       // blanks around a number are fine
    GlobalCase{-1, "328.1", 100.0}));  // 328.1 / 3.281

// The data sit in row 0 only, which is converted too.
TEST(GlobalConversion, ConvertingTwiceMultipliesTwice)
{
    CourseTable table;
    table.at(0, ColDistance) = Cell("100");
    const GlobalConversion meters = GlobalConversion::toFeet(0);
    EXPECT_EQ(meters.apply(table), GlobalConversion::kFeet);
    EXPECT_NEAR(table.at(0, ColDistance).number(), 328.1, 1e-9);
    meters.apply(table);
    // 328.1 x 3.281 = 1076.4961 -> 1076.50
    EXPECT_NEAR(table.at(0, ColDistance).number(), 1076.5, 1e-9);
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
    table.at(0, ColTag) = Cell("7");
    GlobalConversion::toFeet(5).apply(table);
    EXPECT_NEAR(table.at(0, ColDistance).number(), 3.0, 1e-9);
    EXPECT_NEAR(table.at(11, ColRadius).number(), 6.0, 1e-9);
    EXPECT_EQ(table.at(12, ColDistance), Cell("1")); // past highest + 1
    EXPECT_EQ(table.at(0, ColDeg), Cell("45"));
    EXPECT_EQ(table.at(0, ColTag), Cell("7"));
    EXPECT_TRUE(table.at(0, ColChord).isEmpty());
}

TEST(GlobalConversion, HighestAtTheEndStopsAtRow201)
{
    CourseTable table;
    table.at(201, ColDistance) = Cell("1");
    table.gethighest();
    ASSERT_EQ(table.highest, 202);
    EXPECT_NO_THROW(GlobalConversion::toFeet(1).apply(table));
    EXPECT_NEAR(table.at(201, ColDistance).number(), 66.0, 1e-9);
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
        FAIL() << "no type mismatch";
    } catch (const VbError &e) {
        EXPECT_EQ(e.number(), 13);
        EXPECT_EQ(e.description(), "Type mismatch");
    }
    EXPECT_NEAR(table.at(0, ColDistance).number(), 328.1, 1e-9);
    EXPECT_NEAR(table.at(1, ColDistance).number(), 164.05, 1e-9);
    EXPECT_EQ(table.at(1, ColChord), Cell("12abc"));
    EXPECT_EQ(table.at(1, ColRadius), Cell("10")); // after the bad cell: untouched
}

TEST(GlobalConversion, Questions)
{
    EXPECT_EQ(GlobalConversion::toFeet(0).question(),
              "This function will convert the entire table from Meters to Feet.  OK to proceed?");
    EXPECT_EQ(GlobalConversion::toFeet(1).question(),
              "This function will convert the entire table from Chains/Links (e.g. 250 Chains, 5 Links = 250.05) "
              "to Feet.  OK to proceed?");
    EXPECT_EQ(GlobalConversion::feetToMeters().question(),
              "This function will convert the entire table from Feet to Meters.  OK to proceed?");
    CourseTable empty;
    EXPECT_EQ(GlobalConversion::feetToMeters().apply(empty), GlobalConversion::kMeters);
    EXPECT_THROW(GlobalConversion::toFeet(6), std::out_of_range);
}

} // namespace
} // namespace quilmar
