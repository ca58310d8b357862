#pragma once
// The walk over the courses: from the pen's start it steps along every straight
// course and curve, closes back to the point of beginning at a "C" row, starts a
// new lot at "N", and accumulates area and perimeter in their modes. It draws
// nothing itself: it returns the figure that a surface will paint.

#include "figure.h"
#include "leg_table.h"
#include "traverse_state.h"
#include "walk_options.h"

namespace quilmar {

/// Why a walk stopped before the last course.
enum class WalkStop : uint8_t {
    None,       ///< every course was walked
    CurveFault, ///< a curve could not be traced: "Error in curve."
    DrawFault,  ///< a run-time fault: "Error in drawing map (drawmap)"
};

/// The message box text of a stop; "" for None.
const char *walkStopMessage(WalkStop stop);

/// Walks all @p legs, updating @p state (pen, canvas, point of beginning, origin,
/// closing data, area and perimeter sums) and appending what is drawn to @p figure.
/// @returns why the walk stopped, or WalkStop::None
WalkStop walkCourses(const LegTable &legs, const WalkOptions &options, TraverseState &state, Figure &figure);

} // namespace quilmar
