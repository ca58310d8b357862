#include "report_texts.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace quilmar {

using analysis::BlunderKind;

std::string groupedNumber(double v, int decimals)
{
    char buf[64];
    auto [end, ec] = std::to_chars(buf, buf + sizeof buf, std::fabs(v), std::chars_format::fixed, decimals);
    const std::string digits(buf, ec == std::errc() ? end : buf);
    const size_t point = std::min(digits.find('.'), digits.size());
    std::string s;
    if (v < 0.0 && digits.find_first_not_of("0.") != std::string::npos)
        s.push_back('-');
    for (size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && i < point && (point - i) % 3 == 0)
            s.push_back(',');
        s.push_back(digits[i]);
    }
    return s;
}

std::string areaText(double area, Units units)
{
    switch (units) {
    case Units::Feet: return groupedNumber(area, 2) + " sq ft (" + groupedNumber(area / 43560.0, 4) + " acres)";
    case Units::Meters: return groupedNumber(area, 2) + " sq m (" + groupedNumber(area / 10000.0, 4) + " ha)";
    default: return groupedNumber(area, 2) + " square units";
    }
}

std::string precisionText(const std::optional<double> &precision)
{
    return precision ? "1:" + groupedNumber(std::floor(*precision), 0) : "exact";
}

std::string kindWords(BlunderKind kind)
{
    switch (kind) {
    case BlunderKind::NsFlip: return "N and S exchanged";
    case BlunderKind::EwFlip: return "E and W exchanged";
    case BlunderKind::DegMinSwap: return "degrees and minutes exchanged";
    case BlunderKind::Transpose: return "two digits of the distance exchanged";
    case BlunderKind::DropDigit: return "a digit of the distance left out";
    case BlunderKind::DoubleDigit: return "a digit of the distance typed twice";
    case BlunderKind::TimesTen: return "distance ten times too large or too small";
    case BlunderKind::ChainsFeet: return "a distance in chains written as feet or metres";
    case BlunderKind::Omitted: return "a whole call left out";
    }
    return std::string(kindName(kind));
}

std::string signedNumber(double v, int decimals)
{
    const std::string s = groupedNumber(v, decimals);
    return s[0] == '-' ? s : "+" + s;
}

std::string callText(const std::array<std::string, 10> &cells)
{
    std::string s;
    for (const std::string &c : cells) {
        if (c.empty())
            continue;
        if (!s.empty())
            s += ' ';
        s += c;
    }
    return s;
}

} // namespace quilmar
