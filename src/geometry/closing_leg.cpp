#include "closing_leg.h"

#include <cmath>

#include "area.h"
#include "curves.h"
#include "vb_math.h"
#include "walk_marks.h"

namespace quilmar {

namespace {

Target legTarget(const WalkOptions &options) { return options.printing ? Target::Both : Target::Screen; }

// Chord direction from the pen to the point of beginning, degrees clockwise from
// east, by the quadrant in which the point of beginning lies.
double chordDirection(double dx, double dy)
{
    const double b = (dx == 0.0 || dy == 0.0) ? 0.0 : std::atan(std::fabs(dx) / std::fabs(dy)) * 180.0 / kPi;
    if (dy == 0.0)
        return dx < 0.0 ? 180.0 : 0.0;
    if (dy > 0.0) {
        if (dx == 0.0)
            return 90.0;
        return dx > 0.0 ? 90.0 - b : 90.0 + b;
    }
    if (dx == 0.0)
        return -90.0;
    return dx > 0.0 ? b - 90.0 : -90.0 - b;
}

void closeStraight(int label, int row, const WalkOptions &options, TraverseState &state, Figure &figure)
{
    const PointF start = state.closingStart;
    const float dx = sng(double(state.pob.x) - state.pen.x);
    const float dy = sng(double(state.pob.y) - state.pen.y);
    if (state.areaMode) {
        PointF areaPoint{sng(double(state.pob.x) - dx), sng(double(state.pob.y) - dy)};
        addShoelaceStep(areaPoint, state.areaSum, dx, dy);
        state.areaPoint = state.pob;
    }
    if (state.perimeterMode) {
        const double gx = double(state.pob.x) - start.x, gy = double(state.pob.y) - start.y;
        state.perimeterSum = dbl(state.perimeterSum + std::sqrt(gx * gx + gy * gy));
    }
    addReferenceLabel(figure, options, state.canvas, label, row, dx, dy);
    figure.items.push_back({FigLine{state.canvas, state.pob}, Palette::Blue, legTarget(options)});
    state.pen = state.pob;
    state.canvas = state.pob;
}

// The message of a curved close that failed, or nullptr when it succeeded.
const char *closeCurved(int label, int row, const WalkOptions &options, TraverseState &state, Figure &figure)
{
    const double dx = double(state.pob.x) - state.pen.x;
    const double dy = double(state.pob.y) - state.pen.y;
    const float chord = sng(std::sqrt(dx * dx + dy * dy));
    // The direction is held as a single, and so are its radians, which the
    // curve routines take.
    const ChordDirection direction = ChordDirection::of(sng(double(sng(chordDirection(dx, dy))) * kPi / 180.0));
    if (state.areaMode)
        addShoelaceStep(state.areaPoint, state.areaSum, sng(chord * direction.cosine), sng(chord * direction.sine));
    const bool right = state.closingSide == CurveSide::Right;
    Figure arc;
    CurveSink sink{&arc, legTarget(options), state.areaMode, state.perimeterMode, &state.areaSum, &state.perimeterSum};
    PointF pen = state.pen;
    if (traceCurve(right, pen, direction, state.closingRadius, chord, sink) == CurveOutcome::Fault)
        return right ? "Error int curve" : "Error in curve"; // deliberate: the right-hand text has always been so
    addReferenceLabel(figure, options, state.canvas, label, row, chord * direction.cosine, chord * direction.sine);
    figure.items.insert(figure.items.end(), arc.items.begin(), arc.items.end());
    state.pen = pen;
    state.canvas = pen;
    state.closingFlag = false;
    return nullptr;
}

} // namespace

void closingLeg(int label, int row, const WalkOptions &options, TraverseState &state, Figure &figure)
{
    state.closingStart = state.pen;
    const char *message = nullptr;
    try {
        if (state.closingRadius == 0.0f)
            closeStraight(label, row, options, state, figure);
        else
            message = closeCurved(label, row, options, state, figure);
    } catch (const VbError &) {
        message = "Error in closing leg.  Review radius, etc.";
    }
    if (message)
        addCannotClose(figure, state, message);
}

} // namespace quilmar
