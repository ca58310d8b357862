#include "area.h"

#include "vb_math.h"

namespace quilmar {

void addShoelaceStep(PointF &areaPoint, float &areaSum, float dx, float dy)
{
    const float x1 = sng(double(areaPoint.x) + dx);
    const float y1 = sng(double(areaPoint.y) + dy);
    const double term = double(x1) * y1 / 2.0 - double(dx) * dy / 2.0 - double(dx) * (double(y1) - dy)
                        - (double(x1) - dx) * (double(y1) - dy) / 2.0;
    areaSum = sng(areaSum + term);
    areaPoint = {x1, y1};
}

} // namespace quilmar
