#include "rescaling.h"

#include <algorithm>
#include <cctype>
#include <cmath>

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
    PointF run;
    float minX = 0, minY = 0, maxX = 0, maxY = 0, extX = 1, extY = 1;
    int straightLegs = 0;
    bool rowsDone = false;
    // The fit of the extents reached so far; the walk below only widens them, so
    // fitting once after the last row (or at a fault) equals fitting every row.
    auto fitExtents = [&] {
        extX = sng(double(maxX) - minX);
        extY = sng(double(maxY) - minY);
        if (extX == 0.0f)
            extX = 1.0f;
        if (extY == 0.0f)
            extY = 1.0f;
        const float fx = sng(width / extX), fy = sng(height / extY);
        fit.scaleFactor = fx < fy ? fx : fy;
    };
    try {
        for (const Leg &leg : legs) {
            const double distance = leg.distance;
            const double chord = leg.chord;
            // A curve of radius "0" is still a curve: the test adds 0.01.
            const double radius = leg.radiusTyped ? leg.radius + 0.01 : 0.0;
            const Tag tag = leg.tag;
            if (tag == Tag::NewLot)
                run = state.origin;
            if (radius == 0.0) {
                const double ix = leg.cosine * distance, iy = leg.sine * distance;
                run = {sng(run.x + ix), sng(run.y + iy)};
                if (ix != 0.0 || iy != 0.0)
                    ++straightLegs;
            } else {
                // Deliberate: the curve's chord is stepped by the angle's supplement
                // (with the 3.14159265 constant, not quite -cos and sin of the angle).
                const double a = double(leg.directionValue()) * kPi / 180.0;
                run = {sng(run.x - std::cos(kPi - a) * chord), sng(run.y + std::sin(kPi - a) * chord)};
            }
            minX = std::min(minX, run.x);
            minY = std::min(minY, run.y);
            maxX = std::max(maxX, run.x);
            maxY = std::max(maxY, run.y);
            rowsDone = true;
            if (tag == Tag::Begin) {
                state.pob = run;
            } else if (tag == Tag::Origin) {
                state.origin = run;
                state.pob = run;
            } else if (tag == Tag::Close) {
                run = state.pob;
            }
        }
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
            fit.scaleLeft = sng(s * minX - offX);
            fit.scaleTop = sng(s * minY - offY);
        } else {
            const double offX = (width - double(sf) * extX) / 2.0, offY = (height - double(sf) * extY) / 2.0;
            fit.scaleLeft = sng(std::floor(double(sf) * minX - offX));
            fit.scaleTop = sng(std::floor(double(sf) * minY - offY));
        }
    } catch (const VbError &) {
        if (rowsDone) {
            try {
                fitExtents();
            } catch (const VbError &) {
            }
        }
        fit.failed = true;
        return fit;
    }
    try {
        // The closure gap in drawing units, shared equally by the straight legs.
        const double n = straightLegs;
        shares.x = sng(fdiv((double(run.x) - state.origin.x) * fit.scaleFactor, n));
        shares.y = sng(fdiv((double(run.y) - state.origin.y) * fit.scaleFactor, n));
        shares.legCount = int16_t(straightLegs);
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
    if (number > 1.0)
        return "AutoScale = " + formatNumber(number, "##0");
    return {};
}

} // namespace quilmar
