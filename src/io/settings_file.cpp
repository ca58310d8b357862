#include "settings_file.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <string_view>

#include "number_format.h"
#include "number_read.h"
#include "safe_file.h"
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

// The settings as parsed: the first value of each key (the profile call
// returns the first of repeated keys), under "section=key" in lower case.
using Profile = std::map<std::string, std::string>;

std::string profileKey(std::string_view section, std::string_view key)
{
    std::string k = std::string(section) + "=" + std::string(key);
    std::transform(k.begin(), k.end(), k.begin(), [](unsigned char c) { return char(std::tolower(c)); });
    return k;
}

// Blanks and TABs at both ends, as the profile call trims keys and values.
std::string_view trimSpace(std::string_view t)
{
    const auto first = t.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return {};
    return t.substr(first, t.find_last_not_of(" \t") - first + 1);
}

// The profile format: "[section]" lines and "key=value" lines, the value all
// the text after the first "=" (a ";" in it is part of the value, an indented
// line is a key like any other). Lines end at LF (a CR before it is dropped);
// a NUL ends the line it is in; lines before the first section, and lines
// that are neither, are passed over.
Profile parseProfile(std::string_view text)
{
    Profile profile;
    if (text.substr(0, 3) == "\xEF\xBB\xBF")
        text.remove_prefix(3); // a byte-order mark some editors put first
    std::string section;
    bool inSection = false;
    while (!text.empty()) {
        const auto lf = text.find('\n');
        std::string_view line = text.substr(0, lf);
        text.remove_prefix(lf == std::string_view::npos ? text.size() : lf + 1);
        line = line.substr(0, line.find('\0'));
        line = trimSpace(line.substr(0, line.find_last_not_of('\r') + 1));
        if (line.empty())
            continue;
        if (line.front() == '[') {
            const auto close = line.find(']');
            section = std::string(trimSpace(line.substr(1, close == std::string_view::npos ? close : close - 1)));
            inSection = true;
        } else if (const auto eq = line.find('='); eq != std::string_view::npos && inSection) {
            profile.emplace(profileKey(section, trimSpace(line.substr(0, eq))),
                            std::string(trimSpace(line.substr(eq + 1))));
        }
    }
    return profile;
}

std::string firstValue(const Profile &profile, const char *section, const char *key, const char *fallback)
{
    const auto it = profile.find(profileKey(section, key));
    return std::string(trimBlanks(it == profile.end() ? std::string(fallback) : it->second));
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
    std::string bytes;
    if (!readFileLimited(iniPath, kMaxSettingsFileBytes, bytes).ok)
        return SettingsValues{};
    return readSettingsText(bytes);
}

SettingsValues readSettingsText(std::string_view text)
{
    SettingsValues s;
    const Profile ini = parseProfile(text);
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
