#pragma once
// Reading numbers out of cells and settings by the leading-number rule: the
// longest numeric prefix after leading blanks counts, anything else is 0, and
// "." is the decimal point whatever the user's locale.

#include <string_view>

namespace quilmar {

/// Value of the numeric prefix of @p text: blanks first, then an optional sign,
/// digits with an optional "." and fraction, and an optional exponent
/// ("E" or "D", sign, digits). No number gives 0.
/// @throws VbError Overflow when the number is beyond double range
double leadingNumber(std::string_view text);

/// True when the whole of @p text, blanks at both ends aside, is one number.
bool isWholeNumber(std::string_view text);

/// Text with blanks (spaces only) removed at both ends.
std::string_view trimBlanks(std::string_view text);

} // namespace quilmar
