#pragma once
// Quadrant bearings of vectors given by their north and east parts, as text and
// as the cells of a call. Angles use the program's circle constant, so a call
// typed from these cells converts back to the same direction.

#include <string>

namespace quilmar::analysis {

/// "N 12°30'15\" W": letters, whole degrees, minutes and seconds (rounded to the
/// whole second, carried up to 90°00'00"). "" for the zero vector.
std::string bearingText(double north, double east);

/// The cells of a quadrant bearing: N/S code, degrees, minutes, seconds (to a
/// tenth of a second, no trailing zeros) and E/W code.
struct BearingCells {
    std::string ns, degrees, minutes, seconds, ew;
};
BearingCells bearingCells(double north, double east);

/// Azimuth in degrees, clockwise from north, 0 to 360; 0 for the zero vector.
double azimuth(double north, double east);

/// @p value with @p decimals decimals and no trailing zeros ("12.5", "120"); "." as the point.
std::string trimmedFixed(double value, int decimals);

} // namespace quilmar::analysis
