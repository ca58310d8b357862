#include "utf16_offset.h"

#include <algorithm>

namespace quilmar {

namespace {

bool continuation(unsigned char b) { return (b & 0xC0) == 0x80; }

/// Length in bytes of a well-formed sequence starting at @p i, else 0.
std::size_t sequenceLength(std::string_view text, std::size_t i)
{
    const auto b = static_cast<unsigned char>(text[i]);
    std::size_t n = 0;
    if (b < 0x80)
        return 1;
    if (b >= 0xC2 && b <= 0xDF)
        n = 2;
    else if (b >= 0xE0 && b <= 0xEF)
        n = 3;
    else if (b >= 0xF0 && b <= 0xF4)
        n = 4;
    else
        return 0;
    if (i + n > text.size())
        return 0;
    for (std::size_t k = 1; k < n; ++k)
        if (!continuation(static_cast<unsigned char>(text[i + k])))
            return 0;
    return n;
}

} // namespace

std::vector<std::size_t> utf16Positions(std::string_view text)
{
    std::vector<std::size_t> at(text.size() + 1, 0);
    std::size_t units = 0;
    std::size_t i = 0;
    while (i < text.size()) {
        at[i] = units;
        const std::size_t n = std::max<std::size_t>(sequenceLength(text, i), 1); // 0: one replacement unit
        units += n == 4 ? 2 : 1;
        for (std::size_t k = 1; k < n; ++k)
            at[i + k] = units;
        i += n;
    }
    at[text.size()] = units;
    return at;
}

std::size_t utf16Offset(std::string_view text, std::size_t byteOffset)
{
    return utf16Positions(text)[std::min(byteOffset, text.size())];
}

} // namespace quilmar
