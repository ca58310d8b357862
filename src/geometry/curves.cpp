#include "curves.h"

#include <cmath>

#include "area.h"
#include "vb_math.h"

namespace quilmar {

float chordFromArc(float radius, float arc)
{
    // Only the inputs and the chord are singles: a single x would lose the
    // difference R^2 - x^2 of a flat curve (arc 50 on radius 5730 gave 50.07).
    const double halfAngle = fdiv(arc / 2.0, 2.0 * radius * kPi) * 360.0;
    const double x = std::cos(halfAngle * kPi / 180.0) * radius;
    return sng(2.0 * fsqrt(double(radius) * radius - x * x));
}

double arcFromChord(float radius, float chord)
{
    if (2.0 * radius == chord)
        radius = sng(radius + 0.01);
    const double half = chord / 2.0;
    const double h = fsqrt(double(radius) * radius - half * half);
    const double a = std::atan(fdiv(half, h)) * 180.0 / kPi;
    return dbl((2.0 * radius * kPi / 360.0) * a * 2.0);
}

double perimeterArc(float radius, float chord)
{
    const double half = chord / 2.0;
    double root = fsqrt(double(radius) * radius - half * half);
    if (root == 0.0)
        root = 0.000001;
    const double halfAngle = std::atan(half / root) * 180.0 / kPi;
    return dbl((2.0 * radius * kPi / 360.0) * halfAngle * 2.0);
}

namespace {

// Angle of a point seen from the centre, counter-clockwise as seen on the map,
// brought into 0 to a full turn by one addition.
double mapAngle(PointF centre, PointF p)
{
    double a = std::atan2(-(double(p.y) - centre.y), double(p.x) - centre.x);
    if (a < 0.0)
        a += kFullTurn;
    if (a >= kFullTurn)
        a -= kFullTurn;
    return a;
}

} // namespace

ChordDirection ChordDirection::of(double radians) { return {radians, std::cos(radians), std::sin(radians)}; }

CurveOutcome traceCurve(bool right, PointF &pen, const ChordDirection &direction, float radius, float chord,
                        const CurveSink &sink)
{
    try {
        // Deliberate: a radius of exactly half the chord is nudged; in single
        // precision this rarely changes the value, and the roots below rely on it.
        radius = sng(radius + 0.00000001);
        if (chord == 0.0f)
            return CurveOutcome::Traced;
        const PointF start = pen;
        const PointF end{sng(start.x + chord * direction.cosine), sng(start.y + chord * direction.sine)};
        // A chord longer than the diameter cannot be traced; said without a
        // thrown fault, since a close that cannot be made is common.
        const double rootOf = double(radius) * radius - double(chord) * chord / 4.0;
        if (rootOf < 0.0)
            return CurveOutcome::Fault;
        const double h = std::sqrt(rootOf);
        const double beta = std::atan(fdiv(h, chord / 2.0));
        const double toCentre = right ? direction.radians + beta : direction.radians - beta;
        const PointF centre{sng(start.x + radius * std::cos(toCentre)), sng(start.y + radius * std::sin(toCentre))};
        const double startAngle = mapAngle(centre, start);
        const double endAngle = mapAngle(centre, end);

        double segment = 0.0;
        if (sink.areaMode) {
            double f = (endAngle - startAngle) / kFullTurn;
            if (std::fabs(f) > 0.5)
                f = 1.0 - std::fabs(f);
            const double sector = std::fabs(f) * kPi * double(radius) * radius;
            segment = sector - h * chord / 2.0;
        }
        const double arc = sink.perimeterMode ? perimeterArc(radius, chord) : 0.0;

        if (sink.figure) {
            // A left-hand curve turns counter-clockwise on the map from start to end.
            FigArc shape{centre, std::fabs(radius), right ? endAngle : startAngle, right ? startAngle : endAngle};
            sink.figure->items.push_back({shape, Palette::Blue, sink.target});
        }
        if (sink.areaMode && sink.areaSum)
            *sink.areaSum = sng(*sink.areaSum + (right ? segment : -segment));
        if (sink.perimeterMode && sink.perimeterSum)
            *sink.perimeterSum = dbl(*sink.perimeterSum + arc);
        pen = end;
        return CurveOutcome::Traced;
    } catch (const VbError &) {
        return CurveOutcome::Fault;
    }
}

} // namespace quilmar
