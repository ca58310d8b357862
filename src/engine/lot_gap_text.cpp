#include "lot_gap_text.h"

#include "number_read.h"

namespace quilmar {

std::string gapTextThrough(Engine &engine, int lastRow)
{
    const CourseTable saved = engine.table();
    CourseTable &table = engine.table();
    for (int r = lastRow + 1; r < CourseTable::kRows; ++r)
        for (int c = 1; c <= CourseTable::kColumns; ++c)
            table.at(r, c) = Cell();
    if (lastRow >= 0 && lastRow < CourseTable::kRows && trimBlanks(table.at(lastRow, ColTag).text()) == "N")
        table.at(lastRow, ColTag) = Cell();
    engine.mnuGap_Click();
    std::string text = engine.acresbox();
    table = saved;
    return text;
}

} // namespace quilmar
