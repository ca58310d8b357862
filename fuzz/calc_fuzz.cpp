// Fuzz target: any bytes typed into the input box of every converter,
// shortcut conversion and curve or angle calculator of the Conversions menu.
// A result is a value or nothing; no input may crash or hang.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "curve_calculator.h"
#include "reciprocal_angle.h"
#include "shortcut_conversion.h"
#include "unit_converter.h"

using namespace quilmar;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string_view answer(reinterpret_cast<const char *>(data), size);
    for (UnitConverter c : {UnitConverter::Chains, UnitConverter::Links, UnitConverter::Rods, UnitConverter::Perches,
                            UnitConverter::Furlongs, UnitConverter::Varas, UnitConverter::Yards,
                            UnitConverter::FeetToMeters, UnitConverter::MetersToFeet})
        runConverter(c, answer);
    for (ShortcutConversion s : {ShortcutConversion::ChainsLinks, ShortcutConversion::PerchesRods,
                                 ShortcutConversion::Varas})
        runShortcut(s, answer);
    for (CurveCalculator c : {CurveCalculator::Arc, CurveCalculator::Chord, CurveCalculator::Angle,
                              CurveCalculator::Tangent})
        runCurveCalculator(c, answer);
    reciprocalAngle(answer);
    return 0;
}
