#include "curve_calculator.h"
#include "reciprocal_angle.h"

#include <gtest/gtest.h>

namespace quilmar {
namespace {

using CC = CurveCalculator;

struct CurveCase {
    CurveCalculator calculator;
    const char *answer;
    const char *acresbox;
    const char *clipboard; // nullptr: the clipboard is not touched
};

class CurveCalculatorTest : public ::testing::TestWithParam<CurveCase> {};

TEST_P(CurveCalculatorTest, ComputesTheResultLine)
{
    const CurveCase &c = GetParam();
    const CalcResult r = runCurveCalculator(c.calculator, c.answer);
    EXPECT_EQ(r.acresbox, c.acresbox);
    if (c.clipboard)
        EXPECT_EQ(r.clipboard, c.clipboard);
    else
        EXPECT_FALSE(r.clipboard);
    EXPECT_TRUE(r.messages.empty());
}

// Lengths print with 4 decimals, so each golden text holds to 0.00005.
INSTANTIATE_TEST_SUITE_P(Results, CurveCalculatorTest, ::testing::Values(
    // half circle: 50 x 3.14159265 = 157.0796325
    CurveCase{CC::Arc, "100 50", "Arc Length  = 157.0796", "157.0796"},
    // 2R asin(c / 2R) = 120 asin(5/6) = 120 x 0.9851107 = 118.2133
    CurveCase{CC::Arc, "100 60", "Arc Length  = 118.2133", "118.2133"},
    // 501 asin(75.175 / 250.5) = 152.70343 (single rounding leaves 152.70344)
    CurveCase{CC::Arc, "  150.35 250.50 ", "Arc Length  = 152.7034", "152.7034"},
    // single 314.159265 = 314.1592712 equals single(100 x pi): half-circle branch, s / pi = 100.0000019
    CurveCase{CC::Chord, "314.159265 100", "Chord  = 100.0", "100.0"},
    // a little short of the half circle: 200 sin(314 / 200) = 199.99994
    CurveCase{CC::Chord, "314 100", "Chord  = 199.9999", "199.9999"},
    // one radian: 200 sin(0.5) = 95.885108
    CurveCase{CC::Chord, "100 100", "Chord  = 95.8851", "95.8851"},
    // 50 x 360 / (2 pi 26.96) = 106.26073 deg; 0.26073 x 3600 = 938.617" = 15' 38.617"
    CurveCase{CC::Angle, "50  26.96", "Angle = 106\u00B0 15' 38.617''", nullptr},
    // one radian in single precision is 57.29578018 deg: 17' 44.809" (a double would give 44.806)
    CurveCase{CC::Angle, "100 100", "Angle = 57\u00B0 17' 44.809''", nullptr},
    // asin(25 / 75.5) = 19.337123 deg = 19 deg 20' 13.64"
    CurveCase{CC::Tangent, "50  75.50", "Angle (difference) = 19\u00B0 20' 13.64''", nullptr},
    // asin(1/2) is 30 deg, but the short pi leaves 29.99999993: deliberate 59' 60.00"
    CurveCase{CC::Tangent, "100 100", "Angle (difference) = 29\u00B0 59' 60.00''", nullptr}));

struct MessageCase {
    CurveCalculator calculator;
    const char *answer;
    const char *message;
};

class CurveMessageTest : public ::testing::TestWithParam<MessageCase> {};

TEST_P(CurveMessageTest, ShowsTheMessageAndChangesNothing)
{
    const CalcResult r = runCurveCalculator(GetParam().calculator, GetParam().answer);
    ASSERT_EQ(r.messages.size(), 1u);
    EXPECT_EQ(r.messages[0], GetParam().message);
    EXPECT_FALSE(r.acresbox);
    EXPECT_FALSE(r.clipboard);
}

INSTANTIATE_TEST_SUITE_P(Messages, CurveMessageTest, ::testing::Values(
    MessageCase{CC::Arc, "100 49", "Chord cannot be longer than 2 x radius"},
    MessageCase{CC::Chord, "315 100", "Arc length cannot be longer than radius x pi"},
    MessageCase{CC::Arc, "150.35", "Invlid entry)"},
    MessageCase{CC::Chord, "abc def", "Invlid entry)"},
    MessageCase{CC::Angle, "50", "Invalid entry"},
    MessageCase{CC::Tangent, "12abc 5", "Invalid entry"},
    MessageCase{CC::Angle, "50 26 9", "Invalid entry"}));

TEST(CurveCalculator, EmptyAnswersAndFaultsChangeNothing)
{
    for (CurveCalculator c : {CC::Arc, CC::Chord, CC::Angle, CC::Tangent}) {
        EXPECT_TRUE(runCurveCalculator(c, "").isEmpty());
        EXPECT_TRUE(runCurveCalculator(c, "   ").isEmpty());
        EXPECT_TRUE(runCurveCalculator(c, "1e39 5").isEmpty()); // beyond single range
    }
    EXPECT_TRUE(runCurveCalculator(CC::Tangent, "0 10").isEmpty());   // d / h with h = 0
    EXPECT_TRUE(runCurveCalculator(CC::Tangent, "200 50").isEmpty()); // chord beyond the diameter
    EXPECT_TRUE(runCurveCalculator(CC::Angle, "10 0").isEmpty());     // zero circumference
}

TEST(CurveCalculator, TitlesAndPrompts)
{
    EXPECT_EQ(calculatorTitle(CC::Arc), "Give me Arc");
    EXPECT_EQ(calculatorTitle(CC::Chord), "Give me Chord");
    EXPECT_EQ(calculatorTitle(CC::Tangent), "Conversion");
    EXPECT_EQ(calculatorPrompt(CC::Angle),
              "Enter arc length and radius (separated by a space).\r\nFor Example 50  26.96");
    EXPECT_EQ(calculatorPrompt(CC::Tangent),
              "Enter chord length and radius (separated by a space). \r\nFor Example 50  75.50\r\n"
              "The result will be the difference between the chord angle and the tangent angle. ");
}

struct ReciprocalCase {
    const char *answer;
    const char *acresbox;
};

class ReciprocalTest : public ::testing::TestWithParam<ReciprocalCase> {};

TEST_P(ReciprocalTest, ComplementsToNinetyDegrees)
{
    const CalcResult r = reciprocalAngle(GetParam().answer);
    EXPECT_EQ(r.acresbox, GetParam().acresbox);
    EXPECT_FALSE(r.clipboard);
    EXPECT_TRUE(r.messages.empty());
}

INSTANTIATE_TEST_SUITE_P(Angles, ReciprocalTest, ::testing::Values(
    // 324000 - 162620 = 161380" = 44 x 3600 + 49 x 60 + 40
    ReciprocalCase{"45 10 20", "Reciprocal of 45 10 20 = 44  49  40"},
    ReciprocalCase{"90 0 0", "Reciprocal of 90 0 0 = 0  0  0"},
    ReciprocalCase{"0 0 0", "Reciprocal of 0 0 0 = 90  0  0"},
    // 324000 - 219660 = 104340" = 28 x 3600 + 59 x 60 + 0
    ReciprocalCase{"60 60 60", "Reciprocal of 60 60 60 = 28  59  0"},
    // 161379.5" rounds to even 161380 -> 44; 2979.5 rounds to 2980 -> 49; 39.5" left
    ReciprocalCase{"45 10 20.5", "Reciprocal of 45 10 20.5 = 44  49  39.5"},
    // missing parts are 0: 324000 - 162000 = 45 deg; 324000 - 162600 = 161400 = 44 50 0
    ReciprocalCase{"45", "Reciprocal of 45 = 45  0  0"},
    ReciprocalCase{"45 10", "Reciprocal of 45 10 = 44  50  0"},
    // the double blank leaves the minutes empty: 45 0 10 -> 161990 = 44 59 50
    ReciprocalCase{"45  10  20", "Reciprocal of 45  10  20 = 44  59  50"},
    ReciprocalCase{" 45 10 20", "Reciprocal of  45 10 20 = 44  49  40"},
    ReciprocalCase{"abc", "Reciprocal of abc = 90  0  0"}));

TEST(ReciprocalAngle, OutOfRangeAndEmpty)
{
    for (const char *answer : {"91 0 0", "45 61 0", "45 0 61", "90.5 0 0"}) {
        const CalcResult r = reciprocalAngle(answer);
        ASSERT_EQ(r.messages.size(), 1u) << answer;
        EXPECT_EQ(r.messages[0], "Incorrect Input");
        EXPECT_FALSE(r.acresbox);
    }
    EXPECT_TRUE(reciprocalAngle("").isEmpty());
    EXPECT_TRUE(reciprocalAngle("  ").isEmpty());
    EXPECT_TRUE(reciprocalAngle("-1e9 0 0").isEmpty()); // beyond the 32-bit seconds range
    EXPECT_EQ(reciprocalTitle(), "Reciprocal Angle");
}

} // namespace
} // namespace quilmar
