#pragma once
// The computation state that one traverse leaves behind for the next command:
// the pen, the point of beginning, the origin, the closing data and the sums.
// Points are singles in drawing units (twips), x east, y south.

#include <cstdint>

#include "leg_table.h"
#include "point.h"

namespace quilmar {

struct TraverseState {
    PointF pen;          ///< the traverse point the walk has reached
    PointF canvas;       ///< the canvas's own current drawing position
    PointF pob;          ///< point of beginning ("B")
    PointF origin;       ///< point of origin ("O"), where a new lot ("N") starts
    PointF closingStart; ///< where the closing leg began; (0, 0) = none
    PointF areaPoint;    ///< shoelace accumulator's previous point
    float areaSum = 0.0f;
    double perimeterSum = 0.0;
    float closingRadius = 0.0f;
    CurveSide closingSide = CurveSide::None;
    bool areaMode = false;
    bool perimeterMode = false;
    bool closingFlag = false; ///< set at a "C" row, cleared by a curved close that succeeded
};

/// The printout's balanced-gap shares (drawing units per straight leg) and the
/// number of straight legs they are spread over.
struct GapShares {
    float x = 0.0f;
    float y = 0.0f;
    int16_t legCount = 0;
};

} // namespace quilmar
