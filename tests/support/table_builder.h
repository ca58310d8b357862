#pragma once
// Builds course tables for tests from rows written as the user types them;
// shared by the test folders.

#include <array>
#include <initializer_list>
#include <string>

#include "course_table.h"

namespace quilmar::test {

/// One row: N/S, degrees, minutes, seconds, E/W, distance, chord, radius, L/R, tag.
using Row = std::array<const char *, 10>;

/// Rows of any ten texts (`Row`, or ten std::strings) in order from row 0.
template <class Rows> CourseTable makeTable(const Rows &rows)
{
    CourseTable t;
    int r = 0;
    for (const auto &row : rows) {
        for (int c = 0; c < 10; ++c)
            t.at(r, c + 1) = Cell(std::string(row[c]));
        ++r;
    }
    t.gethighest();
    return t;
}

inline CourseTable makeTable(std::initializer_list<Row> rows) { return makeTable<std::initializer_list<Row>>(rows); }

} // namespace quilmar::test
