// The classic numbers: the leading-number rule that reads them and the formats
// that write them.

#include "number_format.h"
#include "number_read.h"

#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "vb_math.h"

using namespace quilmar;

// Expected texts: the decimal value rounded by hand, half away from zero, at the last place shown.
TEST(FormatNumber, FormatsAsTheClassicFormatter)
{
    const struct { double value; const char *pattern, *expected; } cases[] = {
        {50000, "Standard", "50,000.00"}, {0, "Standard", "0.00"}, {-1234.5, "Standard", "-1,234.50"},
        {999, "standard", "999.00"}, {50000.0 / 43560, "Standard", "1.15"}, // 1.14784... acres
        {9.995, "Standard", "10.00"},              // carry into a new digit
        {999999.995, "Standard", "1,000,000.00"},  // carry through the groups
        {-0.004, "Standard", "0.00"},              // no "-" on a zero
        {1e20, "Standard", "100,000,000,000,000,000,000.00"}, {0.0005, "Percent", "0.05%"}, {0, "Percent", "0.00%"},
        {123.456, "Percent", "12345.60%"},         // no thousands separator
        {0.00125, "Percent", "0.13%"},             // 0.125 % is a tie
        {-0.5, "Percent", "-50.00%"}, {1.25, "0.0##", "1.25"}, {0.0004, "0.0##", "0.0"}, {12, "0.0##", "12.0"},
        {0.4, "###", ""}, {-0.4, "###", ""}, {10000, "###", "10000"},
        {2.5, "###", "3"}, {-2.5, "###", "-3"},   // away from zero, not to even
        {0, "##0", "0"}, {49.5, "##0", "50"}, {663.3, "##0.0###", "663.3"}, {66, "##0.0###", "66.0"},
        {2.77777778, "##0.0###", "2.7778"}, {0.99999, "##0.0###", "1.0"}, {0.5, "##.###", ".5"}, {0, "##.###", "."},
        {-0.3, "##.###", "-.3"}, {5, "#.##", "5."}, {7.5, "0", "8"}, {5, "00.0", "05.0"},
        {2.675, "0.00", "2.68"},                   // binary 2.67499999..., reads 2.675
        {-2.675, "0.00", "-2.68"}, {0.125, "0.00", "0.13"},
        {123456789012345678.0, "0", "123456789012346000"}}; // 15 significant digits
    for (const auto &c : cases)
        EXPECT_EQ(formatNumber(c.value, c.pattern), c.expected) << c.value << " with " << c.pattern;
}

TEST(FormatNumber, BadPatternsAndValues)
{
    EXPECT_THROW(formatNumber(1, "Fixed"), std::invalid_argument);
    EXPECT_THROW(formatNumber(1, "0.0.0"), std::invalid_argument);
    EXPECT_THROW(formatNumber(1, ""), std::invalid_argument);
    EXPECT_THROW(formatNumber(std::numeric_limits<double>::infinity(), "0"), VbError);
    EXPECT_THROW(generalNumber(std::nan("")), VbError);
}

TEST(GeneralNumber, ShortestFifteenDigitText)
{
    const std::pair<double, const char *> cases[] = {
        {328.1, "328.1"}, {16503.3, "16503.3"}, {1, "1"}, {100, "100"},
        {0.1 + 0.2, "0.3"},                       // 0.30000000000000004 to 15 digits
        {-0.0, "0"}, {-2.5, "-2.5"}, {1.0 / 3, "0.333333333333333"},
        {999999999999999, "999999999999999"},     // exponent 14 stays plain
        {999999999999999.9, "1E+15"},             // rounds up into exponent 15
        {1.5e16, "1.5E+16"}, {1e100, "1E+100"}, {0.0001, "0.0001"}, {0.00001, "1E-05"}, {-1.23e-7, "-1.23E-07"}};
    for (const auto &[value, text] : cases)
        EXPECT_EQ(generalNumber(value), text) << value;
}

TEST(NumberRead, LeadingNumberRule)
{
    const struct { std::string text; double value; } cases[] = {
        {"", 0}, {"abc", 0}, {"12.5", 12.5}, {"  12.5", 12.5}, {"12.5ft", 12.5}, {"-3", -3}, {"+4", 4},
        {".5", 0.5}, {"5.", 5}, {"1e3", 1000}, {"1D2", 100}, {"2e", 2}, {"1,5", 1}, {"-", 0}, {".", 0},
        {"12 34", 12}, {"0x10", 0}, {"1e-400", 0},
        {"1E-400", 0}, {"-2.5D-330ft", 0},     // too small reads as 0 whatever the exponent letter, not Overflow
        {"0." + std::string(400, '0') + "1", 0}}; // too small without any exponent
    for (const auto &c : cases)
        EXPECT_DOUBLE_EQ(leadingNumber(c.text), c.value) << '"' << c.text << '"';
    try {
        leadingNumber("1e400");
        ADD_FAILURE() << "no overflow";
    } catch (const VbError &e) {
        EXPECT_EQ(e.number(), 6);
        EXPECT_EQ(e.description(), "Overflow");
    }
}
