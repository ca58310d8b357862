#include "walk.h"

#include <cmath>

#include "area.h"
#include "closing_leg.h"
#include "curves.h"
#include "number_read.h"
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

    // Returns the curve routine's message when the walk has to stop.
    std::string row(const Leg &leg)
    {
        const float sf = m_options.scaleFactor;
        float r = sng(double(sf) * leg.radiusValue);
        const float d = sng(double(sf) * leg.distanceValue);
        const float c = sng(double(sf) * leg.chordValue);
        // Deliberate: a half circle is avoided by a nudge of the radius.
        if (r > 0.0f && c > 0.0f && 2.0 * r == c)
            r = sng(r + 0.00000001);

        const std::string_view tag = trimBlanks(leg.tag);
        if (tag == "C") {
            m_state.closingFlag = true;
            m_state.closingRadius = r;
            m_state.closingLR = leg.lr;
            closingLeg(leg.course, m_options, m_state, m_figure);
            return {};
        }

        const double a = double(leg.directionValue()) * kPi / 180.0;
        if (r == 0.0f) {
            straight(leg, a, d);
        } else {
            if (m_state.areaMode)
                addShoelaceStep(m_state.areaPoint, m_state.areaSum, sng(std::cos(a) * c), sng(std::sin(a) * c));
            addReferenceLabel(m_figure, m_options, m_state.canvas, leg.course, std::cos(a) * c, std::sin(a) * c);
            const bool right = trimBlanks(leg.lr) == "R";
            CurveSink sink{&m_figure, legTarget(), m_state.areaMode, m_state.perimeterMode, &m_state.areaSum,
                           &m_state.perimeterSum};
            std::string message = traceCurve(right, m_state.pen, a, r, c, sink);
            if (!message.empty())
                return message;
            m_state.canvas = m_state.pen;
        }
        afterCourse(tag);
        return {};
    }

private:
    Target legTarget() const { return m_options.printing ? Target::Both : Target::Screen; }

    void straight(const Leg &leg, double a, float d)
    {
        float dx = sng(std::cos(a) * d);
        float dy = sng(std::sin(a) * d);
        if (m_state.areaMode)
            addShoelaceStep(m_state.areaPoint, m_state.areaSum, dx, dy);
        if (m_state.perimeterMode)
            m_state.perimeterSum = dbl(m_state.perimeterSum + d);
        if (m_options.printing) {
            addReferenceLabel(m_figure, m_options, m_state.canvas, leg.course, dx, dy);
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

    void afterCourse(std::string_view tag)
    {
        if (tag == "N") {
            m_state.pen = m_state.origin;
            m_state.canvas = m_state.origin;
            m_state.closingStart = {};
        } else if (tag == "B") {
            m_state.pob = m_state.pen;
            m_state.areaPoint = m_state.pen;
            m_state.areaSum = 0.0f;
            m_state.perimeterSum = 0.0;
            m_figure.items.push_back({FigCircle{m_state.canvas, 30.0f}, Palette::Blue, legTarget()});
        } else if (tag == "O") {
            m_state.origin = m_state.pen;
        }
    }

    const WalkOptions &m_options;
    TraverseState &m_state;
    Figure &m_figure;
    int m_legCount = 0;
};

} // namespace

std::string walkCourses(const LegTable &legs, const WalkOptions &options, TraverseState &state, Figure &figure)
{
    state.closingFlag = false;
    state.areaPoint = {};
    state.areaSum = 0.0f;
    state.pob = {};
    Walker walker(options, state, figure);
    try {
        for (const Leg &leg : legs) {
            std::string message = walker.row(leg);
            if (!message.empty())
                return message;
        }
    } catch (const VbError &) {
        return "Error in drawing map (drawmap)";
    }
    return {};
}

} // namespace quilmar
