#include "engine.h"

#include <cmath>

#include "course_conversion.h"
#include "number_format.h"
#include "vb_math.h"
#include "walk.h"
#include "units.h"

namespace quilmar {

Engine::Engine(Prompter &prompter, const StartupSettings &settings) : m_prompter(prompter)
{
    m_scale.scaleEnglish = settings.scaleEnglish;
    m_scale.scaleMetric = settings.scaleMetric;
    m_printOptions = settings.printOptions;
    // A missing or non-English regional setting starts in metric mode, on purpose.
    metrix_Click(settings.englishMeasure ? Units::Feet : Units::Meters);
}

void Engine::setCanvasSize(float widthTwips, float heightTwips)
{
    m_canvasWidth = widthTwips;
    m_canvasHeight = heightTwips;
    m_draw.view.width = widthTwips;
    m_draw.view.height = heightTwips;
}

void Engine::metrix_Click(Units units)
{
    m_scale.units = units;
    m_metricFactor = unitFactor(units);
}

const DrawResult &Engine::mindraw(const DrawRequest &request)
{
    if (m_skipOnce) {
        m_skipOnce = false;
        return m_draw;
    }
    m_mapComputed = true;
    m_state.areaMode = request.areaMode;
    m_state.perimeterMode = request.perimeterMode;
    m_draw.error.reset();
    try {
        m_state.closingFlag = false;
        m_state.closingStart = {};
        convertCourses(m_table, m_legs, [this](const std::string &text) { showError(text); });

        FitResult fit = rescaling(m_legs, m_scale, m_canvasWidth, m_canvasHeight, request.printing, m_scaleFactor,
                                  m_state, m_shares);
        m_scaleFactor = fit.scaleFactor;
        if (fit.failed) {
            showError("Error in rescaling"); // the canvas keeps its scale origin
        } else {
            m_draw.view.scaleLeft = fit.scaleLeft;
            m_draw.view.scaleTop = fit.scaleTop;
        }

        m_state.origin = {};
        m_acresbox.clear();
        m_draw.figure.clear();
        m_state.canvas = {};
        m_state.pen = {};

        WalkOptions options;
        options.scaleFactor = m_scaleFactor;
        options.printing = request.printing;
        options.referencePoints = m_printOptions.referencePoints == 1;
        options.balanceGap = m_printOptions.balanceGap == 1;
        options.shares = m_shares;
        const WalkStop stop = walkCourses(m_legs, options, m_state, m_draw.figure);
        const char *message = walkStopMessage(stop);
        if (stop == WalkStop::None && !request.printing) {
            try {
                if (m_metricFactor == 0.0f)
                    m_metricFactor = 1.0f;
                m_autoScale = autoScaleNumber(m_scale, m_scaleFactor);
            } catch (const VbError &) {
                message = walkStopMessage(WalkStop::DrawFault);
            }
        }
        if (*message) {
            showError(message);
            m_draw.error = message;
        } else {
            markEnd();
        }
        buildAreaTexts();
    } catch (const VbError &e) {
        m_draw.error = std::to_string(e.number()) + ".  Error drawing map (mindraw)";
        showError(*m_draw.error);
    }
    m_draw.areaSum = m_state.areaSum;
    m_draw.perimeterSum = m_state.perimeterSum;
    return m_draw;
}

const DrawResult &Engine::redraw() { return mindraw({.perimeterMode = m_perimeterModeLeftOn}); }

void Engine::markEnd()
{
    const PointF at{m_state.pen.x - 36.0f, m_state.pen.y - 112.0f};
    m_draw.figure.items.push_back({FigText{at, 0, "x"}, Palette::Red, Target::Screen});
    m_state.canvas = m_state.pen;
}

void Engine::buildAreaTexts()
{
    const double squareUnits = fdiv(fdiv(std::fabs(double(m_state.areaSum)), m_scaleFactor), m_scaleFactor);
    m_imperialSquareUnits = squareUnits;
    m_metricSquareUnits = squareUnits;
}

std::string Engine::imperialText() const
{
    if (!m_imperialSquareUnits)
        return {};
    const double squareUnits = *m_imperialSquareUnits;
    return formatNumber(squareUnits / 43560.0, "Standard") + " acres [" + formatNumber(squareUnits, "standard") +
           " sq ft]";
}

std::string Engine::metricText() const
{
    if (!m_metricSquareUnits)
        return {};
    const double squareUnits = *m_metricSquareUnits;
    return formatNumber(squareUnits, "###") + " Square Meters [" + formatNumber(squareUnits / 10000.0, "Standard") +
           " Ha]";
}

} // namespace quilmar
