#include "reciprocal_angle.h"

#include <utility>

#include "number_format.h"
#include "number_read.h"
#include "vb_integer.h"
#include "vb_math.h"

namespace quilmar {

namespace {

// Text before the first blank, and the text after it ("" when there is no blank).
std::pair<std::string_view, std::string_view> splitAtBlank(std::string_view text)
{
    const size_t blank = text.find(' ');
    if (blank == std::string_view::npos)
        return {text, {}};
    return {text.substr(0, blank), text.substr(blank + 1)};
}

} // namespace

std::string_view reciprocalTitle() { return "Reciprocal Angle"; }

std::string reciprocalPrompt()
{
    return "Enter angle (degrees, minutes, seconds) in the following format: dd mm ss.  Example 45 10 20";
}

CalcResult reciprocalAngle(std::string_view answer)
{
    const std::string_view text = trimBlanks(answer);
    if (text.empty())
        return {};
    const auto [degreesText, rest] = splitAtBlank(text);
    const auto [minutesText, secondsText] = splitAtBlank(rest);
    try {
        const double degrees = leadingNumber(degreesText);
        const double minutes = leadingNumber(minutesText);
        const double seconds = leadingNumber(secondsText);
        if (degrees > 90 || minutes > 60 || seconds > 60) {
            CalcResult r;
            r.messages.emplace_back("Incorrect Input");
            return r;
        }
        const float total = sng(degrees * 3600 + minutes * 60 + seconds);
        const double complement = 3.24e7 / 100 - total; // 90 degrees in seconds
        const int32_t wholeDegrees = intDiv(complement, 3600);
        const double remainder = complement - wholeDegrees * 3600.0;
        const int32_t wholeMinutes = intDiv(remainder, 60);
        const double restSeconds = remainder - wholeMinutes * 60.0;
        CalcResult r;
        r.acresbox = "Reciprocal of " + std::string(answer) + " = " + std::to_string(wholeDegrees) + "  " +
                     std::to_string(wholeMinutes) + "  " + generalNumber(restSeconds);
        return r;
    } catch (const VbError &) {
        return {};
    }
}

} // namespace quilmar
