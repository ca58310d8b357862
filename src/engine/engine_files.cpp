// Opening and saving map files, and loading the demo samples.

#include "demo_samples.h"
#include "engine.h"
#include "map_file.h"

namespace quilmar {

OpenOutcome Engine::openMapFile(const std::string &path, const OpenOverrides &overrides)
{
    clearForOpen();
    return showMap(readMapFile(path), overrides);
}

OpenOutcome Engine::openMapBytes(std::string_view bytes, const OpenOverrides &overrides)
{
    clearForOpen();
    return showMap(readMapBytes(bytes), overrides);
}

void Engine::clearForOpen()
{
    m_description.clear();
    m_acresbox.clear();
    m_autoScale.reset();
    m_draw.figure.clear();
}

OpenOutcome Engine::showMap(MapReadResult read, const OpenOverrides &overrides)
{
    if (read.status == MapReadStatus::NotFound)
        showError(read.message);
    if (read.status != MapReadStatus::Ok)
        return {read.status, std::move(read.message)};

    storeRows(read.rows, m_table);
    if (read.reachedDescription) {
        TailSplit tail = splitTail(read.description);
        // A unit character other than 0, 1 or 2 (a damaged file) selects Feet,
        // as a file without its tail line does.
        Units unit = Units::Feet;
        if (tail.found && tail.unit)
            unit = unitsFromDigit(*tail.unit).value_or(Units::Feet);
        metrix_Click(overrides.units.value_or(unit));
        m_scale.scaleText = overrides.scaleText ? *overrides.scaleText : tail.scale;
        m_description = tail.description;
    } else {
        if (overrides.units)
            metrix_Click(*overrides.units);
        if (overrides.scaleText)
            m_scale.scaleText = *overrides.scaleText;
    }
    m_table.gethighest();
    redraw();
    return {MapReadStatus::Ok, {}};
}

void Engine::loadDemoSample(int n)
{
    const DemoSample &sample = demoSample(n);
    m_table.erase();
    m_acresbox.clear();
    m_autoScale.reset();
    m_draw.figure.clear();
    m_description = sample.note;
    loadDemoRows(sample, m_table);
    m_table.gethighest();
    redraw();
}

std::string Engine::mapFileBytes() const
{
    return quilmar::mapFileBytes(m_table, m_description, m_scale.units, m_scale.scaleText);
}

} // namespace quilmar
