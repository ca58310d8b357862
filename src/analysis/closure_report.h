#pragma once
// The closure report: for each lot of a deed, how far its figure misses the
// point of beginning (the misclosure and the precision 1:N against the
// perimeter), the figure adjusted by the compass (Bowditch) and transit rules
// with the adjusted area and the change of each call, and the single changes of
// one call (the readings typists and typesetters get wrong) that would close it.
//
// Ground units of the file throughout (feet or metres), double precision;
// coordinates north and east from the table's first point (row 0 starts at
// 0, 0). Rows are the table's rows from 0. Pure standard C++: the window and
// the command line show the same value.
//
// Lots and figures: a lot runs from the row after an "N" row (or row 0) to the
// next "N" row (inclusive) or the table's end. Its figure runs from the row after
// its last "B" row before its close (or from its first row) to its first "C"
// row or its end, and closes on the point of beginning as the plotter's walk
// keeps it: where the last "B" row put the pen, in this lot or an earlier one
// (the table's first point when there is none). A "C"
// row's closing leg is no measured call: the gap is the one before it, as
// Calculate Gap reports it, and the adjustment spreads it over the measured
// calls. Curves take part through their chords; their radii are kept.

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "course_table.h"
#include "ground_units.h"

namespace quilmar::analysis {

/// A misclosure, or what is left of it after a change.
struct Gap {
    double distance = 0.0;
    /// Quadrant bearing from the figure's end back to its point of beginning,
    /// e.g. "N 12°30'15\" W" (whole seconds); "" when the figure closes exactly.
    std::string bearing;
    double north = 0.0; ///< the end's position less the beginning's: the error in latitude
    double east = 0.0;  ///< the error in departure
};

/// One measured call after an adjustment, and the corner at its end.
struct AdjustedCall {
    int row = 0;
    double north = 0.0, east = 0.0; ///< adjusted corner at the end of the call
    std::string bearing;            ///< adjusted bearing (a curve's chord), whole seconds
    double distance = 0.0;          ///< adjusted length (a curve's chord)
    /// Arc of a curve over the adjusted chord with its radius kept; the distance
    /// for a straight call; empty when the chord outgrew the circle.
    std::optional<double> arc;
    double bearingChange = 0.0;  ///< seconds of arc, positive turning clockwise
    double distanceChange = 0.0; ///< adjusted less original length
    bool curve = false;
};

struct Adjustment {
    std::vector<AdjustedCall> calls;
    double area = 0.0; ///< square ground units, curve segments included
};

/// The errors a suggestion undoes, named for the mistake that was made.
enum class BlunderKind {
    NsFlip,      ///< "N" typed for "S" or the reverse
    EwFlip,      ///< "E" for "W" or the reverse
    DegMinSwap,  ///< degrees and minutes exchanged
    Transpose,   ///< two adjacent digits of the distance exchanged
    DropDigit,   ///< a digit of the distance left out (the correction puts one in)
    DoubleDigit, ///< a digit of the distance typed twice (the correction takes one out)
    TimesTen,    ///< the distance ten times too large or too small
    ChainsFeet,  ///< a distance in chains written as feet (or metres): the correction multiplies by a chain
    Omitted,     ///< a whole call left out: the reversed gap, inserted before `row`
};

/// "ns-flip", "ew-flip", "deg-min-swap", "transpose", "drop-digit",
/// "double-digit", "times-ten", "chains-feet", "omitted".
std::string_view kindName(BlunderKind kind);

struct Suggestion {
    int row = 0; ///< the row corrected; for Omitted, the row the new call goes before
    BlunderKind kind = BlunderKind::NsFlip;
    std::array<std::string, CourseTable::kColumns> cells; ///< the corrected (or inserted) row, columns 1 to 10
    Gap gap;                          ///< the lot's gap after the change
    std::optional<double> precision;  ///< N of 1:N after the change; empty when it closes exactly
};

/// A row the plotter would stumble on, e.g. a curve whose radius cannot span its chord.
struct Note {
    int row = 0;
    std::string text; ///< English, without the row number
};

struct LotReport {
    int firstRow = 0, lastRow = 0; ///< first and last row with any entry in the lot
    int pobRow = -1;               ///< the "B" row in force (perhaps in an earlier lot), or -1
    int closeRow = -1;             ///< the "C" row, or -1
    double pobNorth = 0.0, pobEast = 0.0;
    /// Where the figure's first call starts: the point of beginning when the
    /// lot has its own "B" row (both adjustments start here too).
    double startNorth = 0.0, startEast = 0.0;
    Gap gap;
    double perimeter = 0.0;          ///< lengths of the measured calls, arcs for curves
    std::optional<double> precision; ///< N of 1:N; empty when the figure closes exactly
    std::string programGap;          ///< the plotter's own "Gap = ..." text for the lot
    Adjustment compass, transit;
    std::vector<Suggestion> suggestions; ///< best first, at most kMaxSuggestions
    std::vector<Note> notes;             ///< what the plotter would stumble on
};

struct ClosureReport {
    std::vector<LotReport> lots;
};

/// The precision classes commonly cited for boundary surveys. They are named so
/// that a user can compare; meeting one says nothing about any legal standard.
inline constexpr std::array<int, 4> kPrecisionClasses{5000, 10000, 15000, 20000};

/// Suggestions are sought for a lot whose gap is more than the rounding of its
/// calls can explain (half a unit in the last place written of every distance
/// and bearing, added up); only changes that at least halve the gap are listed.
inline constexpr int kMaxSuggestions = 5;

/// The plotter's gap text for the deed cut after @p lastRow (its "N" tag
/// ignored), as Calculate Gap shows it; supplied by whoever holds the program state.
using GapTextFn = std::function<std::string(int lastRow)>;

/// What the analysis cannot know from the table alone.
struct ClosureSettings {
    /// Ground units in a chain, for the reading "chains written as feet": 66 in
    /// a deed in feet, 66 / 3.281 in one in metres (the program's own metre);
    /// 0 leaves that reading out.
    double chainLength = groundUnitFactor(GroundUnit::Chains).feet;
};

/// Analyses every lot of @p table. Bad cells read as the plotter reads them
/// (leading-number rule); a lot with no course that moves is left out.
ClosureReport analyseClosure(const CourseTable &table, const GapTextFn &gapText = {},
                             const ClosureSettings &settings = {});

/// Makes the change @p s suggests: replaces the row's cells, or for Omitted
/// inserts the call before its row (rows below move down one; the table's last
/// row must be empty, as the analysis only suggests it then). Recomputes `highest`.
void applySuggestion(CourseTable &table, const Suggestion &s);

} // namespace quilmar::analysis
