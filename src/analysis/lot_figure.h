#pragma once
// Cutting the rows read from the table into lots and finding each lot's figure:
// the calls from its point of beginning to its close, as the walk goes over them.
// Ground units; north and east from the table's first point.

#include <vector>

#include "course_reading.h"

namespace quilmar::analysis {

struct FigureRow {
    int row = 0;
    RowReading reading;
    double north = 0.0, east = 0.0; ///< the pen's movement along the row
    bool moves() const { return reading.course.length != 0.0; }
};

struct LotFigure {
    int firstRow = 0, lastRow = 0; ///< first and last row with any entry
    int lotEnd = 0;                ///< the lot's last row (its "N" row, or the last row read)
    bool endsWithNewLot = false;   ///< lotEnd carries "N"
    int pobRow = -1, closeRow = -1; ///< the "B" row in force (perhaps in an earlier lot), the "C" row
    double startNorth = 0.0, startEast = 0.0; ///< where the figure's first call starts
    /// The point of beginning: where the last "B" row put the pen, as the walk
    /// keeps it across "N" rows; the start itself when the lot has its own "B".
    double pobNorth = 0.0, pobEast = 0.0;
    std::vector<FigureRow> rows;   ///< every row of the figure in order, moving or not
    double gapNorth = 0.0, gapEast = 0.0; ///< the figure's end less the point of beginning
    double perimeter = 0.0;        ///< arcs of the measured calls, absolute
    int callCount() const;
};

/// The lots of @p rows (rows 0 to `highest` + 1 as read) that have a figure with
/// at least one course that moves.
std::vector<LotFigure> findLots(const std::vector<RowReading> &rows);

} // namespace quilmar::analysis
