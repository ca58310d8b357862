#include "number_read.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <string>

#include "vb_math.h"

namespace quilmar {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Length of the numeric prefix starting at text[0], in the form from_chars reads
// once a "D" exponent is spelled "E".
size_t prefixLength(std::string_view t)
{
    size_t i = 0;
    if (i < t.size() && (t[i] == '+' || t[i] == '-'))
        ++i;
    size_t digits = 0;
    while (i < t.size() && isDigit(t[i])) { ++i; ++digits; }
    if (i < t.size() && t[i] == '.') {
        ++i;
        while (i < t.size() && isDigit(t[i])) { ++i; ++digits; }
    }
    if (digits == 0)
        return 0;
    if (i < t.size() && (t[i] == 'e' || t[i] == 'E' || t[i] == 'd' || t[i] == 'D')) {
        size_t j = i + 1;
        if (j < t.size() && (t[j] == '+' || t[j] == '-'))
            ++j;
        if (j < t.size() && isDigit(t[j])) {
            while (j < t.size() && isDigit(t[j]))
                ++j;
            i = j;
        }
    }
    return i;
}

// Deeds are mostly short plain numbers ("1000", "45", "12.75"): with at most 15
// digits and no exponent, one exact division by a power of ten is correctly
// rounded, the same double that from_chars gives, without its cost.
bool exactSmallNumber(std::string_view t, double &value)
{
    static constexpr double kPowers[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    size_t i = 0;
    bool negative = false;
    if (t[0] == '+' || t[0] == '-') {
        negative = t[0] == '-';
        ++i;
    }
    uint64_t mantissa = 0;
    int digits = 0, decimals = 0;
    bool point = false;
    for (; i < t.size(); ++i) {
        const char c = t[i];
        if (c == '.') {
            point = true;
            continue;
        }
        if (!isDigit(c) || ++digits > 15)
            return false;
        mantissa = mantissa * 10 + uint64_t(c - '0');
        decimals += point;
    }
    value = double(mantissa) / kPowers[decimals];
    if (negative)
        value = -value;
    return true;
}

// The decimal order of magnitude of a numeric prefix with a lower-case "e"
// exponent: 2 for "123", -3 for "0.00123", 398 for "1e400"; kept within +-2^40
// so that absurd exponents do not wrap. A text without a non-zero digit gives 0.
long long decimalOrder(std::string_view s)
{
    constexpr long long kLimit = 1LL << 40;
    size_t i = (!s.empty() && (s[0] == '+' || s[0] == '-')) ? 1 : 0;
    long long order = 0;
    bool found = false;
    long long position = 0; // digits before the point (positive) or zeros after it (negative)
    for (bool afterPoint = false; i < s.size() && s[i] != 'e'; ++i) {
        if (s[i] == '.') {
            afterPoint = true;
            continue;
        }
        if (!found && s[i] != '0') {
            found = true;
            order = afterPoint ? position - 1 : 0;
        } else if (found && !afterPoint) {
            ++order;
        }
        if (afterPoint && !found)
            --position;
    }
    if (!found)
        return 0;
    if (i < s.size()) {
        long long exponent = 0;
        size_t j = i + 1;
        const bool negative = j < s.size() && s[j] == '-';
        if (j < s.size() && (s[j] == '+' || s[j] == '-'))
            ++j;
        for (; j < s.size() && isDigit(s[j]); ++j)
            exponent = std::min(kLimit, exponent * 10 + (s[j] - '0'));
        order += negative ? -exponent : exponent;
    }
    return order;
}

} // namespace

std::string_view trimBlanks(std::string_view text)
{
    size_t b = text.find_first_not_of(' ');
    if (b == std::string_view::npos)
        return {};
    size_t e = text.find_last_not_of(' ');
    return text.substr(b, e - b + 1);
}

double leadingNumber(std::string_view text)
{
    size_t b = text.find_first_not_of(" \t");
    if (b == std::string_view::npos)
        return 0.0;
    std::string_view t = text.substr(b);
    const size_t n = prefixLength(t);
    if (n == 0)
        return 0.0;
    if (double fast; exactSmallNumber(t.substr(0, n), fast))
        return fast;
    std::string s(t.substr(0, n));
    size_t start = 0;
    if (s[0] == '+')
        start = 1;
    for (char &c : s)
        if (c == 'd' || c == 'D' || c == 'E')
            c = 'e';
    double v = 0.0;
    auto [ptr, ec] = std::from_chars(s.data() + start, s.data() + s.size(), v);
    if (ec == std::errc::result_out_of_range) {
        // Underflow reads as 0; only a too-large magnitude is a fault.
        if (decimalOrder(s) < 0)
            return 0.0;
        throw VbError::overflow();
    }
    (void)ptr;
    return v;
}

bool isWholeNumber(std::string_view text)
{
    std::string_view t = trimBlanks(text);
    return !t.empty() && prefixLength(t) == t.size();
}

} // namespace quilmar
