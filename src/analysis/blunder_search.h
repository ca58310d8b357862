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

/// Ranked suggestions for @p lot of @p table (empty when it closes better than
/// kSearchBelowPrecision). The ranking is by the gap left; an omitted call
/// always closes, so it ranks as if it left a gap of perimeter / 20,000 at
/// least: a one-character slip that closes as well is the likelier reading.
std::vector<Suggestion> searchBlunders(const CourseTable &table, const LotFigure &lot, RowReader &reader);

} // namespace quilmar::analysis
