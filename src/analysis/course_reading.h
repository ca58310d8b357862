#pragma once
// The closure analysis's one door into the plotter's own conversion of rows to
// courses: every row is read by convertCourses, so a bearing, a "+"/"-" turn, a
// tangent course, a curve completed from its chord and a tag mean here exactly
// what they mean on the map. Nothing else in the analysis reads a LegTable.
//
// Ground units throughout (the file's feet or metres); directions in degrees
// from east, clockwise as seen on the map (north is -90), as the walk uses them.

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "course_table.h"
#include "leg_table.h"

namespace quilmar::analysis {

/// The ten cells of one row, columns 1 to 10 at indices 0 to 9.
using RowCells = std::array<Cell, CourseTable::kColumns>;

/// One row as the walk moves the pen along it.
struct CourseReading {
    /// Degrees from east, clockwise on the map; 0 when the row sets no
    /// direction, as the walk then also uses 0.
    double direction = 0.0;
    /// Cosine and sine of the direction, as the conversion computed them for the walk.
    double cosine = 1.0, sine = 0.0;
    /// What the pen moves: the distance of a straight course, the chord of a curve.
    double length = 0.0;
    /// Length along the ground: the distance, or a curve's arc as completed.
    double arc = 0.0;
    /// 0 for a straight course.
    double radius = 0.0;
    /// A curve bends right only for "R"; any other code is traced to the left.
    bool right = false;
    Tag tag = Tag::None;
    /// The running direction after the row (base of a following "+", "-" or
    /// tangent course), a single as the conversion keeps it.
    float runningAfter = 0.0f;

    bool curve() const { return radius != 0.0; }
    /// Movement toward north and east, as the walk moves the pen.
    double north() const;
    double east() const;
};

/// Converts single rows through convertCourses, after a course that left the
/// running direction at a given value. Holds one scratch table, so make one
/// reader per analysis and reuse it. A row whose curve cannot be completed
/// reads with chord (or arc) 0, as the conversion stores it; no message is shown.
class RowReader {
public:
    RowReader();
    ~RowReader();
    RowReader(const RowReader &) = delete;
    RowReader &operator=(const RowReader &) = delete;

    CourseReading read(const RowCells &cells, float runningBefore);

    /// Puts @p cells in place for readChanged, which reads them again and
    /// again with one or two cells changed (cheaper than read for each).
    void load(const RowCells &cells);
    /// Reads the loaded row with cell @p column (1 to 10) changed to @p cell,
    /// and @p column2 to @p cell2 when @p column2 is not 0; the loaded cells stay.
    CourseReading readChanged(float runningBefore, int column, const Cell &cell, int column2 = 0,
                              const Cell &cell2 = Cell());

private:
    CourseReading convert(float runningBefore);

    std::unique_ptr<CourseTable> m_scratch;
    LegTable m_legs;
    RowCells m_loaded;
};

/// A row of the table as read in order, with how it hangs on the course before it.
struct RowReading {
    CourseReading course;
    float runningBefore = 0.0f;
    bool directionFollows = false; ///< its direction turns with the previous course's
    bool runningFollows = false;   ///< the running direction it hands on does too
    bool hasContent = false;       ///< some cell is not empty
};

/// Reads rows 0 to `highest` + 1 (`highest` capped at 200, as the computation caps it).
std::vector<RowReading> readRows(const CourseTable &table, RowReader &reader);

/// The cells of row @p row.
RowCells rowCells(const CourseTable &table, int row);

/// A cell's text; a number cell (after a global conversion) by its shortest decimal form.
std::string cellText(const Cell &cell);

/// The number a text reads as by the leading-number rule; 0 when it overflows.
double textValue(const std::string &text);

/// The text without blanks at either end.
std::string trimmed(const std::string &text);

} // namespace quilmar::analysis
