#include "lot_gap_text.h"

#include "leg_table.h"

namespace quilmar {

std::string gapTextThrough(Engine &engine, int lastRow)
{
    // Calculate Gap works on the engine's own table: cut it for the one
    // command, then put it back as it was.
    const CourseTable saved = engine.table();
    CourseTable &table = engine.editTable();
    for (int r = lastRow + 1; r < CourseTable::kRows; ++r)
        for (int c = 1; c <= CourseTable::kColumns; ++c)
            table.at(r, c) = Cell();
    if (lastRow >= 0 && lastRow < CourseTable::kRows && readTag(table.at(lastRow, ColTag).text()) == Tag::NewLot)
        table.at(lastRow, ColTag) = Cell();
    engine.mnuGap_Click();
    std::string text = engine.acresbox();
    table = saved;
    return text;
}

} // namespace quilmar
