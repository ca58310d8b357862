#pragma once
// Putting course rows read from a deed's text into the course table: where
// they go and what happens to the entries already there. The window shows the
// paste dialog, then calls `pasteRows`; the questions and messages go through
// Dialogs while it runs, because the answer decides what is written.
//
// Rows are table rows 0 to 201. In the messages they are counted from 1, as
// the grid's accessible names count them ("Row 1 NS").

#include <vector>

#include "course_table.h"
#include "dialogs.h"
#include "grid_rules.h"

namespace quilmar {

/// The table row pasted rows go to: the row of the focused field, else the top
/// visible row (the scroll value). 0 to 201.
int pasteTargetRow(const GridRules &rules);

/// What a paste did.
struct PasteOutcome {
    bool pasted = false; ///< false: cancelled, nothing fitted, or no rows; the table is unchanged
    int firstRow = 0;    ///< table row of the first pasted row
    int count = 0;       ///< rows written
};

/// Writes @p rows into @p table from table row @p at on (0 to 201; out of range
/// pastes nothing). When some of the rows it would write over hold entries, asks
/// (Yes/No/Cancel, question icon): Yes writes over them, No moves them and every
/// later row down to make room, Cancel pastes nothing. Rows that do not fit in
/// the table's 202 rows (or entries that moving down would push past row 201)
/// get a message and nothing is pasted. Afterwards `highest` covers the pasted
/// rows and every entry, so the next draw reaches them.
PasteOutcome pasteRows(CourseTable &table, Dialogs &dialogs, int at, const std::vector<PastedRow> &rows);

} // namespace quilmar
