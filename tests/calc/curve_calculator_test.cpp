#include "curve_calculator.h"
#include "reciprocal_angle.h"

#include <gtest/gtest.h>

using namespace quilmar;

using CC = CurveCalculator;

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
        {CC::Tangent, "100 100", "Angle (difference) = 29\u00B0 59' 60.00''", nullptr}};
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
        {"45 10 20", "Reciprocal of 45 10 20 = 44  49  40"},
        {"90 0 0", "Reciprocal of 90 0 0 = 0  0  0"},
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
