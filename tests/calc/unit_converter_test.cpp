#include "shortcut_conversion.h"
#include "unit_converter.h"

#include <gtest/gtest.h>

namespace quilmar {
namespace {

struct ConverterCase {
    UnitConverter converter;
    const char *answer;
    const char *result;   // formatted "##0.0###": exact text, i.e. tolerance 0.00005
    const char *acresbox;
};

class UnitConverterTest : public ::testing::TestWithParam<ConverterCase> {};

TEST_P(UnitConverterTest, ConvertsAndReportsAsTyped)
{
    const ConverterCase &c = GetParam();
    const CalcResult r = runConverter(c.converter, c.answer);
    EXPECT_EQ(r.clipboard, c.result);
    EXPECT_EQ(r.acresbox, c.acresbox);
    EXPECT_TRUE(r.messages.empty());
    EXPECT_FALSE(r.field);
}

INSTANTIATE_TEST_SUITE_P(Factors, UnitConverterTest, ::testing::Values(
    ConverterCase{UnitConverter::Chains, "10.05", "663.3", "10.05 Chains = 663.3 feet"},      // 10.05 x 66
    ConverterCase{UnitConverter::Chains, "1", "66.0", "1 Chains = 66.0 feet"},
    ConverterCase{UnitConverter::Links, "1", "0.66", "1 Links = 0.66 feet"},                  // 66 / 100
    ConverterCase{UnitConverter::Rods, "1", "16.5", "1 Rods = 16.5 feet"},                    // 66 / 4
    ConverterCase{UnitConverter::Rods, " 12 ", "198.0", " 12  Rods = 198.0 feet"},            // answer kept as typed
    ConverterCase{UnitConverter::Perches, "1", "16.5", "1 Perches = 16.5 feet"},
    ConverterCase{UnitConverter::Furlongs, "1", "660.0", "1 Furlongs = 660.0 feet"},
    ConverterCase{UnitConverter::Varas, "1", "2.7778", "1 Varas = 2.7778 feet"},              // 1 / 0.36 = 2.77777...
    ConverterCase{UnitConverter::Varas, "3.5", "9.7222", "3.5 Varas = 9.7222 feet"},          // 3.5 / 0.36 = 9.72222...
    ConverterCase{UnitConverter::Yards, "1", "3.0", "1 Yards = 3.0 Feet"},
    ConverterCase{UnitConverter::FeetToMeters, "3.281", "1.0", "3.281 Feet = 1.0 Meters"},
    ConverterCase{UnitConverter::FeetToMeters, "1000", "304.7851", "1000 Feet = 304.7851 Meters"}, // 304.78512...
    ConverterCase{UnitConverter::MetersToFeet, "1", "3.281", "1 Meters = 3.281 Feet"},
    ConverterCase{UnitConverter::MetersToFeet, "-2", "-6.562", "-2 Meters = -6.562 Feet"}));

TEST(UnitConverter, BadAnswersChangeNothing)
{
    for (const char *answer : {"", "   ", "abc", "12abc", "1,5", "1e400"})
        EXPECT_TRUE(runConverter(UnitConverter::Chains, answer).isEmpty()) << '"' << answer << '"';
}

TEST(UnitConverter, TitleAndPrompt)
{
    EXPECT_EQ(converterTitle(), "Conversion");
    EXPECT_EQ(converterPrompt(UnitConverter::Chains),
              "Enter Chains and Links.  For example 10 Chains and 5 links is entered as 10.05.\r\n"
              "The result can be pasted from the clipboard.");
    EXPECT_EQ(converterPrompt(UnitConverter::FeetToMeters),
              "Enter number of Feet.\r\nThe result can be pasted from the clipboard.");
}

struct ShortcutCase {
    ShortcutConversion shortcut;
    const char *field;
    const char *converted;
};

class ShortcutTest : public ::testing::TestWithParam<ShortcutCase> {};

TEST_P(ShortcutTest, ConvertsTheFieldOnly)
{
    const ShortcutCase &c = GetParam();
    const CalcResult r = runShortcut(c.shortcut, c.field);
    EXPECT_EQ(r.field, c.converted);
    EXPECT_FALSE(r.acresbox);
    EXPECT_FALSE(r.clipboard);
    EXPECT_TRUE(r.messages.empty());
}

INSTANTIATE_TEST_SUITE_P(Factors, ShortcutTest, ::testing::Values(
    ShortcutCase{ShortcutConversion::ChainsLinks, "10.05", "663.3"},
    ShortcutCase{ShortcutConversion::PerchesRods, "2", "33.0"},
    ShortcutCase{ShortcutConversion::Varas, "1", "2.7778"},        // the rounded 2.7777778
    ShortcutCase{ShortcutConversion::Varas, "1000", "2777.7778"})); // 2777.7778 exactly, not 2777.7777...

TEST(ShortcutConversion, NonNumericFieldChangesNothing)
{
    for (const char *text : {"", "N", "12abc", " "})
        EXPECT_TRUE(runShortcut(ShortcutConversion::ChainsLinks, text).isEmpty()) << '"' << text << '"';
}

} // namespace
} // namespace quilmar
