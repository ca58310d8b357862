#pragma once
// Circular curves: the two completion formulas (chord from arc, arc from chord)
// that fill in what a deed leaves out, and the left-hand and right-hand tracing
// routines that the walk and the closing leg use to draw an arc over a chord.

#include <cstdint>

#include "figure.h"
#include "point.h"

namespace quilmar {

/// Chord of an arc of length @p arc on radius @p radius (ground units, single).
/// @throws VbError on a run-time fault (the caller reports "Error in chord calc")
float chordFromArc(float radius, float arc);

/// Arc length over chord @p chord on radius @p radius (ground units). A chord of
/// exactly twice the radius first widens the radius by 0.01.
/// @throws VbError Invalid procedure call when the radius is shorter than half the
///         chord (the caller reports "Error in calc of gap")
double arcFromChord(float radius, float chord);

/// Arc length from chord and radius as the perimeter counts it: never more than
/// half a circle, and a zero root counts as 0.000001 (drawing units).
double perimeterArc(float radius, float chord);

/// Where the tracing routines draw and what they add up.
struct CurveSink {
    Figure *figure = nullptr;   ///< receives the arc; nullptr draws nothing
    Target target = Target::Screen;
    bool areaMode = false;
    bool perimeterMode = false;
    float *areaSum = nullptr;     ///< single, drawing units squared
    double *perimeterSum = nullptr;
};

/// The chord's direction: radians clockwise from east as seen on the map, with
/// its cosine and sine (the walk computes them once per course).
struct ChordDirection {
    double radians = 0.0;
    double cosine = 1.0;
    double sine = 0.0;
    static ChordDirection of(double radians);
};

/// What tracing a curve came to.
enum class CurveOutcome : uint8_t {
    Traced, ///< drawn (or nothing to draw for a chord of 0); the pen is at the chord's end
    Fault,  ///< a run-time fault: the caller shows "Error in curve." and the pen stays
};

/// Traces the shorter arc over a chord from @p pen, bending left (@p right false)
/// or right, and moves @p pen to the chord's end.
/// @param radius, chord  drawing units; a chord of 0 traces nothing
CurveOutcome traceCurve(bool right, PointF &pen, const ChordDirection &direction, float radius, float chord,
                        const CurveSink &sink);

} // namespace quilmar
