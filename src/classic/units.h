#pragma once
// The unit option (`metrix`): which ground unit the user types lengths in. It
// decides which twips-per-unit a numeric scale uses, the unit factor
// (`MetricFactor`), the digit the map file stores after its tail marker, and the
// option button's caption. One type for all of them.

#include <optional>
#include <string_view>

namespace quilmar {

/// The three unit options, by their option-button index (0, 1, 2), which is
/// also the digit stored in the map file.
enum class Units : int { Feet = 0, Meters = 1, Other = 2 };

/// The map file's digit for @p units: '0', '1' or '2'.
constexpr char unitDigit(Units units) { return char('0' + int(units)); }

/// The unit option of a map file's digit; nullopt for anything but '0', '1', '2'.
constexpr std::optional<Units> unitsFromDigit(char digit)
{
    if (digit < '0' || digit > '2')
        return std::nullopt;
    return Units(digit - '0');
}

/// The option button's caption: "Feet", "Meters" or "Other".
constexpr std::string_view unitCaption(Units units)
{
    switch (units) {
    case Units::Feet: return "Feet";
    case Units::Meters: return "Meters";
    case Units::Other: return "Other";
    }
    return "Other";
}

/// The unit factor (`MetricFactor`): 2.5 for Meters, 1.0 for the others.
constexpr float unitFactor(Units units) { return units == Units::Meters ? 2.5f : 1.0f; }

} // namespace quilmar
