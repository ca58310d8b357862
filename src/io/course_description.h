#pragma once
// The course descriptions: each row of the course table written out in words
// as a deed reads, for Copy Data to Clipboard and for the printed reference
// list. A straight course reads `N 45° 30' 15" E 100`; a curve adds ", ch " and
// the chord, ", r " and the radius and the L/R code (`, ch 141.42, r 100 R`);
// a new-lot row reads "New". A closing row ("C") is computed back to the point
// of beginning: when it carries no course of its own it reads " Back to pob",
// when it does, its course is followed by " Close". Cells are shown as typed
// (a number stored by a conversion in its general form); blanks around a cell
// are dropped.

#include <string>
#include <vector>

#include "cell.h"
#include "course_table.h"

namespace quilmar {

/// A cell as the listings show it: its text as typed, or a stored number in
/// its general form ("328.1").
std::string cellText(const Cell &cell);

/// Row @p row (0 to 201) in words; "" for an empty row. Out of range gives "".
std::string describeCourse(const CourseTable &table, int row);

/// The clipboard text: the descriptions of rows 0 to `highest` - 1, each that
/// is not empty followed by CR LF. An empty table gives "".
std::string courseDescriptionText(const CourseTable &table);

} // namespace quilmar
