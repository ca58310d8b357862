// Edit > "Paste Deed Text...": the paste dialog, then its rows into the course
// table through the grid's paste rule, the grid refilled and the map redrawn.

#include <QApplication>
#include <QClipboard>

#include "entry_grid.h"
#include "paste_rows.h"
#include "plotter.h"

namespace quilmar {

void Plotter::mnuPasteDeed_Click()
{
    GridRules &rules = m_grid->rules();
    const int at = pasteTargetRow(rules);
    // The field being edited keeps its text in the field until it is left:
    // store it now (with the checks of leaving it), so that rows moved down
    // carry it and it is not lost when the grid is refilled.
    if (const auto focused = rules.focused()) {
        const GridOutcome left = rules.lostFocus(*focused);
        if (left.focus) {
            m_grid->apply(left);
            return;
        }
        rules.gotFocus(*focused); // still the field with the focus; no tag menu
    }
    const auto rows = m_dialogs.pasteDeedText(QApplication::clipboard()->text().toStdString());
    if (!rows)
        return;
    if (!pasteRows(m_engine.editTable(), m_dialogs, at, *rows).pasted)
        return;
    refreshVisibleRows();
    Toolbar_Click(0);
}

} // namespace quilmar
