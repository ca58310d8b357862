// The reader below the corpus: the tokenizer and number words (the marks and
// numbers every call is made of), the public helpers, and bad input, which never
// crashes or hangs the reader (invalid UTF-8, a megabyte on one line, random bytes).

#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "deed_text.h"
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

// The tokens as one line: numbers by value, words as repaired, marks by name,
// a lost digit as "?", all else as "~".
std::string shape(std::string_view text)
{
    std::ostringstream out;
    for (const Token &t : tokenize(text)) {
        out << (out.tellp() > 0 ? " " : "");
        switch (t.kind) {
        case TokKind::Number: out << t.value; break;
        case TokKind::Word: out << t.word; break;
        case TokKind::Degree: out << "deg"; break;
        case TokKind::Minute: out << "min"; break;
        case TokKind::Second: out << "sec"; break;
        case TokKind::Hyphen: out << "-"; break;
        case TokKind::Lost: out << "?"; break;
        default: out << "~"; break;
        }
    }
    return out.str();
}

TEST(Tokenizer, NumberWordsReadAsOneNumber)
{
    const std::pair<const char *, double> cases[] = {
        {"sixty-two", 62}, {"one hundred and twelve", 112}, {"one hundred twenty-five", 125}, {"six and one half", 6.5},
        {"thirty and a half", 30.5}, {"twelve and one-quarter", 12.25}, {"sixty-two and 50/100", 62.5},
        {"two thousand one hundred", 2100}, {"three quarters", 0.75}, {"60 1/4", 60.25}, {"18½", 18.5},
        {"45-1/2", 45.5}, {"2,150", 2150}, {"1,875.5", 1875.5}, {"l5", 15}, {"1O0", 100}, {"2l5.4O", 215.4},
        {"ninety-five (95)", 95},
        // Two scanned zeros in a row, and in the decimals: read as 1, 100 and 1.
        {"1OO", 100}, {"1OO.OO", 100}, {"3OO.5O", 300.5}, {"lO", 10}};
    for (const auto &[text, value] : cases) {
        const auto n = numbers(text);
        ASSERT_EQ(n.size(), 1u) << text;
        EXPECT_DOUBLE_EQ(n[0].value, value) << text;
    }
    const auto n = numbers("sixty (70) feet"); // words and figures that disagree are marked
    ASSERT_EQ(n.size(), 1u);
    EXPECT_TRUE(n[0].disagree);
}

TEST(Tokenizer, ShapesAndSpans)
{
    const struct { const char *text, *shape; } cases[] = {
        // Typographic marks, the ASCII stand-ins, and a scanned "?" for the degree sign.
        {"45°30'15\"", "45 deg 30 min 15 sec"}, {"45º30′15″", "45 deg 30 min 15 sec"},
        {"45°30’15”", "45 deg 30 min 15 sec"},  {"45?30'15''", "45 deg 30 min 15 sec"},
        {"45o30'15\"", "45 deg 30 min 15 sec"}, {"45*30'15\"", "45 deg 30 min 15 sec"},
        {"N45-30-15E", "n 45 - 30 - 15 e"},                                // a glued bearing splits
        {"to the place of begin-\nning", "to the place of beginning"},    // a hyphenated line break joins
        {"S 2?°1?'40\" W", "s 2 ? deg 1 ? min 40 sec w"},                 // lost digits are marked
        {"10 chams 5 hnks to the P.O.B. T0 Brown's", "10 chains 5 links to the pob to browns"},
        // A bearing scanned wholly in letters reads as numbers; Roman numerals and words stay words.
        {"N lO E 2l0 feet", "n 10 e 210 feet"}, {"N O° 3O' E", "n 0 deg 30 min e"},
        {"Tract II of Ill. OIL", "tract ii of ill ~ oil"},
        // A zero for the letter O opening a short word; a zero before a unit stays a number.
        {"P0INT 0F BEGINNING 0N 0R 0ver", "point of beginning on or over"}, {"0ft 0.5f", "0 ft 0.5 f"},
        // Text saved as Windows-1252: the degree sign, the quote marks and the fractions are single bytes.
        {"N 45\xb0" "30\x92 12\xbd E \x93x\x94", "n 45 deg 30 min 12.5 e sec x sec"}};
    for (const auto &c : cases)
        EXPECT_EQ(shape(c.text), c.shape) << c.text;
    // Spans point into the text.
    const std::string text = "thence N 45° E";
    const auto t = tokenize(text);
    ASSERT_EQ(t.size(), 5u);
    EXPECT_EQ(text.substr(t[3].span.begin, t[3].span.end - t[3].span.begin), "°");
    EXPECT_TRUE(t[1].spaceBefore);
}

TEST(DeedText, MetresOnlyWhenEveryDistanceIsInMetres)
{
    const struct { const char *text; bool metric; } cases[] = {
        {"Beginning; thence N 10 E 50.5 m; thence S 80 E 40 metres to the beginning.", true},
        {"Beginning; thence N 10 E 50.5 metros; thence S 80 E 40 mtr to the beginning.", true}, // Spanish, abbreviated
        {"Beginning; thence N 10 E 50.5 m; thence S 80 E 40 feet to the beginning.", false},   // mixed: feet
        {"Beginning; thence N 10 E 50.5 chains; thence S 80 E 40 to the beginning.", false},
    };
    for (const auto &c : cases)
        EXPECT_EQ(parseDeedText(c.text).metric, c.metric) << c.text;
}

void expectSpansInside(const DeedImport &d, size_t size)
{
    for (const auto &r : d.rows)
        EXPECT_LE(r.span.end, size);
    for (const auto &f : d.flags)
        EXPECT_LE(f.span.end, size);
}

TEST(DeedRobustness, MegabyteLinesInvalidUtf8AndRandomBytes)
{
    std::string text = "Beginning at a stake; ";
    while (text.size() < 1'000'000)
        text += "thence N 45°30' E 100.5 feet to a stake, from which a pine bears S 3 W 4 links; ";
    const auto d = parseDeedText(text);
    EXPECT_GT(d.rows.size(), 10000u);
    expectSpansInside(d, text.size());

    for (const char c : {'x', '7'}) // one word, one number, a megabyte long
        EXPECT_TRUE(parseDeedText(std::string(1'000'000, c)).rows.empty()) << c;

    const std::string invalid = "Beginning \xff\xfe thence N 4\xc3 E \xe2\x80 100 feet \xf0\x9f to the beginning\xc0";
    expectSpansInside(parseDeedText(invalid), invalid.size());
    std::mt19937 rng(20261122);
    const std::string alphabet = "NSEW0123456789 .,;:'\"°-/()thencebginorfeetpolchainsvarcuvdlt?\n\xc2\xbd";
    for (int round = 0; round < 300; ++round) {
        std::string text;
        const size_t n = rng() % 400;
        for (size_t i = 0; i < n; ++i)
            text += (round % 2) ? char(rng() & 0xff) : alphabet[rng() % alphabet.size()];
        expectSpansInside(parseDeedText(text), text.size());
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
