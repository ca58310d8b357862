#include "cp1252.h"

#include <array>
#include <cstdint>

namespace quilmar {

namespace {

// Characters of the bytes 0x80 to 0x9F; the rest of the code page is Latin-1.
// The five unassigned bytes keep their own value, as the platform maps them.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

void appendUtf8(std::string &out, char32_t c)
{
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        // The code page has nothing beyond the Basic Multilingual Plane.
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

// The byte for a character, or '?' when the code page has none.
char toCp1252(char32_t c)
{
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return static_cast<char>(c);
    for (std::size_t i = 0; i < kHighControls.size(); ++i) {
        if (kHighControls[i] == c)
            return static_cast<char>(0x80 + i);
    }
    return '?';
}

// Decodes one well-formed UTF-8 sequence at text[pos]; returns its length, or 0
// when the bytes there do not start one.
std::size_t decodeUtf8(std::string_view text, std::size_t pos, char32_t &c)
{
    const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
    const std::uint8_t lead = byte(pos);
    std::size_t length = 0;
    std::uint8_t low = 0x80, high = 0xBF; // range of the second byte
    if (lead < 0x80) {
        c = lead;
        return 1;
    } else if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
        c = lead & 0x1F;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        c = lead & 0x0F;
        if (lead == 0xE0) low = 0xA0;  // overlong
        if (lead == 0xED) high = 0x9F; // surrogates
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        c = lead & 0x07;
        if (lead == 0xF0) low = 0x90;  // overlong
        if (lead == 0xF4) high = 0x8F; // past U+10FFFF
    } else {
        return 0;
    }
    if (pos + length > text.size())
        return 0;
    for (std::size_t i = 1; i < length; ++i) {
        const std::uint8_t b = byte(pos + i);
        if (b < (i == 1 ? low : 0x80) || b > (i == 1 ? high : 0xBF))
            return 0;
        c = (c << 6) | (b & 0x3F);
    }
    return length;
}

} // namespace

std::string cp1252ToUtf8(std::string_view bytes)
{
    std::string out;
    out.reserve(bytes.size());
    for (const char ch : bytes) {
        const auto b = static_cast<std::uint8_t>(ch);
        appendUtf8(out, b >= 0x80 && b <= 0x9F ? kHighControls[b - 0x80] : char32_t(b));
    }
    return out;
}

std::string utf8ToCp1252(std::string_view text)
{
    std::string out;
    out.reserve(text.size());
    std::size_t pos = 0;
    while (pos < text.size()) {
        char32_t c = 0;
        const std::size_t length = decodeUtf8(text, pos, c);
        if (length == 0) {
            out += '?'; // one mark per byte that belongs to no character
            ++pos;
        } else {
            out += toCp1252(c);
            pos += length;
        }
    }
    return out;
}

} // namespace quilmar
