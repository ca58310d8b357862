#pragma once
// The six built-in demonstration deeds that a new user can load from the Help
// menu: each is a note for the property description and a short course list,
// typed as text exactly as a user would type it into the entry grid.

#include <array>
#include <string>
#include <vector>

#include "course_table.h"

namespace quilmar {

/// One entry row of a sample: the ten fields as typed, cells[0] = column 1
/// (N/S code) to cells[9] = column 10 (tag); unused fields are empty.
struct DemoRow {
    std::array<std::string, CourseTable::kColumns> cells;
};

struct DemoSample {
    std::string note;          ///< text for the property description
    std::vector<DemoRow> rows; ///< entry rows 0 upward
};

/// Demo sample @p n, 1 to 6.
/// @throws std::out_of_range for any other @p n
const DemoSample &demoSample(int n);

/// Replaces the whole table by the sample: every cell is erased first, so no
/// trace of a longer table remains; the sample's rows go into rows 0 upward and
/// `highest` is recomputed (gethighest).
void loadDemoRows(const DemoSample &sample, CourseTable &table);

} // namespace quilmar
