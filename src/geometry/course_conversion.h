#pragma once
// Turning the course table's rows into courses: quadrant bearings into
// directions, "E"/"W" cardinal rows, "+"/"-" turned courses, tangent courses and
// curves, course numbers, and the completion of a curve's chord or arc.

#include <functional>
#include <string>

#include "course_table.h"
#include "leg_table.h"

namespace quilmar {

/// Shows a message box (exclamation icon) during a computation.
using MessageFn = std::function<void(const std::string &)>;

/// Converts rows 0 to `highest` + 1 of @p table into courses, after capping
/// `highest` at 200 (the capped value is stored back into the table).
/// Directions are degrees from east, clockwise as seen on the map (north -90).
/// A failing curve completion shows "Error in chord calc" or "Error in calc of
/// gap" through @p message and stores 0.
/// @throws VbError for faults the caller reports as "N.  Error drawing map (mindraw)"
LegTable convertCourses(CourseTable &table, const MessageFn &message);

/// The same into @p legs, whose storage is reused from one computation to the next.
void convertCourses(CourseTable &table, LegTable &legs, const MessageFn &message);

} // namespace quilmar
