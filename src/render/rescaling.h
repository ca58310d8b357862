#pragma once
// Fitting the map: one walk over the computed courses finds the traverse's
// extent, and the scale factor (twips per ground unit) and the canvas's scale
// origin are chosen so that the traverse is centred in the canvas at the chosen
// size level; the printout draws twice as large or at a numeric scale.

#include <string>
#include <string_view>

#include "leg_table.h"
#include "traverse_state.h"
#include "units.h"

namespace quilmar {


/// Level factor of a scale text, compared trimmed and upper-cased:
/// MINIMUM 0.36, SMALL 0.48, STANDARD 0.72, MAXIMUM 0.96, anything else 0.72.
double levelFactor(std::string_view scaleText);

struct ScaleChoice {
    std::string scaleText = "Standard"; ///< the scale box's text as shown
    Units units = Units::Feet;
    float scaleEnglish = 1440.0f; ///< twips per foot at 1 inch = 1 foot
    float scaleMetric = 576.0f;   ///< twips per metre at the metric unit length
};

struct FitResult {
    float scaleFactor = 0.0f; ///< twips per ground unit
    float scaleLeft = 0.0f;   ///< drawing point at the canvas's left edge (twips)
    float scaleTop = 0.0f;    ///< drawing point at the canvas's top edge (twips)
    bool failed = false;      ///< a fault ended the fit: show "Error in rescaling"
};

/// Fits @p legs to a canvas of @p width x @p height twips.
/// Reads and writes the point of beginning and the origin of @p state (ground
/// units here; a later walk resets them). On a fault the scale factor keeps the
/// value reached so far, starting from @p previousScaleFactor.
/// @param shares  balanced-gap shares; left as they were when there is no straight leg
FitResult rescaling(const LegTable &legs, const ScaleChoice &choice, float width, float height, bool printing,
                    float previousScaleFactor, TraverseState &state, GapShares &shares);

/// The printed scale number of a fit: twips per unit at scale 1 over twice the
/// factor.
/// @throws VbError Division by zero for a factor of 0
double autoScaleNumber(const ScaleChoice &choice, float scaleFactor);

/// The AutoScale caption of a scale number: "AutoScale = " and the number
/// formatted "##0" when that whole number is above 1, else "".
std::string autoScaleCaption(double number);

/// autoScaleCaption(autoScaleNumber(choice, scaleFactor)).
/// @throws VbError Division by zero for a factor of 0
inline std::string autoScaleCaption(const ScaleChoice &choice, float scaleFactor)
{
    return autoScaleCaption(autoScaleNumber(choice, scaleFactor));
}

} // namespace quilmar
