#pragma once
// The walk over the courses: from the pen's start it steps along every straight
// course and curve, closes back to the point of beginning at a "C" row, starts a
// new lot at "N", and accumulates area and perimeter in their modes. It draws
// nothing itself: it returns the figure that a surface will paint.

#include <string>

#include "figure.h"
#include "leg_table.h"
#include "traverse_state.h"

namespace quilmar {

struct WalkOptions {
    float scaleFactor = 1.0f;  ///< drawing units (twips) per ground unit
    bool printing = false;     ///< the map printout is drawing: legs go to both devices
    bool referencePoints = false; ///< printout: course labels at legs longer than 240 twips
    bool balanceGap = false;   ///< printout: spread the closure over the straight legs
    GapShares shares;
};

/// Walks all @p legs, updating @p state (pen, canvas, point of beginning, origin,
/// closing data, area and perimeter sums) and appending what is drawn to @p figure.
/// @returns "" on success; the curve routine's "Error in curve." or
///          "Error in drawing map (drawmap)" when the walk had to stop
std::string walkCourses(const LegTable &legs, const WalkOptions &options, TraverseState &state, Figure &figure);

/// Height of one printed text line on the canvas, in twips (8-point font).
inline constexpr float kTextLineTwips = 195.0f;

} // namespace quilmar
