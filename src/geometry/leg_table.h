#pragma once
// The courses as computed from the course table: one record a row, rebuilt by
// every computation (rows 0 to `highest` + 1). Distance, radius and chord keep
// the table's text unless the curve completion computed a number.

#include <optional>
#include <string>
#include <vector>

#include "cell.h"

namespace quilmar {

struct Leg {
    /// Direction in degrees from east, clockwise as seen on the map (north -90);
    /// for a curve the direction of its chord. Empty when the row is no course.
    std::optional<float> direction;
    Cell distance;   ///< arc length for a curve; ground units
    Cell radius;     ///< ground units
    std::string lr;  ///< "L", "R" or anything typed
    Cell chord;      ///< ground units
    std::string tag; ///< "B", "C", "N", "O" or anything typed
    int course = 0;  ///< course number shown on the map

    /// The numbers of distance, radius and chord, read once when the course is
    /// computed; the fit and the walk read these instead of the text.
    double distanceValue = 0.0;
    double radiusValue = 0.0;
    double chordValue = 0.0;

    float directionValue() const { return direction.value_or(0.0f); }
};

using LegTable = std::vector<Leg>;

} // namespace quilmar
