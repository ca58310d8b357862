#pragma once
// The closing leg that a row tagged "C" asks for: from the traverse's end back
// to the point of beginning, straight or as a curve of the row's radius.

#include "figure.h"
#include "traverse_state.h"
#include "walk_options.h"

namespace quilmar {

/// Closes from the pen point to the point of beginning with the closing radius
/// and curve side held in @p state (radius in drawing units; 0 closes straight).
/// Records the closing-leg start; on success the pen is at the point of
/// beginning and the closing flag is cleared. On failure nothing is drawn but
/// "CANNOT CLOSE." and one of "Error in curve", "Error int curve" or
/// "Error in closing leg.  Review radius, etc."; the walk goes on.
void closingLeg(int label, int row, const WalkOptions &options, TraverseState &state, Figure &figure);

} // namespace quilmar
