#include "unit_converter.h"

#include "ground_units.h"
#include "number_format.h"
#include "number_read.h"
#include "typed_number.h"
#include "vb_math.h"

namespace quilmar {

namespace {

struct ConverterText {
    const char *prompt;
    const char *label;
    const char *unit;
};

// The unit labels differ in case ("feet" / "Feet") from entry to entry; they
// are the system's own texts and are kept as they are.
ConverterText textOf(UnitConverter converter)
{
    switch (converter) {
    case UnitConverter::Chains:
        return {"Enter Chains and Links.  For example 10 Chains and 5 links is entered as 10.05.", " Chains = ",
                " feet"};
    case UnitConverter::Links: return {"Enter Links.", " Links = ", " feet"};
    case UnitConverter::Rods: return {"Enter number of Rods.", " Rods = ", " feet"};
    case UnitConverter::Perches: return {"Enter number of Perches.", " Perches = ", " feet"};
    case UnitConverter::Furlongs: return {"Enter number of Furlongs.", " Furlongs = ", " feet"};
    case UnitConverter::Varas: return {"Enter number of Varas.", " Varas = ", " feet"};
    case UnitConverter::Yards: return {"Enter number of Yards.", " Yards = ", " Feet"};
    case UnitConverter::FeetToMeters: return {"Enter number of Feet.", " Feet = ", " Meters"};
    case UnitConverter::MetersToFeet: return {"Enter number of Meters.", " Meters = ", " Feet"};
    }
    return {"", "", ""};
}

// The converters compute in the ground-unit table's converter form (varas by
// division by 0.36, although the shortcut uses the rounded 2.7777778).
double apply(UnitConverter converter, double x)
{
    switch (converter) {
    case UnitConverter::Chains: return converterFeet(GroundUnit::Chains, x);
    case UnitConverter::Links: return converterFeet(GroundUnit::Links, x);
    case UnitConverter::Rods: return converterFeet(GroundUnit::Rods, x);
    case UnitConverter::Perches: return converterFeet(GroundUnit::Perches, x);
    case UnitConverter::Furlongs: return converterFeet(GroundUnit::Furlongs, x);
    case UnitConverter::Varas: return converterFeet(GroundUnit::Varas, x);
    case UnitConverter::Yards: return converterFeet(GroundUnit::Yards, x);
    case UnitConverter::FeetToMeters: return x / groundUnitFactor(GroundUnit::Meters).feet;
    case UnitConverter::MetersToFeet: return converterFeet(GroundUnit::Meters, x);
    }
    return x;
}

} // namespace

std::string_view converterTitle() { return "Conversion"; }

std::string converterPrompt(UnitConverter converter)
{
    return std::string(textOf(converter).prompt) + "\r\n" + "The result can be pasted from the clipboard.";
}

CalcResult runConverter(UnitConverter converter, std::string_view answer)
{
    if (trimBlanks(answer).empty())
        return {};
    try {
        const std::optional<double> x = typedNumber(answer);
        if (!x)
            return {};
        const std::string result = formatNumber(dbl(apply(converter, *x)), "##0.0###");
        const ConverterText text = textOf(converter);
        CalcResult r;
        r.clipboard = result;
        r.acresbox = std::string(answer) + text.label + result + text.unit;
        return r;
    } catch (const VbError &) {
        // Faults are passed over in the menu handlers: the command just ends.
        return {};
    }
}

} // namespace quilmar
