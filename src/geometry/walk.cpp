#include "walk.h"

#include <cmath>

#include "area.h"
#include "closing_leg.h"
#include "curves.h"
#include "vb_math.h"
#include "walk_marks.h"

namespace quilmar {

namespace {

class Walker {
public:
    Walker(const WalkOptions &options, TraverseState &state, Figure &figure)
        : m_options(options), m_state(state), m_figure(figure)
    {
    }

    // Walks one row; false when a curve could not be traced and the walk stops.
    bool row(const Leg &leg, int index)
    {
        const float sf = m_options.scaleFactor;
        float r = sng(double(sf) * leg.radius);
        const float d = sng(double(sf) * leg.distance);
        const float c = sng(double(sf) * leg.chord);
        // Deliberate: a half circle is avoided by a nudge of the radius.
        if (r > 0.0f && c > 0.0f && 2.0 * r == c)
            r = sng(r + 0.00000001);

        if (leg.tag == Tag::Close) {
            m_state.closingFlag = true;
            m_state.closingRadius = r;
            m_state.closingSide = leg.side;
            closingLeg(leg.course, index, m_options, m_state, m_figure);
            return true;
        }

        if (r == 0.0f) {
            straight(leg, index, d);
        } else {
            const double cx = leg.radiansCosine * c, cy = leg.radiansSine * c;
            if (m_state.areaMode)
                addShoelaceStep(m_state.areaPoint, m_state.areaSum, sng(cx), sng(cy));
            if (m_options.printing)
                addReferenceLabel(m_figure, m_options, m_state.canvas, leg.course, index, cx, cy);
            CurveSink sink{&m_figure, legTarget(), m_state.areaMode, m_state.perimeterMode, &m_state.areaSum,
                           &m_state.perimeterSum};
            // The curve routines take the direction in radians as a single.
            const ChordDirection direction{double(leg.radians), leg.radiansCosine, leg.radiansSine};
            if (traceCurve(leg.side == CurveSide::Right, m_state.pen, direction, r, c, sink) == CurveOutcome::Fault)
                return false;
            m_state.canvas = m_state.pen;
        }
        afterCourse(leg.tag);
        return true;
    }

private:
    Target legTarget() const { return m_options.printing ? Target::Both : Target::Screen; }

    void straight(const Leg &leg, int index, float d)
    {
        float dx = sng(leg.radiansCosine * d);
        float dy = sng(leg.radiansSine * d);
        if (m_state.areaMode)
            addShoelaceStep(m_state.areaPoint, m_state.areaSum, dx, dy);
        if (m_state.perimeterMode)
            m_state.perimeterSum = dbl(m_state.perimeterSum + d);
        if (m_options.printing) {
            addReferenceLabel(m_figure, m_options, m_state.canvas, leg.course, index, dx, dy);
            if (m_options.balanceGap) {
                // The misclosure is spread equally over the straight legs.
                ++m_legCount;
                if (m_legCount <= m_options.shares.legCount) {
                    dx = sng(double(dx) - m_options.shares.x);
                    dy = sng(double(dy) - m_options.shares.y);
                }
            }
        }
        m_state.pen = {sng(double(m_state.pen.x) + dx), sng(double(m_state.pen.y) + dy)};
        const PointF to{sng(double(m_state.canvas.x) + dx), sng(double(m_state.canvas.y) + dy)};
        m_figure.items.push_back({FigLine{m_state.canvas, to}, Palette::Blue, legTarget()});
        m_state.canvas = to;
    }

    void afterCourse(Tag tag)
    {
        if (tag == Tag::NewLot) {
            m_state.pen = m_state.origin;
            m_state.canvas = m_state.origin;
            m_state.closingStart = {};
        } else if (tag == Tag::Begin) {
            m_state.pob = m_state.pen;
            m_state.areaPoint = m_state.pen;
            m_state.areaSum = 0.0f;
            m_state.perimeterSum = 0.0;
            m_figure.items.push_back({FigCircle{m_state.canvas, 30.0f}, Palette::Blue, legTarget()});
        } else if (tag == Tag::Origin) {
            m_state.origin = m_state.pen;
        }
    }

    const WalkOptions &m_options;
    TraverseState &m_state;
    Figure &m_figure;
    int m_legCount = 0;
};

} // namespace

const char *walkStopMessage(WalkStop stop)
{
    switch (stop) {
    case WalkStop::None: return "";
    case WalkStop::CurveFault: return "Error in curve.";
    case WalkStop::DrawFault: return "Error in drawing map (drawmap)";
    }
    return "";
}

WalkStop walkCourses(const LegTable &legs, const WalkOptions &options, TraverseState &state, Figure &figure)
{
    state.closingFlag = false;
    state.areaPoint = {};
    state.areaSum = 0.0f;
    state.pob = {};
    Walker walker(options, state, figure);
    try {
        for (size_t i = 0; i < legs.size(); ++i)
            if (!walker.row(legs[i], int(i)))
                return WalkStop::CurveFault;
    } catch (const VbError &) {
        return WalkStop::DrawFault;
    }
    return WalkStop::None;
}

} // namespace quilmar
