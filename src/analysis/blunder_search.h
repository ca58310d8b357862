#pragma once
// The search for the likely bad call: every single change of one call that
// typists and typesetters are known to make is tried, and the few that close the
// lot best are kept. A changed call is read through the plotter's conversion
// after the same running direction as the original, and the calls that turn
// with it ("+", "-" and tangent courses that follow) turn with it here too.

#include <vector>

#include "closure_report.h"
#include "course_reading.h"
#include "lot_figure.h"

namespace quilmar::analysis {

/// The lot's gap as the report shows it, from the end less the beginning.
Gap makeGap(double north, double east);

/// The most the lot's gap can be from the rounding of its calls alone: for each
/// call, half a unit in the last decimal place written of its length, plus its
/// length times half a unit of the last field of its bearing given (seconds,
/// else minutes, else degrees). Ground units.
double roundingBound(const CourseTable &table, const LotFigure &lot);

/// Ranked suggestions for @p lot of @p table; empty when its gap is within
/// roundingBound. The ranking is by the gap left, and a gap within the rounding
/// bound counts as closed. An omitted call always closes, so it ranks as if it
/// left the rounding bound: a one-character slip that closes as well is the
/// likelier reading; and it is only offered when the lot closes worse than the
/// loosest commonly cited ratio (1:5,000). A changed distance never gets more decimal places than the
/// lot's distances are written with. @p chainLength: ground units in a chain (0: no such reading).
std::vector<Suggestion> searchBlunders(const CourseTable &table, const LotFigure &lot, RowReader &reader,
                                       double chainLength);

} // namespace quilmar::analysis
