#pragma once
// The old ground units of deeds and their length in feet: the one table that
// the unit converters, the shortcut conversions and the global conversion read.
//
// Two forms of each factor exist on purpose. A converter computes
// value * times / per, exactly as its menu entry always has (links as
// x * 66 / 100, varas as x / 0.36); the shortcut and global conversions multiply
// by the single factor `feet` (varas by the rounded 2.7777778). The results
// differ in the last digits, and users' tables were converted with each.

namespace quilmar {

enum class GroundUnit { Chains, Links, Rods, Perches, Furlongs, Varas, Yards, Meters };

struct GroundUnitFactor {
    double times; ///< converter: feet = value * times / per
    double per;
    double feet;  ///< shortcut and global conversion: feet = value * feet
};

/// The factors of @p unit (Meters: 3.281 feet to the metre).
constexpr GroundUnitFactor groundUnitFactor(GroundUnit unit)
{
    switch (unit) {
    case GroundUnit::Chains: return {66, 1, 66};
    case GroundUnit::Links: return {66, 100, 0.66};
    case GroundUnit::Rods: return {66, 4, 16.5};
    case GroundUnit::Perches: return {16.5, 1, 16.5};
    case GroundUnit::Furlongs: return {660, 1, 660};
    case GroundUnit::Varas: return {1, 0.36, 2.7777778};
    case GroundUnit::Yards: return {3, 1, 3};
    case GroundUnit::Meters: return {3.281, 1, 3.281};
    }
    return {1, 1, 1};
}

/// Feet of @p value units as the converters compute them: value * times / per.
constexpr double converterFeet(GroundUnit unit, double value)
{
    const GroundUnitFactor f = groundUnitFactor(unit);
    return value * f.times / f.per;
}

} // namespace quilmar
