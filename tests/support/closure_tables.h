#pragma once
// A deed of two lots with one planted mistake each, for the closure report's
// tests: the same four-sided figure twice (it closes to the rounding of its
// calls), row 3 with N written for S, and after the "N" row 5, row 9 with E
// written for W. Both the engine and the window tests use it.

#include "table_builder.h"

namespace quilmar::test {

inline CourseTable twoBlunders()
{
    // Two rows a line: rows 0 and 1, 2 and 3, ...
    return makeTable({
        {"", "", "", "", "", "", "", "", "", "B"}, {"N", "14", "2", "10", "E", "618.47", "", "", "", ""},
        {"S", "80", "20", "23", "E", "476.76", "", "", "", ""}, {"N", "7", "35", "40", "W", "605.31", "", "", "", ""},
        {"N", "81", "34", "23", "W", "545.89", "", "", "", ""}, {"", "", "", "", "", "", "", "", "", "N"},
        {"", "", "", "", "", "", "", "", "", "B"}, {"N", "14", "2", "10", "E", "618.47", "", "", "", ""},
        {"S", "80", "20", "23", "E", "476.76", "", "", "", ""}, {"S", "7", "35", "40", "E", "605.31", "", "", "", ""},
        {"N", "81", "34", "23", "W", "545.89", "", "", "", ""},
    });
}

/// Every cell and `highest` alike.
inline bool sameTable(const CourseTable &a, const CourseTable &b)
{
    for (int r = 0; r < CourseTable::kRows; ++r)
        for (int c = 1; c <= CourseTable::kColumns; ++c)
            if (!(a.at(r, c) == b.at(r, c)))
                return false;
    return a.highest == b.highest;
}

} // namespace quilmar::test
