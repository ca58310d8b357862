#include <gtest/gtest.h>

#include "cp1252.h"

using namespace quilmar;

namespace {

using namespace std::string_literals;

struct Pair { std::string cp1252; std::string utf8; };

// Code points from the Windows-1252 chart: 0xE9 é U+00E9 (C3 A9), 0xB0 ° U+00B0
// (C2 B0), 0x80 € U+20AC (E2 82 AC), 0x9F Ÿ U+0178 (C5 B8), 0x8A Š U+0160 (C5 A0),
// unassigned 0x81 -> U+0081 (C2 81) and 0x9D -> U+009D (C2 9D).
TEST(Cp1252, ConvertsBothWays)
{
    const Pair cases[] = {
        {"N 12 E", "N 12 E"}, {"\xE9", "\xC3\xA9"}, {"45\xB0", "45\xC2\xB0"}, {"\x80", "\xE2\x82\xAC"},
        {"\x9F\x8A", "\xC5\xB8\xC5\xA0"}, {"\x81\x9D", "\xC2\x81\xC2\x9D"}, {"a\0b"s, "a\0b"s}};
    for (const auto &c : cases) {
        EXPECT_EQ(cp1252ToUtf8(c.cp1252), c.utf8);
        EXPECT_EQ(utf8ToCp1252(c.utf8), c.cp1252);
    }
    std::string all; // every byte survives a round trip
    for (int b = 0; b < 256; ++b)
        all += static_cast<char>(b);
    EXPECT_EQ(utf8ToCp1252(cp1252ToUtf8(all)), all);
}

TEST(Cp1252, UnmappableAndMalformedBecomeQuestionMarks)
{
    const Pair cases[] = {
        {"?", "\xC5\x82"},                 // ł U+0142 is not in the code page
        {"?", "\xC2\x80"},                 // U+0080: 0x80 is the euro sign, not this control
        {"a?b", "a\xF0\x9F\x98\x80" "b"},  // emoji, one character -> one mark
        {"?", "\xFF"},                     // never valid in UTF-8
        {"??x", "\xE2\x82x"},              // cut-off sequence: one mark per byte
        {"??", "\xC0\xAF"},                // overlong "/"
        {"???", "\xED\xA0\x80"},           // surrogate half
        {"????", "\xF4\x90\x80\x80"},      // past U+10FFFF
        {"?", "\xC3"}};                    // cut off by the end of the text
    for (const auto &c : cases)
        EXPECT_EQ(utf8ToCp1252(c.utf8), c.cp1252) << c.utf8;
}

} // namespace
