#include "shortcut_conversion.h"

#include "ground_units.h"
#include "number_format.h"
#include "typed_number.h"
#include "vb_math.h"

namespace quilmar {

double shortcutFactor(ShortcutConversion shortcut)
{
    switch (shortcut) {
    case ShortcutConversion::ChainsLinks: return groundUnitFactor(GroundUnit::Chains).feet;
    case ShortcutConversion::PerchesRods: return groundUnitFactor(GroundUnit::Perches).feet;
    case ShortcutConversion::Varas: return groundUnitFactor(GroundUnit::Varas).feet;
    }
    return 1;
}

CalcResult runShortcut(ShortcutConversion shortcut, std::string_view fieldText)
{
    try {
        const std::optional<double> x = typedNumber(fieldText);
        if (!x)
            return {};
        CalcResult r;
        r.field = formatNumber(dbl(*x * shortcutFactor(shortcut)), "##0.0###");
        return r;
    } catch (const VbError &) {
        // Run with faults passed over: the failing step is skipped, no message.
        return {};
    }
}

} // namespace quilmar
