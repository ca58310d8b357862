#pragma once
// One opening of the closure report on the window: the analysis of the course
// table the grid shows, and the changes the user makes from it. Applying a
// suggestion edits the engine's table (through editTable(), the grid's one
// entry) and keeps the table as it was before, so that the report's own Undo
// puts it back exactly, the last change first. The Edit menu's Undo is the
// field's undo and knows nothing of these changes.
//
// No Qt: the window shows what this holds, tests drive it without widgets.

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "closure_report.h"
#include "report_texts.h"
#include "engine.h"

namespace quilmar {

class ClosureSession {
public:
    /// Shown instead of the report when no lot has a course that moves.
    static constexpr const char *kNoLots =
        "There is nothing to analyse: the closure report needs a lot of at least two courses.";

    /// Analyses @p engine's table at once.
    /// @param tableChanged  runs after every apply and undo, once the table is
    ///                      changed and before the report is analysed again: the
    ///                      window refills the grid and redraws the map there.
    ///                      Empty: the engine redraws the map itself (redraw()).
    explicit ClosureSession(Engine &engine, std::function<void()> tableChanged = {});

    /// The lots of at least two measured calls: a single call is no figure,
    /// and its "misclosure" would be the call itself.
    const analysis::ClosureReport &report() const { return m_report; }
    /// True when the report has no lot to show (empty table, fewer than two calls).
    bool empty() const { return m_report.lots.empty(); }
    /// The units the table's distances are in (for the area texts).
    Units units() const { return m_engine.units(); }

    /// Makes suggestion @p suggestion of lot @p lot (both from 0, as in report())
    /// and analyses the table again. @returns false, changing nothing, when
    /// either is out of range.
    bool apply(std::size_t lot, std::size_t suggestion);
    /// Puts the table back as it was before the last apply not yet undone.
    /// @returns false when there is nothing to undo.
    bool undo();
    bool canUndo() const { return !m_undo.empty(); }

private:
    void changed();
    void analyse();

    Engine &m_engine;
    std::function<void()> m_tableChanged;
    std::vector<CourseTable> m_undo; ///< tables before each apply, the last at the back
    analysis::ClosureReport m_report;
};

/// A lot's figure as written and as the compass rule adjusts it, for the
/// report's small plot: corners north and east in ground units, both from the
/// figure's start; a curve by its chord. The written figure ends where the
/// calls end (the point of beginning plus the gap), the adjusted one on the
/// point of beginning.
struct Outlines {
    std::vector<double> north, east;                 ///< as written
    std::vector<double> adjustedNorth, adjustedEast; ///< after the compass rule
};
Outlines compassOutlines(const analysis::LotReport &lot);

} // namespace quilmar
