#pragma once
// The closure report's numbers and calls as text, shared by the report window
// and `quilmar closure`: thousands grouped with "," and "." as the point
// whatever the locale, so a report reads the same everywhere.

#include <array>
#include <optional>
#include <string>

#include "blunder_search.h"
#include "units.h"

namespace quilmar {

/// "1,234.56 sq ft (0.0283 acres)", "1,234.56 sq m (0.1235 ha)", or
/// "1,234.56 square units" for another unit option; @p area in square ground units.
std::string areaText(double area, Units units);

/// "1:12,345" (N rounded down, thousands grouped), or "exact" for a figure that closes.
std::string precisionText(const std::optional<double> &precision);

/// @p v with @p decimals fixed decimals and the thousands grouped by ",": "12,345.679".
std::string groupedNumber(double v, int decimals);

/// A suggestion's kind in plain words, e.g. "N and S exchanged".
std::string kindWords(analysis::BlunderKind kind);

/// @p v as groupedNumber with its sign always written: "+12.5", "-0.070".
std::string signedNumber(double v, int decimals);

/// The cells of a call that hold something, joined by blanks: "N 45 30 0 E 100".
std::string callText(const std::array<std::string, 10> &cells);

} // namespace quilmar
