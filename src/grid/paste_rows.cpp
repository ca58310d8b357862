#include "paste_rows.h"

#include <algorithm>
#include <string>

namespace quilmar {

namespace {

bool rowUsed(const CourseTable &table, int row)
{
    for (int c = ColNS; c <= ColTag; ++c)
        if (!table.at(row, c).isEmpty())
            return true;
    return false;
}

/// Last table row holding an entry, or -1.
int lastUsed(const CourseTable &table)
{
    for (int row = CourseTable::kRows - 1; row >= 0; --row)
        if (rowUsed(table, row))
            return row;
    return -1;
}

std::string rowsText(int first, int last)
{
    if (first == last)
        return "Row " + std::to_string(first + 1) + " already holds an entry. ";
    return "Rows " + std::to_string(first + 1) + " to " + std::to_string(last + 1) + " already hold entries. ";
}

std::string tooMany(int count, int at)
{
    const std::string rows = "The pasted text gives " + std::to_string(count) + " rows; ";
    if (at == 0)
        return rows + "the table holds only " + std::to_string(CourseTable::kRows) + ". Nothing was pasted.";
    return rows + "only " + std::to_string(CourseTable::kRows - at) + " fit from row " + std::to_string(at + 1) +
           " to the end of the table (" + std::to_string(CourseTable::kRows) + " rows). Nothing was pasted.";
}

} // namespace

int pasteTargetRow(const GridRules &rules)
{
    const int visible = rules.focused() ? rules.focused()->row : 0;
    return std::clamp(rules.scroll() + visible, 0, CourseTable::kRows - 1);
}

PasteOutcome pasteRows(CourseTable &table, Dialogs &dialogs, int at, const std::vector<PastedRow> &rows)
{
    PasteOutcome out;
    const int count = int(rows.size());
    if (count == 0 || at < 0 || at >= CourseTable::kRows)
        return out;
    if (count > CourseTable::kRows - at) {
        dialogs.message(tooMany(count, at), Icon::Exclamation);
        return out;
    }
    const int end = at + count; // one past the last row written
    int firstUsed = -1, lastUsedTarget = -1;
    for (int row = at; row < end; ++row) {
        if (rowUsed(table, row)) {
            if (firstUsed < 0)
                firstUsed = row;
            lastUsedTarget = row;
        }
    }
    if (firstUsed >= 0) {
        const Answer answer = dialogs.question(rowsText(firstUsed, lastUsedTarget) +
                                                   "Yes replaces them; No inserts the pasted rows before "
                                                   "them; Cancel pastes nothing.",
                                               Buttons::YesNoCancel, Icon::Question);
        if (answer == Answer::No) {
            const int last = lastUsed(table);
            if (last + count >= CourseTable::kRows) {
                dialogs.message("Inserting " + std::to_string(count) +
                                    " rows would push entries past the table's last row (row " +
                                    std::to_string(CourseTable::kRows) + "). Nothing was pasted.",
                                Icon::Exclamation);
                return out;
            }
            for (int row = last; row >= at; --row)
                for (int c = ColNS; c <= ColTag; ++c)
                    table.at(row + count, c) = table.at(row, c);
        } else if (answer != Answer::Yes) {
            return out;
        }
    }
    for (int i = 0; i < count; ++i)
        for (int c = ColNS; c <= ColTag; ++c)
            table.at(at + i, c) = Cell(rows[std::size_t(i)][std::size_t(c - 1)]);
    table.highest = int16_t(std::max<int>(table.highest, lastUsed(table) + 1));
    out.pasted = true;
    out.firstRow = at;
    out.count = count;
    return out;
}

} // namespace quilmar
