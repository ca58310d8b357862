#pragma once
// Computed courses for the fit tests, as the course conversion leaves them.

#include <cmath>

#include "leg_table.h"
#include "vb_math.h"

namespace quilmar::test {

/// A straight course: @p direction degrees from east, clockwise on the map; @p distance ground units.
inline Leg course(float direction, double distance, Tag tag = Tag::None)
{
    Leg leg;
    leg.direction = direction;
    leg.cosine = std::cos(double(direction) * kPi / 180.0);
    leg.sine = std::sin(double(direction) * kPi / 180.0);
    leg.distance = distance;
    leg.tag = tag;
    return leg;
}

} // namespace quilmar::test
