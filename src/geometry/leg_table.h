#pragma once
// The courses as computed from the course table: one record a row, rebuilt by
// every computation (rows 0 to `highest` + 1). The table keeps what was typed;
// a Leg keeps what the fit and the walk need, read once: the numbers, the tag
// and the curve side as small enums, and the direction's cosine and sine.

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "number_read.h"

namespace quilmar {

/// The row's tag (column 10), trimmed of blanks: "B", "C", "N", "O"; anything
/// else typed there is no tag.
enum class Tag : uint8_t {
    None,
    Begin,  ///< "B": point of beginning
    Close,  ///< "C": close back to the point of beginning
    NewLot, ///< "N": a new lot starts at the point of origin
    Origin, ///< "O": point of origin
};

/// The curve's side (column 9), trimmed of blanks: "L" or "R"; anything else is None.
enum class CurveSide : uint8_t { None, Left, Right };

/// The tag a typed cell text stands for.
inline Tag readTag(std::string_view typed)
{
    const std::string_view t = typed.size() == 1 ? typed : trimBlanks(typed);
    if (t.size() != 1)
        return Tag::None;
    switch (t[0]) {
    case 'B': return Tag::Begin;
    case 'C': return Tag::Close;
    case 'N': return Tag::NewLot;
    case 'O': return Tag::Origin;
    default: return Tag::None;
    }
}

/// The curve side a typed cell text stands for.
inline CurveSide readCurveSide(std::string_view typed)
{
    const std::string_view t = typed.size() == 1 ? typed : trimBlanks(typed);
    return t == "L" ? CurveSide::Left : t == "R" ? CurveSide::Right : CurveSide::None;
}

struct Leg {
    /// Direction in degrees from east, clockwise as seen on the map (north -90);
    /// for a curve the direction of its chord. Empty when the row is no course.
    std::optional<float> direction;
    /// Cosine and sine of the direction in radians (degrees x 3.14159265 / 180);
    /// 1 and 0 without a direction. Computed once for the fit and the walk.
    double cosine = 1.0;
    double sine = 0.0;
    /// Ground units: the arc length for a curve, completed from the chord when
    /// only the chord was typed. NaN when the typed number was beyond double
    /// range (the computation stopped at this row).
    double distance = 0.0;
    double radius = 0.0; ///< ground units; NaN as for distance
    double chord = 0.0;  ///< ground units, completed from the arc when not typed; NaN as for distance
    bool radiusTyped = false; ///< the radius cell is not empty: a curve, even of radius "0", to the fit
    CurveSide side = CurveSide::None;
    Tag tag = Tag::None;
    int course = 0; ///< course number shown on the map
    /// The row's cells were read by a computation. A number beyond range stops
    /// the computation, leaving the rows after it as the last one left them.
    bool cellsRead = false;
    /// The direction in radians as the walk holds it: a single (degrees x
    /// 3.14159265 / 180, rounded), with its cosine and sine. The walk, the
    /// curve routines and their area steps use these; the fit uses the
    /// unrounded ones above. 0, 1 and 0 without a direction.
    float radians = 0.0f;
    double radiansCosine = 1.0;
    double radiansSine = 0.0;

    float directionValue() const { return direction.value_or(0.0f); }
};

using LegTable = std::vector<Leg>;

} // namespace quilmar
