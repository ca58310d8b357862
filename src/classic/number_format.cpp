#include "number_format.h"

#include <charconv>
#include <cmath>
#include <stdexcept>

#include "vb_math.h"

namespace quilmar {

namespace {

constexpr int kSignificant = 15;

// |value| as 15 significant decimal digits: |value| = d1.d2...d15 x 10^exponent.
// Every format rounds from these digits, never from the binary value, so that a
// number the user typed as 2.675 rounds the way it reads.
struct Decimal {
    std::string digits;
    int exponent = 0;
};

Decimal toDecimal(double value)
{
    if (!std::isfinite(value))
        throw VbError::overflow();
    char buf[64];
    auto res = std::to_chars(buf, buf + sizeof buf, std::fabs(value), std::chars_format::scientific,
                             kSignificant - 1);
    std::string_view text(buf, static_cast<size_t>(res.ptr - buf));
    Decimal d;
    size_t e = text.find('e');
    for (char c : text.substr(0, e))
        if (c != '.')
            d.digits += c;
    std::string_view exp = text.substr(e + 1);
    if (!exp.empty() && exp.front() == '+')
        exp.remove_prefix(1);
    std::from_chars(exp.data(), exp.data() + exp.size(), d.exponent);
    return d;
}

// Adds one to a string of decimal digits.
void increment(std::string &digits)
{
    for (size_t i = digits.size(); i-- > 0;) {
        if (digits[i] != '9') {
            ++digits[i];
            return;
        }
        digits[i] = '0';
    }
    digits.insert(digits.begin(), '1');
}

// round(|value| x 10^decimals), half away from zero on the 15 digits, as a digit
// string without leading zeros ("0" for zero).
std::string scaledInteger(const Decimal &d, int decimals)
{
    const int kept = d.exponent + 1 + decimals;
    std::string out;
    if (kept < 0) {
        out = "0";
    } else if (kept == 0) {
        out = d.digits[0] >= '5' ? "1" : "0";
    } else if (kept >= kSignificant) {
        out = d.digits + std::string(static_cast<size_t>(kept - kSignificant), '0');
    } else {
        out = d.digits.substr(0, static_cast<size_t>(kept));
        if (d.digits[static_cast<size_t>(kept)] >= '5')
            increment(out);
    }
    size_t nz = out.find_first_not_of('0');
    return nz == std::string::npos ? "0" : out.substr(nz);
}

struct DigitPattern {
    int minInt = 0;
    bool point = false;
    int minFrac = 0;
    int maxFrac = 0;
    bool grouping = false;
    int shift = 0;          // powers of ten applied before formatting (Percent: 2)
    const char *suffix = "";
};

DigitPattern parsePattern(std::string_view pattern)
{
    if (pattern == "Standard" || pattern == "standard")
        return {1, true, 2, 2, true, 0, ""};
    if (pattern == "Percent")
        return {1, true, 2, 2, false, 2, "%"};
    if (pattern.empty())
        throw std::invalid_argument("empty number format");
    DigitPattern p;
    for (char c : pattern) {
        if (c == '.') {
            if (p.point)
                throw std::invalid_argument("number format with two points");
            p.point = true;
        } else if (c == '0' || c == '#') {
            if (!p.point) {
                p.minInt += c == '0';
            } else {
                ++p.maxFrac;
                if (c == '0')
                    p.minFrac = p.maxFrac;
            }
        } else {
            throw std::invalid_argument("unsupported number format");
        }
    }
    return p;
}

std::string groupThousands(const std::string &digits)
{
    std::string out;
    for (size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0)
            out += ',';
        out += digits[i];
    }
    return out;
}

} // namespace

std::string formatNumber(double value, std::string_view pattern)
{
    const DigitPattern p = parsePattern(pattern);
    Decimal d = toDecimal(value);
    d.exponent += p.shift;
    const std::string scaled = scaledInteger(d, p.maxFrac);
    const bool zero = scaled == "0";

    const size_t fracLen = static_cast<size_t>(p.maxFrac);
    std::string intPart = scaled.size() > fracLen ? scaled.substr(0, scaled.size() - fracLen) : "";
    std::string frac = scaled.size() > fracLen ? scaled.substr(scaled.size() - fracLen)
                                               : std::string(fracLen - scaled.size(), '0') + scaled;
    if (intPart == "0")
        intPart.clear();
    if (intPart.size() < static_cast<size_t>(p.minInt))
        intPart.insert(0, static_cast<size_t>(p.minInt) - intPart.size(), '0');
    while (frac.size() > static_cast<size_t>(p.minFrac) && frac.back() == '0')
        frac.pop_back();

    std::string out;
    if (value < 0 && !zero)
        out += '-';
    out += p.grouping ? groupThousands(intPart) : intPart;
    if (p.point)
        out += '.';
    out += frac;
    out += p.suffix;
    return out;
}

std::string generalNumber(double value)
{
    const Decimal d = toDecimal(value);
    std::string digits = d.digits;
    size_t last = digits.find_last_not_of('0');
    if (last == std::string::npos)
        return "0";
    digits.resize(last + 1);

    std::string out = value < 0 ? "-" : "";
    if (d.exponent >= kSignificant || d.exponent < -4) {
        out += digits[0];
        if (digits.size() > 1) {
            out += '.';
            out += digits.substr(1);
        }
        out += d.exponent < 0 ? "E-" : "E+";
        std::string exp = std::to_string(std::abs(d.exponent));
        if (exp.size() < 2)
            exp.insert(0, "0");
        out += exp;
    } else if (d.exponent >= 0) {
        const size_t intLen = static_cast<size_t>(d.exponent) + 1;
        if (digits.size() <= intLen) {
            out += digits + std::string(intLen - digits.size(), '0');
        } else {
            out += digits.substr(0, intLen);
            out += '.';
            out += digits.substr(intLen);
        }
    } else {
        out += "0.";
        out += std::string(static_cast<size_t>(-d.exponent - 1), '0');
        out += digits;
    }
    return out;
}

} // namespace quilmar
