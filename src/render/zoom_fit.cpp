#include "zoom_fit.h"

#include <algorithm>
#include <cmath>

#include "fit_walk.h"
#include "number_read.h"
#include "vb_math.h"

namespace quilmar {

ZoomFit zoomFit(const LegTable &legs, float width, float height, TraverseState &state)
{
    ZoomFit fit;
    FitWalk walk;
    auto fitExtents = [&] {
        const float extX = walk.extentX(), extY = walk.extentY();
        const float fx = sng(width / extX), fy = sng(height / extY);
        fit.scaleFactor = sng(double(fx < fy ? fx : fy) * 0.95);
        const double sf = fit.scaleFactor;
        fit.scaleLeft = sng(std::floor(sf * walk.minX - (width - sf * extX) / 2.0));
        fit.scaleTop = sng(std::floor(sf * walk.minY - (height - sf * extY) / 2.0));
    };
    try {
        // The main fit's walk, fitted at every row as the main fit is: a row
        // too thin to divide by ends it with the fit of the rows before.
        walkForFit(legs, state, walk, fitExtents);
        if (!walk.rowsDone)
            fitExtents();
    } catch (const VbError &) {
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
    picture.overflow = max != double(picture.scrollMax);
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
