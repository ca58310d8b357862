#pragma once
// Marks the walk leaves beside the courses: the course labels of the printout
// and the "CANNOT CLOSE." notice of a closing leg that failed.

#include <string>

#include "figure.h"
#include "traverse_state.h"
#include "walk_options.h"

namespace quilmar {

/// While printing, a step longer than 240 twips in either direction gets its
/// course label on the printer, left of the step's start by 100 twips for each
/// digit of the table row's number (@p row, from 0), not of the label, plus 80;
/// only when the reference-points option is on.
void addReferenceLabel(Figure &figure, const WalkOptions &options, PointF at, int label, int row, double dx,
                       double dy);

/// Marks a failed closing leg: an "x" at the pen point, then, with the canvas's
/// left edge moved to -360, "CANNOT CLOSE." at (0, 600) and @p message below it.
/// The canvas position ends under the second line, as printing text leaves it.
void addCannotClose(Figure &figure, TraverseState &state, const std::string &message);

} // namespace quilmar
