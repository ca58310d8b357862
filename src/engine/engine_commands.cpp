// The result-line commands: gap, perimeter, acres and hectares.

#include <cmath>

#include "engine.h"
#include "number_format.h"
#include "vb_math.h"

namespace quilmar {

namespace {

// Whole degrees, minutes and (when not 0) seconds of an angle, with the degree sign.
std::string gapAngleText(double a)
{
    long degrees = long(std::floor(a));
    const double t = roundEven((a - double(degrees)) * 3600.0);
    long minutes = long(t) / 60;
    long seconds = long(t) % 60;
    if (seconds == 60) {
        ++minutes;
        seconds = 0;
    }
    if (minutes == 60) {
        ++degrees;
        minutes = 0;
    }
    std::string text = std::to_string(degrees) + "\u00b0" + " " + std::to_string(minutes) + "'";
    if (seconds != 0)
        text += " " + std::to_string(seconds) + "''";
    return text;
}

} // namespace

void Engine::mnuGap_Click()
{
    try {
        m_state.perimeterSum = 0.0;
        m_perimeterModeLeftOn = true;
        mindraw({.perimeterMode = true});
        const double perimeter = fdiv(m_state.perimeterSum, m_scaleFactor);
        const PointF from = (m_state.closingStart.x != 0.0f || m_state.closingStart.y != 0.0f) ? m_state.closingStart
                                                                                                : m_state.pen;
        const double gx = double(from.x) - m_state.pob.x;
        const double gy = double(from.y) - m_state.pob.y;
        if (gx == 0.0 && gy == 0.0) {
            m_acresbox = "Gap = 0";
            return;
        }
        const double gap = fdiv(std::sqrt(gx * gx + gy * gy), m_scaleFactor);
        if (std::fabs(gx) < 0.1 && std::fabs(gy) < 0.1) {
            m_acresbox = "Gap = " + formatNumber(gap, "0.0##") + " (" + formatNumber(fdiv(gap, perimeter), "Percent") + ")";
            return;
        }
        // Deliberate: 0.001 is added to both differences to keep the division defined.
        const double a = std::fabs(std::atan(fdiv(gx + 0.001, gy + 0.001))) * 180.0 / kPi;
        const std::string ns = gy > 0.0 ? "N" : "S";
        const std::string ew = gx > 0.0 ? "W" : "E";
        m_acresbox = "Gap = " + formatNumber(gap, "standard") + ".  " + ns + " " + gapAngleText(a) + " " + ew + " (" +
                     formatNumber(fdiv(gap, perimeter), "Percent") + ")";
    } catch (const VbError &e) {
        showError(e.description());
    }
}

void Engine::mnuPeri_Click()
{
    try {
        m_state.perimeterSum = 0.0;
        m_perimeterModeLeftOn = true;
        mindraw({.perimeterMode = true});
        m_acresbox = "Perimeter = " + formatNumber(fdiv(m_state.perimeterSum, m_scaleFactor), "standard");
        m_perimeterModeLeftOn = false;
    } catch (const VbError &e) {
        showError(e.description());
    }
}

bool Engine::areaGapTooLarge(bool hectares)
{
    const double dx = double(m_state.canvas.x) - m_state.pob.x;
    const double dy = double(m_state.canvas.y) - m_state.pob.y;
    const double gap = fdiv(std::sqrt(dx * dx + dy * dy), m_scaleFactor);
    if (gap <= 1.0)
        return false;
    if (hectares)
        showError("Before you can calculate the hectares, please close the " + formatNumber(gap, "###") + "  gap.");
    else
        showError("Before you can calculate the acreage, please close the gap.  Click on Calc Gap button to see gap "
                  "information.");
    return true;
}

bool Engine::mnuAcres_Click()
{
    bool drew = false;
    try {
        if (areaGapTooLarge(false))
            return false;
        m_imperialSquareUnits.reset();
        mindraw({.areaMode = true, .perimeterMode = m_perimeterModeLeftOn});
        drew = true;
        m_acresbox = imperialText();
    } catch (const VbError &e) {
        showError(e.description());
    }
    return drew;
}

bool Engine::mnuHectares_Click()
{
    bool drew = false;
    try {
        if (areaGapTooLarge(true))
            return false;
        m_metricSquareUnits.reset();
        mindraw({.areaMode = true, .perimeterMode = m_perimeterModeLeftOn});
        drew = true;
        m_acresbox = metricText();
    } catch (const VbError &e) {
        showError(e.description());
    }
    return drew;
}

} // namespace quilmar
