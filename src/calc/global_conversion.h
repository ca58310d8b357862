#pragma once
// Global conversion: rewrites every distance, chord and radius of the course
// table in feet (or, the reverse entry, in metres) in one step, so a deed in
// chains, rods, varas or metres can be typed as it stands and converted after.
// The window asks question() in a Yes/No/Cancel box titled kTitle with the
// exclamation icon, and calls apply() only on Yes.

#include <string>
#include <string_view>

#include "course_table.h"
#include "ground_units.h"
#include "units.h"

namespace quilmar {

class GlobalConversion {
public:
    static constexpr const char *kTitle = "Global Conversion";

    /// A conversion to feet by its menu index: 0 metres (x 3.281), 1 chains and
    /// links (x 66), 2 rods or perches (x 16.5), 3 furlongs (x 660), 4 varas
    /// (x 2.7777778, the rounded factor on purpose), 5 yards (x 3).
    /// @throws std::out_of_range for any other index
    static GlobalConversion toFeet(int index);

    /// The reverse entry "From Feet to Meters": divides by 3.281.
    static GlobalConversion feetToMeters();

    /// "This function will convert the entire table from" + unit text +
    /// "to Feet.  OK to proceed?" (for the reverse entry: unit text " Feet " and
    /// "to Meters.  OK to proceed?").
    std::string question() const;

    /// Converts the table in place: rows 0 to `highest` + 1 (never past row
    /// 201), in each the distance, chord and radius cells in that order. A
    /// non-empty cell becomes the number round(value x factor x 100) / 100
    /// (ties to even: hundredths of a foot or metre); empty cells stay empty and
    /// other columns are untouched. A cell that already holds a number (from an
    /// earlier conversion) is converted again: nothing records that a table
    /// was converted.
    /// @returns the unit option to select: Feet, or Meters for feetToMeters()
    /// @throws VbError Type mismatch for a cell whose text is not wholly a
    ///         number (" 12 " is fine, "12abc" and "abc" are not), Overflow for
    ///         a value beyond double range. The conversion stops at that cell;
    ///         the cells before it keep their converted values and the unit
    ///         option is not to be changed.
    Units apply(CourseTable &table) const;

    double factor() const { return m_factor; }

private:
    GlobalConversion(std::string_view unitText, double factor, bool toMeters)
        : m_unitText(unitText), m_factor(factor), m_toMeters(toMeters) {}

    std::string_view m_unitText;
    double m_factor;   ///< multiplier to feet, or divisor to metres
    bool m_toMeters;
};

} // namespace quilmar
