#pragma once
// Reading a number the user typed into an input box or an entry field, by the
// platform's type-conversion rule: the whole text, blanks at both ends aside,
// must be one number. Unlike the leading-number rule used for table cells,
// "12abc" is not 12 here but no number at all.

#include <optional>
#include <string_view>

namespace quilmar {

/// The value of @p text when all of it, spaces at both ends aside, is one
/// number: optional sign, digits with an optional "." fraction, optional
/// exponent ("E" or "D"). "." is the decimal point whatever the locale; no
/// thousands separators.
/// @returns std::nullopt for empty or blank text, letters, or a number followed
///          by anything else
/// @throws VbError Overflow when the number is beyond double range
std::optional<double> typedNumber(std::string_view text);

} // namespace quilmar
