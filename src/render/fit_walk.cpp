#include "fit_walk.h"

#include <algorithm>
#include <cmath>

#include "vb_math.h"

namespace quilmar {

float FitWalk::extentX() const
{
    const float e = sng(double(maxX) - minX);
    return e == 0.0f ? 1.0f : e;
}

float FitWalk::extentY() const
{
    const float e = sng(double(maxY) - minY);
    return e == 0.0f ? 1.0f : e;
}

void walkForFit(const LegTable &legs, TraverseState &state, FitWalk &walk, const std::function<void()> &afterRow)
{
    PointF &run = walk.run;
    for (const Leg &leg : legs) {
        // A curve of radius "0" is still a curve: the test adds 0.01.
        const double radius = leg.radiusTyped ? leg.radius + 0.01 : 0.0;
        const Tag tag = leg.tag;
        if (tag == Tag::NewLot)
            run = state.origin;
        if (radius == 0.0) {
            const double ix = leg.cosine * leg.distance, iy = leg.sine * leg.distance;
            run = {sng(run.x + ix), sng(run.y + iy)};
            if (ix != 0.0 || iy != 0.0)
                ++walk.straightLegs;
        } else {
            // Deliberate: the curve's chord is stepped by the angle's supplement
            // (with the 3.14159265 constant, not quite -cos and sin of the angle).
            const double a = double(leg.directionValue()) * kPi / 180.0;
            run = {sng(run.x - std::cos(kPi - a) * leg.chord), sng(run.y + std::sin(kPi - a) * leg.chord)};
        }
        walk.minX = std::min(walk.minX, run.x);
        walk.minY = std::min(walk.minY, run.y);
        walk.maxX = std::max(walk.maxX, run.x);
        walk.maxY = std::max(walk.maxY, run.y);
        walk.rowsDone = true;
        if (afterRow)
            afterRow();
        if (tag == Tag::Begin) {
            state.pob = run;
        } else if (tag == Tag::Origin) {
            state.origin = run;
            state.pob = run;
        } else if (tag == Tag::Close) {
            run = state.pob;
        }
    }
}

} // namespace quilmar
