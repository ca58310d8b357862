#pragma once
// Numbers as the course table's cells hold them: at most four decimals, no
// thousands separators, no trailing zeros ("808.5", "2.7778", "0").

#include <cmath>
#include <cstdio>
#include <string>

namespace quilmar::deedtext {

inline std::string formatNumber(double v, int maxDecimals = 4)
{
    if (!std::isfinite(v))
        return "0";
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.*f", maxDecimals, v);
    std::string s(buf);
    if (s.find('.') != std::string::npos) {
        while (!s.empty() && s.back() == '0')
            s.pop_back();
        if (!s.empty() && s.back() == '.')
            s.pop_back();
    }
    if (s == "-0")
        s = "0";
    return s;
}

} // namespace quilmar::deedtext
