#pragma once
// Spreading a figure's misclosure over its measured calls. The compass
// (Bowditch) rule corrects each call in proportion to its length (a curve's
// chord, the line the figure runs along); the transit
// rule corrects north parts in proportion to each call's north part and east
// parts in proportion to its east part. A curve is adjusted through its chord
// and keeps its radius; the adjusted area adds or takes away each curve's
// segment over the adjusted chord, on the side the curve bends.

#include "closure_report.h"
#include "lot_figure.h"

namespace quilmar::analysis {

enum class AdjustmentRule { Compass, Transit };

/// Adjusts the moving calls of @p lot so that its figure ends at its point of
/// beginning. A figure whose calls have no north (or east) extent cannot take a
/// north (east) correction by the transit rule; that part is left as it is.
Adjustment adjust(const LotFigure &lot, AdjustmentRule rule);

/// Area of a closed figure given by its corners and, per side, a curve's radius
/// (0 for straight) and side; square ground units, always positive.
double figureArea(const std::vector<double> &north, const std::vector<double> &east,
                  const std::vector<double> &radius, const std::vector<bool> &right);

} // namespace quilmar::analysis
