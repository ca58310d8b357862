#include "shortcut_conversion.h"

#include "number_format.h"
#include "typed_number.h"
#include "vb_math.h"

namespace quilmar {

double shortcutFactor(ShortcutConversion shortcut)
{
    switch (shortcut) {
    case ShortcutConversion::ChainsLinks: return 66;
    case ShortcutConversion::PerchesRods: return 16.5;
    case ShortcutConversion::Varas: return 2.7777778;
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
