#pragma once
// The shortcut conversions of the Conversions menu: the number in the entry
// field that has the focus is converted to feet in place, so a deed in chains,
// rods or varas can be typed as it stands and fixed field by field.

#include <string_view>

#include "calc_result.h"

namespace quilmar {

enum class ShortcutConversion {
    ChainsLinks, ///< x 66 ("Shortcut Conversion (Chains/Links)")
    PerchesRods, ///< x 16.5 ("Shortcut Conversion (Perches, Rods)")
    Varas,       ///< x 2.7777778, deliberately the rounded factor ("Shortcut Conversion (Varas)")
};

/// Feet per unit of the shortcut.
double shortcutFactor(ShortcutConversion shortcut);

/// Converts the focused field's text @p fieldText.
/// @returns `field` = the feet formatted "##0.0###" (a field holding 1 gives
///          "2.7778" for varas); nothing else changes (no redraw, no clipboard).
///          A text that is not wholly a number (empty, "abc", "12abc") or a
///          result that overflows gives an empty result, without a message.
CalcResult runShortcut(ShortcutConversion shortcut, std::string_view fieldText);

} // namespace quilmar
