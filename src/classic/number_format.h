#pragma once
// The classic number formats the system writes into the result line, the grid
// and the map file: the named formats "Standard" and "Percent", digit patterns
// such as "##0.0###", and the general number form of a stored number. Output
// always uses "." as the decimal point and "," as the thousands separator,
// whatever the user's locale, so texts read back the same everywhere.

#include <string>
#include <string_view>

namespace quilmar {

/// Formats @p value with a classic format.
///
/// Patterns:
/// - "Standard" / "standard": thousands separators, exactly two decimals,
///   at least one integer digit (50000 -> "50,000.00", 0 -> "0.00").
/// - "Percent": value x 100, exactly two decimals, then "%", no thousands
///   separator (0.0005 -> "0.05%").
/// - a digit pattern of '0', '#' and at most one '.': before the point, the
///   number of '0's is the minimum count of integer digits ("###" prints 0 as
///   nothing, "##0" as "0"); after it, digits up to the last '0' are always
///   shown and '#' digits only when not zero ("##0.0###": 66 -> "66.0",
///   2.77777778 -> "2.7778"). A pattern with a point always prints the point
///   ("##.###": 0.5 -> ".5", 0 -> ".").
///
/// Rounding is half away from zero on the value's decimal digits taken to 15
/// significant digits, so 2.675 gives "2.68" in "0.00" although its binary
/// value is a little below 2.675. A negative value that rounds to zero prints
/// without its "-".
/// @throws std::invalid_argument for any other pattern
/// @throws VbError Overflow when @p value is infinite or NaN
std::string formatNumber(double value, std::string_view pattern);

/// The general number form of a stored number: at most 15 significant digits,
/// "." as the decimal point, no trailing zeros and no trailing point
/// (328.1 -> "328.1", 1 -> "1", 0.1 + 0.2 -> "0.3"). When the decimal exponent
/// of the rounded value is 15 or more, or below -4, the scientific form with a
/// signed exponent of at least two digits is used (1e15 -> "1E+15",
/// 1.5e16 -> "1.5E+16", 0.00001 -> "1E-05"); 0.0001 stays "0.0001".
/// @throws VbError Overflow when @p value is infinite or NaN
std::string generalNumber(double value);

} // namespace quilmar
