// Bad input never crashes or hangs the reader: invalid UTF-8, a megabyte on one
// line, random bytes. Also the public helpers' edge cases.

#include <gtest/gtest.h>

#include <random>

#include "deed_text.h"

using namespace quilmar::deedtext;

namespace {

void expectSpansInside(const DeedImport &d, size_t size)
{
    for (const auto &r : d.rows)
        EXPECT_LE(r.span.end, size);
    for (const auto &f : d.flags)
        EXPECT_LE(f.span.end, size);
}

TEST(DeedRobustness, MegabyteLine)
{
    std::string text = "Beginning at a stake; ";
    while (text.size() < 1'000'000)
        text += "thence N 45°30' E 100.5 feet to a stake, from which a pine bears S 3 W 4 links; ";
    const auto d = parseDeedText(text);
    EXPECT_GT(d.rows.size(), 10000u);
    expectSpansInside(d, text.size());

    const std::string oneWord(1'000'000, 'x');
    EXPECT_TRUE(parseDeedText(oneWord).rows.empty());
    const std::string digits(1'000'000, '7');
    EXPECT_TRUE(parseDeedText(digits).rows.empty());
}

TEST(DeedRobustness, InvalidUtf8AndRandomBytes)
{
    const std::string invalid = "Beginning \xff\xfe thence N 4\xc3 E \xe2\x80 100 feet \xf0\x9f to the beginning\xc0";
    expectSpansInside(parseDeedText(invalid), invalid.size());
    std::mt19937 rng(20261122);
    const std::string alphabet = "NSEW0123456789 .,;:'\"°-/()thencebginorfeetpolchainsvarcuvdlt?\n\xc2\xbd";
    for (int round = 0; round < 300; ++round) {
        std::string text;
        const size_t n = rng() % 400;
        for (size_t i = 0; i < n; ++i)
            text += (round % 2) ? char(rng() & 0xff) : alphabet[rng() % alphabet.size()];
        const auto d = parseDeedText(text);
        expectSpansInside(d, text.size());
    }
}

TEST(DeedText, LineColumnCountsCharactersAndQuotesCollapseBlanks)
{
    const std::string text = "ab\r\nc°d\re";
    EXPECT_EQ(lineColumnOf(text, 0).line, 1u);
    EXPECT_EQ(lineColumnOf(text, 4).line, 2u);
    EXPECT_EQ(lineColumnOf(text, 7).column, 3u); // after "c°": ° is one character
    EXPECT_EQ(lineColumnOf(text, 9).line, 3u);
    // A quote collapses blanks.
    const std::string call = "thence  N 10 E\n   100 feet";
    EXPECT_EQ(quoteSpan(call, {0, call.size()}), "thence N 10 E 100 feet");
    EXPECT_EQ(quoteSpan(call, {0, call.size()}, 6), "thence...");
}

} // namespace
