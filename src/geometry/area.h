#pragma once
// The shoelace accumulation of the parcel's area, step by step along the walk.

#include "point.h"

namespace quilmar {

/// Moves the area point by (dx, dy) and adds the step's shoelace term
/// (x0*y1 - x1*y0) / 2 to the area sum, evaluated in the form
/// x1*y1/2 - dx*dy/2 - dx*(y1 - dy) - (x1 - dx)*(y1 - dy)/2 that the totals depend on.
/// All in drawing units; the area point and the sum are singles.
/// @throws VbError Overflow when a value leaves single range
void addShoelaceStep(PointF &areaPoint, float &areaSum, float dx, float dy);

} // namespace quilmar
