#pragma once
// The "Reciprocal Angle" calculator of the Conversions menu: the complement of
// a bearing angle to 90 degrees, in degrees, minutes and seconds, so that a
// bearing measured from the other axis can be typed into the grid.

#include <string>
#include <string_view>

#include "calc_result.h"

namespace quilmar {

/// Input box title: "Reciprocal Angle".
std::string_view reciprocalTitle();

/// Input box prompt (one line, with the example "45 10 20").
std::string reciprocalPrompt();

/// Complements the typed angle "dd mm ss" (degrees, minutes, seconds) to 90
/// degrees.
///
/// The answer is trimmed of blanks (blank or empty: empty result), split at
/// its first blank into degrees and the rest, and the rest at its first blank
/// into minutes and seconds; each part is read by the leading-number rule, so
/// a missing part or one that is not a number counts as 0 ("45" is 45 0 0).
/// A double blank therefore leaves the minutes empty ("45  10 20" reads as
/// 45 0 10). Degrees over 90, minutes over 60 or seconds over 60 give the
/// message "Incorrect Input" (90, 60 and 60 themselves are accepted).
/// @returns `Acresbox` = "Reciprocal of " + the answer as typed + " = " + D +
///          "  " + M + "  " + S ("45 10 20" gives "... = 44  49  40"); seconds
///          keep their fraction in the general number form. A fault (an
///          angle beyond the 32-bit range of seconds) gives an empty result.
CalcResult reciprocalAngle(std::string_view answer);

} // namespace quilmar
