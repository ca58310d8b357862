#include <gtest/gtest.h>

#include "number_read.h"
#include "vb_math.h"

using namespace quilmar;

TEST(NumberRead, LeadingNumberRule)
{
    struct Case { const char *text; double value; };
    const Case cases[] = {
        {"", 0}, {"abc", 0}, {"12.5", 12.5}, {"  12.5", 12.5}, {"12.5ft", 12.5}, {"-3", -3}, {"+4", 4},
        {".5", 0.5}, {"5.", 5}, {"1e3", 1000}, {"1D2", 100}, {"2e", 2}, {"1,5", 1}, {"-", 0}, {".", 0},
        {"12 34", 12}, {"0x10", 0}, {"1e-400", 0},
    };
    for (const Case &c : cases)
        EXPECT_DOUBLE_EQ(leadingNumber(c.text), c.value) << '"' << c.text << '"';
    try {
        leadingNumber("1e400");
        ADD_FAILURE() << "no overflow";
    } catch (const VbError &e) {
        EXPECT_EQ(e.number(), 6);
        EXPECT_EQ(e.description(), "Overflow");
    }
}
