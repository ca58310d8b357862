#include "rescaling.h"

#include <cctype>
#include <cmath>

#include "fit_walk.h"
#include "number_format.h"
#include "number_read.h"
#include "vb_math.h"

namespace quilmar {

namespace {

// True when @p text equals the upper-case @p word, letters compared upper-cased.
bool equalsUpper(std::string_view text, std::string_view word)
{
    if (text.size() != word.size())
        return false;
    for (size_t i = 0; i < text.size(); ++i)
        if (std::toupper(static_cast<unsigned char>(text[i])) != word[i])
            return false;
    return true;
}

} // namespace

double levelFactor(std::string_view scaleText)
{
    const std::string_view t = trimBlanks(scaleText);
    if (equalsUpper(t, "MINIMUM"))
        return 0.36;
    if (equalsUpper(t, "SMALL"))
        return 0.48;
    if (equalsUpper(t, "MAXIMUM"))
        return 0.96;
    return 0.72;
}

FitResult rescaling(const LegTable &legs, const ScaleChoice &choice, float width, float height, bool printing,
                    float previousScaleFactor, TraverseState &state, GapShares &shares)
{
    FitResult fit;
    fit.scaleFactor = previousScaleFactor;
    FitWalk walk;
    float extX = 1, extY = 1;
    // The fit of the extents reached so far, made at every row: a row whose
    // extent is too thin to divide by ends the fit there, even when later rows
    // widen it, and the factor stays that of the rows before it.
    auto fitExtents = [&] {
        extX = walk.extentX();
        extY = walk.extentY();
        const float fx = sng(width / extX), fy = sng(height / extY);
        fit.scaleFactor = fx < fy ? fx : fy;
    };
    try {
        walkForFit(legs, state, walk, fitExtents);
        if (!walk.rowsDone)
            fitExtents();
        fit.scaleFactor = sng(double(fit.scaleFactor) * levelFactor(choice.scaleText));
        const float sf = fit.scaleFactor;
        if (printing) {
            const double n = leadingNumber(choice.scaleText);
            if (n != 0.0) {
                if (choice.units == Units::Feet)
                    fit.scaleFactor = sng(fdiv(choice.scaleEnglish, n));
                else if (choice.units == Units::Meters)
                    fit.scaleFactor = sng(fdiv(choice.scaleMetric, n));
                else
                    fit.scaleFactor = sng(2.0 * sf);
            } else {
                fit.scaleFactor = sng(2.0 * sf);
            }
            const double s = fit.scaleFactor;
            const double offX = (2.0 * width - s * extX) / 2.0, offY = (2.0 * height - s * extY) / 2.0;
            fit.scaleLeft = sng(s * walk.minX - offX);
            fit.scaleTop = sng(s * walk.minY - offY);
        } else {
            const double offX = (width - double(sf) * extX) / 2.0, offY = (height - double(sf) * extY) / 2.0;
            fit.scaleLeft = sng(std::floor(double(sf) * walk.minX - offX));
            fit.scaleTop = sng(std::floor(double(sf) * walk.minY - offY));
        }
    } catch (const VbError &) {
        fit.failed = true;
        return fit;
    }
    try {
        // The closure gap in drawing units, shared equally by the straight legs.
        const double n = walk.straightLegs;
        shares.x = sng(fdiv((double(walk.run.x) - state.origin.x) * fit.scaleFactor, n));
        shares.y = sng(fdiv((double(walk.run.y) - state.origin.y) * fit.scaleFactor, n));
        shares.legCount = int16_t(walk.straightLegs);
    } catch (const VbError &) {
    }
    return fit;
}

double autoScaleNumber(const ScaleChoice &choice, float scaleFactor)
{
    const double base = choice.units == Units::Feet ? choice.scaleEnglish : choice.scaleMetric;
    return fdiv(base, 2.0 * scaleFactor);
}

std::string autoScaleCaption(double number)
{
    // The whole number the caption would show is what must be above 1: 1.4
    // reads 1 and leaves the caption empty.
    const std::string whole = formatNumber(number, "##0");
    if (leadingNumber(whole) > 1.0)
        return "AutoScale = " + whole;
    return {};
}

} // namespace quilmar
