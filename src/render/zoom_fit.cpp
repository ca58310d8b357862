#include "zoom_fit.h"

#include <algorithm>
#include <cmath>

#include "number_read.h"
#include "vb_math.h"

namespace quilmar {

ZoomFit zoomFit(const LegTable &legs, float width, float height, TraverseState &state)
{
    ZoomFit fit;
    PointF run;
    float minX = 0, minY = 0, maxX = 0, maxY = 0;
    auto fitExtents = [&] {
        float extX = sng(double(maxX) - minX), extY = sng(double(maxY) - minY);
        if (extX == 0.0f)
            extX = 1.0f;
        if (extY == 0.0f)
            extY = 1.0f;
        const float fx = sng(width / extX), fy = sng(height / extY);
        fit.scaleFactor = sng(double(fx < fy ? fx : fy) * 0.95);
        const double sf = fit.scaleFactor;
        fit.scaleLeft = sng(std::floor(sf * minX - (width - sf * extX) / 2.0));
        fit.scaleTop = sng(std::floor(sf * minY - (height - sf * extY) / 2.0));
    };
    bool rowsDone = false;
    try {
        for (const Leg &leg : legs) {
            // The same steps as the main fit's walk (a curve of radius "0" is a curve).
            const double radius = leg.radiusTyped ? leg.radius + 0.01 : 0.0;
            const Tag tag = leg.tag;
            if (tag == Tag::NewLot)
                run = state.origin;
            if (radius == 0.0) {
                run = {sng(run.x + leg.cosine * leg.distance), sng(run.y + leg.sine * leg.distance)};
            } else {
                const double a = double(leg.directionValue()) * kPi / 180.0;
                run = {sng(run.x - std::cos(kPi - a) * leg.chord), sng(run.y + std::sin(kPi - a) * leg.chord)};
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
    } catch (const VbError &) {
        if (rowsDone) {
            try {
                fitExtents();
            } catch (const VbError &) {
            }
        }
        fit.failed = true;
    }
    return fit;
}

namespace {

double magnificationOr95(double m)
{
    return m == 0.0 ? 0.95 : m;
}

double answerNumber(std::string_view answer)
{
    try {
        return leadingNumber(answer);
    } catch (const VbError &) {
        return 0.0;
    }
}

} // namespace

double redrawButtonMagnification(std::string_view answer)
{
    return magnificationOr95(answerNumber(answer) / 6.3);
}

double redrawMenuMagnification(std::string_view answer)
{
    return magnificationOr95(answerNumber(answer));
}

float magnifiedScaleFactor(const ZoomFit &fit, double magnification)
{
    return sng(double(fit.scaleFactor) * magnification);
}

ZoomPicture zoomPicture(float screenHeightTwips)
{
    ZoomPicture picture;
    picture.side = 2.0f * screenHeightTwips;
    const double max = roundEven(0.7 * double(picture.side));
    picture.scrollMax = int(std::clamp(max, -32768.0, 32767.0));
    picture.smallChange = picture.scrollMax / 10;
    return picture;
}

int zoomPictureOffset(int scrollValue, bool scrollEnded)
{
    const long offset = scrollEnded ? 60L - scrollValue : -long(scrollValue);
    return int(std::clamp(offset, -32768L, 32767L));
}

ZoomWindowPlacement zoomWindowPlacement(int screenWidthTwips, int screenHeightTwips)
{
    ZoomWindowPlacement p;
    p.height = screenHeightTwips - 720;
    p.width = p.height;
    p.left = (screenWidthTwips - p.width) / 2;
    p.top = 240;
    return p;
}

} // namespace quilmar
