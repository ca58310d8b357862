#pragma once
// The single-value converters of the Conversions menu: old deed units
// (chains, links, rods, perches, furlongs, varas, yards) to feet, and feet to
// and from metres. The window asks for the number with an input box titled
// converterTitle() and the converter's prompt, then applies the CalcResult.

#include <string>
#include <string_view>

#include "calc_result.h"

namespace quilmar {

/// One converter per menu entry. The second meters-to-feet procedure that
/// exists for callers other than the menu is MetersToFeet as well.
enum class UnitConverter {
    Chains,       ///< x * 66 feet; chains and links typed as one number (10 ch 5 lk = 10.05)
    Links,        ///< x * 66 / 100 feet
    Rods,         ///< x * 66 / 4 feet
    Perches,      ///< x * 16.5 feet
    Furlongs,     ///< x * 660 feet
    Varas,        ///< x / 0.36 feet
    Yards,        ///< x * 3 feet
    FeetToMeters, ///< x / 3.281 metres
    MetersToFeet, ///< x * 3.281 feet
};

/// Title of the input box of every converter: "Conversion".
std::string_view converterTitle();

/// Prompt of the converter's input box: its own line, CR LF, then
/// "The result can be pasted from the clipboard.".
std::string converterPrompt(UnitConverter converter);

/// Converts the typed @p answer (a plain number, "." decimal point).
/// @returns on success: the result formatted "##0.0###" on the clipboard, and
///          in `Acresbox` the answer exactly as typed + label + result + unit
///          ("10.05" gives "10.05 Chains = 663.3 feet"). An answer that is
///          empty or blank (Cancel), not wholly a number ("12abc", "abc"), or
///          whose result overflows gives an empty result: nothing changes and
///          no message is shown.
CalcResult runConverter(UnitConverter converter, std::string_view answer);

} // namespace quilmar
