#include "course_table.h"

namespace quilmar {

void CourseTable::erase()
{
    for (auto &row : m_cells)
        row.fill(Cell());
}

void CourseTable::gethighest()
{
    highest = kDefaultHighest;
    for (int row = kRows - 1; row >= 4; --row) {
        for (int col = 1; col <= kColumns; ++col) {
            if (!at(row, col).isEmpty()) {
                highest = static_cast<int16_t>(row + 1);
                return;
            }
        }
    }
}

} // namespace quilmar
