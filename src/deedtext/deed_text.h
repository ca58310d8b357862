#pragma once
// Deed-text import: a legal description's text (metes and bounds, as a deed
// prints it, UTF-8) turned into rows of the ten-column course table, each row
// pointing back at the text it came from, plus the calls that could not be
// read safely. The reader never guesses: a call it cannot read for certain
// gives a flag and no row.
//
// Rows follow the course table's cells: N/S code, degrees, minutes, seconds,
// E/W code, distance, chord, radius, L/R code, tag. Distances are in feet
// (chains 66, links 0.66, poles/rods/perches 16.5, varas 2.7777778, metres
// 3.281, yards 3, inches 1/12), or in metres when the whole description is
// in metres. Tags: "B" after the tie calls of a commencement, "C" after the
// call that closes a figure, "N" between figures.

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quilmar::deedtext {

/// A piece of the source text: byte offsets [begin, end) into the UTF-8 text.
struct Span {
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// One course row: the ten cells as the grid would hold them (columns 1 to 10
/// at indices 0 to 9), and the span of the call it was read from.
struct DeedRow {
    std::array<std::string, 10> cells;
    Span span;
};

enum class Severity {
    Flag,    ///< the call gave no row (or only its "C"): the user must enter it
    Warning, ///< the row was written as the deed says, but deserves a look ("about 75 poles")
};

struct DeedFlag {
    Span span;          ///< the call (or clause) the reason is about
    std::string reason; ///< plain words: "no East/West letter", "unknown unit 'arpents'"
    Severity severity = Severity::Flag;
};

struct DeedImport {
    std::vector<DeedRow> rows;
    std::vector<DeedFlag> flags; ///< in text order
    /// True when every distance of the description is in metres: the rows are
    /// then in metres and the map file's unit is "Meters".
    bool metric = false;
    /// True when some flag has Severity::Flag.
    bool anyFlagged() const;
};

/// Reads @p text. Any bytes are accepted (a byte that is not UTF-8 is read as
/// its Windows-1252 character, so a text saved by an older Windows editor keeps
/// its degree signs and fractions); time and memory are linear in the text's length.
DeedImport parseDeedText(std::string_view text);

/// 1-based line and column (in characters) of byte offset @p offset in @p text.
/// Lines end at LF, CR LF or a lone CR.
struct LineColumn {
    std::size_t line = 1;
    std::size_t column = 1;
};
LineColumn lineColumnOf(std::string_view text, std::size_t offset);

/// The text of @p span with runs of blanks and line breaks made one space, cut
/// to about @p maxChars characters (with "..." when cut).
std::string quoteSpan(std::string_view text, Span span, std::size_t maxChars = 80);

} // namespace quilmar::deedtext
