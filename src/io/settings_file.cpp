#include "settings_file.h"

#include <ini.h>

#include <algorithm>
#include <cmath>
#include <cstring>
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

int keepFirst(void *user, const char *section, const char *name, const char *value)
{
    if (name)
        static_cast<Profile *>(user)->emplace(profileKey(section, name), value ? value : "");
    return 1;
}

// Hands the parser the text line by line exactly as it reads a file (the C
// library's line reader): at most num - 1 bytes, up to and with a line feed,
// NUL bytes passed on as they are.
struct TextStream {
    std::string_view rest;
};

char *nextLine(char *str, int num, void *stream)
{
    auto &text = static_cast<TextStream *>(stream)->rest;
    if (text.empty() || num < 2)
        return nullptr;
    std::size_t n = std::min(text.size(), std::size_t(num - 1));
    if (const auto lf = text.substr(0, n).find('\n'); lf != std::string_view::npos)
        n = lf + 1;
    std::memcpy(str, text.data(), n);
    str[n] = '\0';
    text.remove_prefix(n);
    return str;
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
    Profile ini;
    TextStream stream{text};
    ini_parse_stream(nextLine, &stream, keepFirst, &ini); // a line it cannot parse is passed over
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
