#pragma once
// The readings of one call that typists and typesetters get wrong, as changes of
// its cells: N for S, E for W, degrees and minutes swapped, and for its length
// (the distance, or a curve's chord when only the chord is given) two adjacent
// digits swapped, a digit left out or typed twice, the decimal point one place
// off, and chains written as feet. Each change is named for the mistake it undoes.

#include <optional>
#include <string>
#include <vector>

#include "closure_report.h"
#include "course_reading.h"

namespace quilmar::analysis {

struct CellChange {
    int column = 0; ///< 1 to 10
    std::string text;
};

struct Misreading {
    BlunderKind kind = BlunderKind::NsFlip;
    CellChange first;
    std::optional<CellChange> second; ///< degrees and minutes change together
};

struct MisreadingOptions {
    bool lengths = true;    ///< false: only the bearing's readings
    int maxDecimals = 15;   ///< a changed length never has more significant decimals
    double chainLength = 66.0; ///< ground units in a chain; 0 leaves that reading out
};

/// The changes of one row (cells as typed, @p course as read) that read it
/// another way; none that leave its numbers as they are, none with a leading
/// zero. A length of more than 16 digits gets no length readings.
std::vector<Misreading> misreadings(const RowCells &cells, const CourseReading &course, const MisreadingOptions &options);

/// Decimal places written in the leading number of @p text; with
/// @p significant, trailing zeros do not count. 0 for no number.
int decimalPlaces(const std::string &text, bool significant);

/// The column holding a call's length: the distance, or a curve's chord when
/// only the chord is given.
int lengthColumn(const RowCells &cells, const CourseReading &course);

} // namespace quilmar::analysis
