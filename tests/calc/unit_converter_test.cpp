#include "shortcut_conversion.h"
#include "unit_converter.h"

#include <gtest/gtest.h>

using namespace quilmar;

using UC = UnitConverter;

TEST(UnitConverter, ConvertsAndReportsAsTyped)
{
    // The result as "##0.0###": the exact text holds to 0.00005.
    const struct { UnitConverter converter; const char *answer, *result, *acresbox; } cases[] = {
        {UC::Chains, "10.05", "663.3", "10.05 Chains = 663.3 feet"},     // 10.05 x 66
        {UC::Links, "1", "0.66", "1 Links = 0.66 feet"},                 // 66 / 100
        {UC::Rods, " 12 ", "198.0", " 12  Rods = 198.0 feet"},           // 12 x 16.5; answer as typed
        {UC::Perches, "1", "16.5", "1 Perches = 16.5 feet"},
        {UC::Furlongs, "1", "660.0", "1 Furlongs = 660.0 feet"},
        {UC::Varas, "3.5", "9.7222", "3.5 Varas = 9.7222 feet"},         // 3.5 / 0.36 = 9.72222...
        {UC::Yards, "1", "3.0", "1 Yards = 3.0 Feet"},
        {UC::FeetToMeters, "3.281", "1.0", "3.281 Feet = 1.0 Meters"},
        {UC::FeetToMeters, "1000", "304.7851", "1000 Feet = 304.7851 Meters"}, // 304.78512...
        {UC::MetersToFeet, "-2", "-6.562", "-2 Meters = -6.562 Feet"}};
    for (const auto &c : cases) {
        const CalcResult r = runConverter(c.converter, c.answer);
        EXPECT_EQ(r.clipboard, c.result);
        EXPECT_EQ(r.acresbox, c.acresbox);
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
