#pragma once
// The walk both fits take over the computed courses (the main canvas's and the
// zoom window's): it follows the pen as the drawing will, without drawing, and
// keeps the extents it reaches. A curve steps along its chord only.

#include <functional>

#include "leg_table.h"
#include "traverse_state.h"
#include "vb_math.h"

namespace quilmar {

/// What the walk has reached, in ground units from the start at (0, 0); y
/// grows south. Left as reached when a fault ends the walk.
struct FitWalk {
    PointF run;                            ///< the pen after the last row walked
    float minX = 0, minY = 0, maxX = 0, maxY = 0;
    int straightLegs = 0;                  ///< straight legs that moved the pen
    bool rowsDone = false;                 ///< at least one row's point was reached

    /// The extent across (or down); a zero extent counts as 1.
    float extentX() const;
    float extentY() const;
};

/// Walks @p legs into @p walk. Reads and writes the point of beginning and the
/// origin of @p state (ground units; a later walk resets them): "B" sets the
/// beginning, "O" both, "C" returns the pen to the beginning and "N" to the
/// origin.
/// @param afterRow  when given, run after each row's point has widened the
///                  extents and before the row's tag; a fault it throws ends the
///                  walk there, as a step's fault does
/// @throws VbError Overflow for a step beyond single range, with @p walk as reached
void walkForFit(const LegTable &legs, TraverseState &state, FitWalk &walk,
                const std::function<void()> &afterRow = {});

} // namespace quilmar
