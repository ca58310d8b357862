#pragma once
// The printed data: the course table as a fixed-pitch listing. Every row
// prints its ten cells at the same character columns as the heading line
// (NS at 1, Deg 5, Min 10, Sec 15, EW 20, Distance 23, Chord 35, Radius 47,
// L-R 59, Tag 64; 1-based). A cell is reached by tabbing to its column: when
// the line has already passed that column (a long cell before it), the cell
// goes to the same column of a new line. Empty cells are tabbed to as well.

#include <array>
#include <string>
#include <vector>

#include "course_table.h"

namespace quilmar {

/// 1-based character column of each of the ten cells.
inline constexpr std::array<int, 10> kDataColumns{1, 5, 10, 15, 20, 23, 35, 47, 59, 64};

/// The heading line: "NS", "Deg", "Min", "Sec", "EW", "Distance", "Chord",
/// "Radius", "L-R", "Tag" at their columns.
std::string dataHeadingLine();

/// The lines of row @p row (0 to 201): one line, more when a cell passes the
/// next column. Cells as typed (numbers in their general form).
std::vector<std::string> dataRowLines(const CourseTable &table, int row);

/// The whole listing: two empty lines, the property description wrapped by
/// words to @p lineChars characters (its own line breaks kept; a word longer
/// than a line is cut), an empty line, the heading, the rows 0 to `highest`
/// (at most 201) that hold anything (empty rows are left out), and "end".
/// @param lineChars  characters a printed line holds; below 1 counts as 1
std::vector<std::string> dataListingLines(const CourseTable &table, const std::string &description, int lineChars);

} // namespace quilmar
