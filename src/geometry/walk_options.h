#pragma once
// How one walk over the courses draws: the scale, the printout's options, and
// the printout's balanced-gap shares. Shared by the walk, the closing leg and
// the marks beside the courses.

#include "traverse_state.h"

namespace quilmar {

struct WalkOptions {
    float scaleFactor = 1.0f;     ///< drawing units (twips) per ground unit
    bool printing = false;        ///< the map printout is drawing: legs go to both devices
    bool referencePoints = false; ///< printout: course labels at legs longer than 240 twips
    bool balanceGap = false;      ///< printout: spread the closure over the straight legs
    GapShares shares;
};

/// Height of one printed text line on the canvas, in twips (8-point font).
inline constexpr float kTextLineTwips = 195.0f;

} // namespace quilmar
