#pragma once
// The second pass of the deed reader: one call ("thence N 45° 30' E 100 feet
// to a stake") read from its tokens. Finds the course's direction (quadrant
// bearing, azimuth, cardinal word), its length with units, and for a curve its
// radius, arc, chord, chord bearing, central angle and side; leaves out what
// is not part of the course (witness trees, record calls in parentheses,
// widths and marker sizes, areas, labels such as lot and page numbers,
// distances to features passed on the way). Says whether the call ends at the
// point of beginning. What cannot be read for certain becomes a problem in
// plain words, and then the call gives no course.

#include <optional>
#include <string>
#include <vector>

#include "tokenizer.h"

namespace quilmar::deedtext {

/// A length as the deed gives it.
struct Length {
    enum class Kind { Feet, Metres, Bare };
    double value = 0; ///< feet for Feet, metres for Metres, the number itself for Bare
    Kind kind = Kind::Bare;
    double mainFactor = 1; ///< feet per unit of the call's first unit (for a description's usual unit)
};

/// A direction in the course table's terms.
struct Direction {
    char ns = 0;   ///< 'N', 'S', or 'E'/'W' for due east or west
    char ew = 0;   ///< 'E', 'W', or 0 for due north/south/east/west
    bool hasAngle = false;
    int degrees = 0;
    int minutes = 0;
    double seconds = 0;
    /// Degrees clockwise from north, for working out a curve's side.
    double azimuth() const;
};

struct Call {
    Span span;
    std::optional<Direction> direction;
    bool curve = false;
    std::optional<Length> distance; ///< arc length for a curve
    std::optional<Length> chord;
    std::optional<Length> radius;
    char side = 0; ///< 'L' or 'R' for a curve
    bool closes = false;     ///< ends at the point (place) of beginning
    bool truePoint = false;  ///< ends at the "true point of beginning" of a commencement
    bool atCommencement = false; ///< ends at the "place of commencement": the figure began there
    bool continuing = false; ///< "continuing" on the previous course
    /// Radius and side told for the curve that the next call follows ("to the
    /// beginning of a curve to the right having a radius of 500 feet").
    std::optional<Length> nextRadius;
    char nextSide = 0;
    std::string nextConcave; ///< "northwesterly" of "concave northwesterly"
    /// Chord bearing, chord and arc told there too ("... and a chord which
    /// bears N 79°30' E 92.18 feet; thence along said curve 92.71 feet").
    std::optional<Direction> nextChordBearing;
    std::optional<Length> nextChord, nextArc;
    /// "the radius point of which bears N 80° W": the bearing toward the centre.
    std::optional<Direction> radial, nextRadial;
    std::vector<std::string> problems; ///< any problem: no course row
    std::vector<std::string> warnings; ///< the row stands, but is worth a look
    /// True when the call holds a direction or a length at all.
    bool holdsCourse() const { return direction || distance || radius || chord; }
};

/// What the call before tells this one.
struct CallContext {
    /// Azimuths of this description are measured from south ("measured
    /// clockwise from true South"), as some island surveys give them.
    bool azimuthFromSouth = false;
    /// The description gives its courses "by azimuths": an angle alone at the
    /// head of a call ("2. 180° 00' 200.00 feet") is an azimuth.
    bool azimuthDoc = false;
    std::optional<Direction> previous; ///< the last straight course's direction
    std::optional<Length> pendingRadius;
    char pendingSide = 0;
    std::string pendingConcave;
    std::optional<Direction> pendingChordBearing; ///< used where the curve's own call gives none
    std::optional<Direction> pendingRadial;       ///< the bearing toward the centre, told before
    /// Radius of the last curve, for "along said curve" without one of its own.
    std::optional<Length> lastCurveRadius;
    std::optional<Length> pendingChord, pendingArc; ///< used where the call gives neither arc nor chord
};

/// Reads the call in tokens [@p begin, @p end) of @p tokens.
Call readCall(const std::vector<Token> &tokens, std::size_t begin, std::size_t end, const CallContext &context);

/// Cuts a clause that holds several courses ("N 35 E 4.10 chains and N 10 E
/// 6.25 chains") into one token range per course. A curve's clause is not cut.
std::vector<std::pair<std::size_t, std::size_t>> splitCourses(const std::vector<Token> &tokens, std::size_t begin,
                                                               std::size_t end);

/// Whether the words at @p i say "beginning", "begin" or "commencing" as the
/// start of a clause ("BEGINNING at", "Commence at"), not as part of "point of
/// beginning" or "beginning of a curve". @p commence is set for "commencing".
bool isClauseStart(const std::vector<Token> &tokens, std::size_t i, bool &commence);

} // namespace quilmar::deedtext
