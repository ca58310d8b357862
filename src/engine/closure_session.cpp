#include "closure_session.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "ground_units.h"
#include "lot_gap_text.h"

namespace quilmar {

namespace {

using namespace analysis;

// The plotter's gap text is worked out on a scratch engine: Calculate Gap on
// the window's own engine would replace its result line and map with one lot's,
// and its messages would pop up while the report is being built.
class SilentPrompter : public Prompter {
public:
    Answer ask(const std::string &, const std::string &, Buttons buttons, Icon) override
    {
        return buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
    }
};

} // namespace

ClosureSession::ClosureSession(Engine &engine, std::function<void()> tableChanged)
    : m_engine(engine), m_tableChanged(std::move(tableChanged))
{
    analyse();
}

void ClosureSession::analyse()
{
    SilentPrompter silent;
    const ScaleChoice &scale = m_engine.scaleChoice();
    StartupSettings startup;
    startup.scaleEnglish = scale.scaleEnglish;
    startup.scaleMetric = scale.scaleMetric;
    startup.printOptions = m_engine.printOptions();
    Engine scratch(silent, startup);
    scratch.metrix_Click(scale.units);
    scratch.setScaleText(scale.scaleText);
    const CanvasView view = m_engine.canvasView();
    if (view.width > 0.0f && view.height > 0.0f)
        scratch.setCanvasSize(view.width, view.height);
    scratch.editTable() = m_engine.table();

    ClosureSettings settings;
    if (scale.units == Units::Meters)
        settings.chainLength = groundUnitFactor(GroundUnit::Chains).feet / groundUnitFactor(GroundUnit::Meters).feet;
    // The gap text cuts the scratch table; the analysis reads the window's, which stays put.
    m_report = analyseClosure(
        m_engine.table(), [&scratch](int lastRow) { return gapTextThrough(scratch, lastRow); }, settings);
    std::erase_if(m_report.lots, [](const LotReport &lot) { return lot.compass.calls.size() < 2; });
}

bool ClosureSession::apply(std::size_t lot, std::size_t suggestion)
{
    if (lot >= m_report.lots.size() || suggestion >= m_report.lots[lot].suggestions.size())
        return false;
    const Suggestion s = m_report.lots[lot].suggestions[suggestion];
    m_undo.push_back(m_engine.table());
    applySuggestion(m_engine.editTable(), s);
    changed();
    return true;
}

bool ClosureSession::undo()
{
    if (m_undo.empty())
        return false;
    m_engine.editTable() = m_undo.back();
    m_undo.pop_back();
    changed();
    return true;
}

void ClosureSession::changed()
{
    if (m_tableChanged)
        m_tableChanged();
    else
        m_engine.redraw();
    analyse();
}

Outlines compassOutlines(const LotReport &lot)
{
    // The compass rule moved the corner at the end of call i by the gap times
    // the share of the calls up to it in the total length; adding that back
    // gives the corner as written.
    Outlines o;
    o.north = o.adjustedNorth = {lot.startNorth};
    o.east = o.adjustedEast = {lot.startEast};
    double total = 0.0;
    for (const AdjustedCall &c : lot.compass.calls)
        total += c.distance - c.distanceChange;
    double run = 0.0;
    for (const AdjustedCall &c : lot.compass.calls) {
        run += c.distance - c.distanceChange;
        const double share = total > 0.0 ? run / total : 0.0;
        o.adjustedNorth.push_back(c.north);
        o.adjustedEast.push_back(c.east);
        o.north.push_back(c.north + lot.gap.north * share);
        o.east.push_back(c.east + lot.gap.east * share);
    }
    return o;
}


} // namespace quilmar
