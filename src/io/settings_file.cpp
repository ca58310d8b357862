#include "settings_file.h"

#include <INIReader.h>

#include <cmath>
#include <limits>

#include "number_format.h"
#include "number_read.h"
#include "vb_math.h"

namespace quilmar {

namespace {

double readNumber(const std::string &text)
{
    try {
        return leadingNumber(text);
    } catch (const VbError &) {
        return 0.0;
    }
}

// The parser joins repeated keys with line breaks; the profile call returns the first.
std::string firstValue(const INIReader &ini, const char *section, const char *key, const char *fallback)
{
    std::string v = ini.Get(section, key, fallback);
    if (const auto nl = v.find('\n'); nl != std::string::npos)
        v.erase(nl);
    return std::string(trimBlanks(v));
}

int16_t wholeNumber(double v)
{
    v = std::nearbyint(v); // half to even, as the classic conversion to a 16-bit integer
    if (!(v >= -32768.0 && v <= 32767.0))
        return 0;
    return int16_t(v);
}

// The classic Str$: a blank for the sign of a positive number, no zero before the point.
std::string classicStr(double v)
{
    std::string t;
    try {
        t = generalNumber(v);
    } catch (const VbError &) {
        return " 0";
    }
    const bool negative = !t.empty() && t[0] == '-';
    std::string digits = negative ? t.substr(1) : t;
    if (digits.rfind("0.", 0) == 0)
        digits.erase(0, 1);
    return (negative ? "-" : " ") + digits;
}

} // namespace

SettingsValues readSettings(const std::string &iniPath)
{
    SettingsValues s;
    const INIReader ini(iniPath);
    if (ini.ParseError() == -1)
        return s;
    std::string scales = firstValue(ini, "Setting", "Scales", "50;100;200;400;800;1500;2000;3000;4000");
    if (!scales.empty() && scales.back() == '\0')
        scales.pop_back();
    s.scales = scales;
    s.scaleMetric = float(readNumber(firstValue(ini, "Setting", "ScaleMetric", "576")));
    s.scaleEnglish = float(readNumber(firstValue(ini, "Setting", "ScaleEnglish", "1440")));
    const char *keys[] = {"ReferencePoints", "ReferenceList", "PropertyDescr", "Frames", "BalanceGap"};
    const char *defaults[] = {"1", "1", "1", "0", "0"};
    for (int i = 0; i < 5; ++i)
        s.printOptions[i] = wholeNumber(readNumber(firstValue(ini, "PrintOptions", keys[i], defaults[i])));
    return s;
}

std::vector<std::string> scaleItems(const std::string &scales)
{
    std::vector<std::string> items;
    std::string text = scales;
    while (!text.empty()) {
        items.push_back(classicStr(readNumber(text)));
        const auto semi = text.find(';');
        if (semi == std::string::npos)
            break;
        text.erase(0, semi + 1);
    }
    return items;
}

} // namespace quilmar
