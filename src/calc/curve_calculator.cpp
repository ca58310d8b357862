#include "curve_calculator.h"

#include <cmath>

#include "number_format.h"
#include "number_read.h"
#include "typed_number.h"
#include "vb_integer.h"
#include "vb_math.h"

namespace quilmar {

namespace {

const char *const kDegreeSign = "\xC2\xB0"; // character 176 of the ANSI code page, in UTF-8

CalcResult message(const char *text)
{
    CalcResult r;
    r.messages.emplace_back(text);
    return r;
}

CalcResult lengthResult(const char *label, double length)
{
    CalcResult r;
    r.clipboard = formatNumber(length, "##0.0###");
    r.acresbox = label + *r.clipboard;
    return r;
}

CalcResult giveMeArc(float chord, float radius)
{
    const float h = sng(chord / 2.0);
    double arc;
    if (h == radius) {
        arc = radius * kPi;
    } else if (h > radius) {
        return message("Chord cannot be longer than 2 x radius");
    } else {
        const double d = fsqrt(static_cast<double>(radius) * radius - static_cast<double>(h) * h);
        const float halfAngle = sng(std::atan(fdiv(h, d)) * 180 / kPi);
        const double circumference = 2.0 * radius * kPi;
        arc = dbl(circumference / 360 * halfAngle * 2);
    }
    return lengthResult("Arc Length  = ", arc);
}

CalcResult giveMeChord(float arc, float radius)
{
    // Compared in single precision, like the entered arc: an arc typed as
    // radius x pi must reach the half-circle branch.
    const float halfCircle = static_cast<float>(radius * kPi);
    double chord;
    if (arc > halfCircle) {
        return message("Arc length cannot be longer than radius x pi");
    } else if (arc == halfCircle) {
        chord = arc / kPi; // the radius, not the diameter: deliberate
    } else {
        const double circumference = 2.0 * radius * kPi;
        const float theta = sng(fdiv(360.0 * arc, circumference));
        const double t = theta / 2.0 * kPi / 180;
        chord = dbl(radius * std::sin(t) + radius * std::sin(t));
    }
    return lengthResult("Chord  = ", chord);
}

CalcResult giveMeAngle(float arc, float radius)
{
    const float circumference = sng(2.0 * radius * kPi);
    const float theta = sng(fdiv(arc * 360.0, circumference));
    const double degrees = std::floor(theta);
    const double seconds = (theta - degrees) * 3600;
    const int32_t minutes = intDiv(seconds, 60);
    // Not rounded: seconds just under a full minute may print as a small negative.
    const double restSeconds = seconds - minutes * 60.0;
    CalcResult r;
    r.acresbox = "Angle = " + generalNumber(degrees) + kDegreeSign + " " + std::to_string(minutes) + "' " +
                 formatNumber(restSeconds, "##.###") + "''";
    return r;
}

CalcResult chordAngleTangent(float chord, float radius)
{
    const double h = chord / 2.0;
    const double d = fsqrt(static_cast<double>(radius) * radius - h * h);
    const double x = 90 - (180 / kPi) * std::atan(fdiv(d, h));
    // Whole parts truncate: for a chord tiny beside its radius the short pi leaves
    // x a hair below 0, which must read 0 degrees, not -1 degree 59'.
    const double degrees = std::trunc(x);
    const double minutes = std::trunc((x - degrees) * 60);
    const double seconds = ((x - degrees) - minutes / 60) * 3600;
    CalcResult r;
    r.acresbox = "Angle (difference) = " + formatNumber(degrees, "0") + kDegreeSign + " " +
                 formatNumber(minutes, "0") + "' " + formatNumber(seconds, "0.00") + "''";
    return r;
}

const char *invalidEntry(CurveCalculator calculator)
{
    // The curve calculators' text, stray parenthesis and spelling included.
    return calculator == CurveCalculator::Arc || calculator == CurveCalculator::Chord ? "Invlid entry)"
                                                                                      : "Invalid entry";
}

} // namespace

std::string_view calculatorTitle(CurveCalculator calculator)
{
    switch (calculator) {
    case CurveCalculator::Arc: return "Give me Arc";
    case CurveCalculator::Chord: return "Give me Chord";
    case CurveCalculator::Angle:
    case CurveCalculator::Tangent: return "Conversion";
    }
    return "";
}

std::string calculatorPrompt(CurveCalculator calculator)
{
    switch (calculator) {
    case CurveCalculator::Arc:
        return "Enter chord and radius, separated by a space,\r\ne.g. 150.35 250.50.\r\n"
               "The result can be pasted from the clipboard.";
    case CurveCalculator::Chord:
        return "Enter arc length and radius, separated by a space,\r\ne.g. 1800.35 1200.50.\r\n"
               "The result can be pasted from the clipboard.";
    case CurveCalculator::Angle:
        return "Enter arc length and radius (separated by a space).\r\nFor Example 50  26.96";
    case CurveCalculator::Tangent:
        return "Enter chord length and radius (separated by a space). \r\nFor Example 50  75.50\r\n"
               "The result will be the difference between the chord angle and the tangent angle. ";
    }
    return "";
}

CalcResult runCurveCalculator(CurveCalculator calculator, std::string_view answer)
{
    const std::string_view text = trimBlanks(answer);
    if (text.empty())
        return {};
    const size_t blank = text.find(' ');
    if (blank == std::string_view::npos)
        return message(invalidEntry(calculator));
    try {
        const std::optional<double> first = typedNumber(text.substr(0, blank));
        const std::optional<double> second = typedNumber(text.substr(blank + 1));
        if (!first || !second)
            return message(invalidEntry(calculator));
        const float a = sng(*first);
        const float b = sng(*second);
        switch (calculator) {
        case CurveCalculator::Arc: return giveMeArc(a, b);
        case CurveCalculator::Chord: return giveMeChord(a, b);
        case CurveCalculator::Angle: return giveMeAngle(a, b);
        case CurveCalculator::Tangent: return chordAngleTangent(a, b);
        }
    } catch (const VbError &) {
        // Menu handlers pass faults over: the command ends with nothing changed.
    }
    return {};
}

} // namespace quilmar
