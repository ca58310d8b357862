#pragma once
// The curve calculators of the Conversions menu, which help the user fill in
// curve courses: the arc of a chord ("Give me Arc"), the chord of an arc
// ("Give me Chord"), the central angle of an arc ("Give me Angle") and the
// angle between a chord and the tangent at its end ("Chord Angle - Tangent").
// Each reads two numbers typed in one input box, separated by a blank.
//
// The two numbers are held in single precision and the intermediates named
// below are stored back into single precision, so results carry single-
// precision rounding on purpose; pi is 3.14159265. Lengths are in whatever
// ground unit the user types; angles are degrees, minutes and seconds.

#include <string>
#include <string_view>

#include "calc_result.h"

namespace quilmar {

enum class CurveCalculator {
    Arc,     ///< chord and radius -> arc length (result also on the clipboard)
    Chord,   ///< arc length and radius -> chord (result also on the clipboard)
    Angle,   ///< arc length and radius -> central angle in degrees, minutes, seconds
    Tangent, ///< chord and radius -> chord angle minus tangent angle (half the central angle)
};

/// Input box title: "Give me Arc", "Give me Chord", or "Conversion" for the other two.
std::string_view calculatorTitle(CurveCalculator calculator);

/// Input box prompt, its lines joined by CR LF.
std::string calculatorPrompt(CurveCalculator calculator);

/// Runs the calculator on the typed @p answer.
///
/// The answer is trimmed of blanks; empty (Cancel) gives an empty result. The
/// first number is the text before the first blank, the second all the text
/// after it (extra blanks around it are fine: "50  26.96"). No blank, or a
/// part that is not wholly a number, gives the calculator's invalid-entry
/// message ("Invlid entry)" for arc and chord, "Invalid entry" otherwise).
///
/// - Arc: "Arc Length  = " + arc formatted "##0.0###"; a chord longer than
///   twice the radius gives "Chord cannot be longer than 2 x radius".
/// - Chord: "Chord  = " + chord formatted "##0.0###"; an arc longer than
///   radius x pi gives "Arc length cannot be longer than radius x pi". An arc
///   equal to radius x pi (compared in single precision) gives the radius,
///   deliberately: users of the half-circle case know that result.
/// - Angle: "Angle = " + degrees + "°" + " " + minutes + "' " + seconds
///   formatted "##.###" + "''".
/// - Tangent: "Angle (difference) = " + degrees + "°" + " " + minutes + "' " +
///   seconds formatted "0.00" + "''".
///
/// An arithmetic fault (a zero radius or chord where it divides, a chord too
/// long for the tangent calculator, a number beyond single range) gives an
/// empty result: the command ends with nothing changed and no message.
CalcResult runCurveCalculator(CurveCalculator calculator, std::string_view answer);

} // namespace quilmar
