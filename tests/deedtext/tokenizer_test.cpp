// The tokenizer and number words: the marks and numbers every call is made of.

#include <gtest/gtest.h>

#include "tokenizer.h"

using namespace quilmar::deedtext;

namespace {

std::vector<Token> numbers(std::string_view text)
{
    std::vector<Token> out;
    for (auto &t : tokenize(text))
        if (t.kind == TokKind::Number)
            out.push_back(t);
    return out;
}

struct NumberCase {
    const char *text;
    double value;
};

class NumberWords : public ::testing::TestWithParam<NumberCase> {};

TEST_P(NumberWords, ReadAsOneNumber)
{
    const auto n = numbers(GetParam().text);
    ASSERT_EQ(n.size(), 1u) << GetParam().text;
    EXPECT_DOUBLE_EQ(n[0].value, GetParam().value) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(Deeds, NumberWords, ::testing::Values(
    NumberCase{"sixty-two", 62}, NumberCase{"one hundred and twelve", 112},
    NumberCase{"one hundred twenty-five", 125}, NumberCase{"six and one half", 6.5},
    NumberCase{"thirty and a half", 30.5}, NumberCase{"twelve and one-quarter", 12.25},
    NumberCase{"sixty-two and 50/100", 62.5}, NumberCase{"two thousand one hundred", 2100},
    NumberCase{"three quarters", 0.75}, NumberCase{"60 1/4", 60.25}, NumberCase{"18½", 18.5},
    NumberCase{"45-1/2", 45.5}, NumberCase{"2,150", 2150}, NumberCase{"1,875.5", 1875.5},
    NumberCase{"l5", 15}, NumberCase{"1O0", 100}, NumberCase{"2l5.4O", 215.4}, NumberCase{"ninety-five (95)", 95}));

TEST(Tokenizer, MarksOfDegreesMinutesSeconds)
{
    // Typographic marks, the ASCII stand-ins, and a scanned "?" for the degree sign.
    for (const char *text : {"45°30'15\"", "45º30′15″", "45°30’15”", "45?30'15''", "45o30'15\"", "45*30'15\""}) {
        const auto t = tokenize(text);
        ASSERT_EQ(t.size(), 6u) << text;
        EXPECT_EQ(t[1].kind, TokKind::Degree) << text;
        EXPECT_EQ(t[3].kind, TokKind::Minute) << text;
        EXPECT_EQ(t[5].kind, TokKind::Second) << text;
    }
}

TEST(Tokenizer, GluedBearingSplits)
{
    const auto t = tokenize("N45-30-15E");
    ASSERT_EQ(t.size(), 7u);
    EXPECT_EQ(t[0].word, "n");
    EXPECT_EQ(t[1].value, 45);
    EXPECT_EQ(t[6].word, "e");
}

TEST(Tokenizer, HyphenatedLineBreakJoinsTheWord)
{
    const auto t = tokenize("to the place of begin-\nning");
    ASSERT_EQ(t.size(), 5u);
    EXPECT_EQ(t[4].word, "beginning");
}

TEST(Tokenizer, LostDigitsAreMarked)
{
    const auto t = tokenize("S 2?°1?'40\" W");
    int lost = 0;
    for (const auto &k : t)
        lost += k.kind == TokKind::Lost;
    EXPECT_EQ(lost, 2);
}

TEST(Tokenizer, WordsAreRepairedAndJoined)
{
    const auto t = tokenize("10 chams 5 hnks to the P.O.B. T0 Brown's");
    std::vector<std::string> words;
    for (const auto &k : t)
        if (k.kind == TokKind::Word)
            words.push_back(k.word);
    EXPECT_EQ(words, (std::vector<std::string>{"chains", "links", "to", "the", "pob", "to", "browns"}));
}

TEST(Tokenizer, WordsAndFiguresThatDisagreeAreMarked)
{
    const auto n = numbers("sixty (70) feet");
    ASSERT_EQ(n.size(), 1u);
    EXPECT_TRUE(n[0].disagree);
}

TEST(Tokenizer, SpansPointIntoTheText)
{
    const std::string text = "thence N 45° E";
    const auto t = tokenize(text);
    ASSERT_EQ(t.size(), 5u);
    EXPECT_EQ(text.substr(t[3].span.begin, t[3].span.end - t[3].span.begin), "°");
    EXPECT_TRUE(t[1].spaceBefore);
}

} // namespace
