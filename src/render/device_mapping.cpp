#include "device_mapping.h"

#include <cmath>
#include <stdexcept>

namespace quilmar {

DeviceMapping::DeviceMapping(float scaleLeft, float scaleTop, double unitsPerTwip)
    : m_left(scaleLeft), m_top(scaleTop), m_unitsPerTwip(unitsPerTwip)
{
    if (!std::isfinite(unitsPerTwip) || unitsPerTwip <= 0.0)
        throw std::invalid_argument("device units per twip must be above 0");
}

DeviceMapping DeviceMapping::forPixels(float scaleLeft, float scaleTop, int twipsPerPixel)
{
    if (twipsPerPixel <= 0)
        throw std::invalid_argument("twips per pixel must be above 0");
    return {scaleLeft, scaleTop, 1.0 / twipsPerPixel};
}

DeviceMapping DeviceMapping::forDotsPerInch(float scaleLeft, float scaleTop, double dotsPerInch)
{
    if (!std::isfinite(dotsPerInch) || dotsPerInch <= 0.0)
        throw std::invalid_argument("dots per inch must be above 0");
    return {scaleLeft, scaleTop, dotsPerInch / kTwipsPerInch};
}

// The subtraction is done in double: a single-precision origin of a few hundred
// thousand twips would otherwise cost a visible fraction of a pixel.
PointF DeviceMapping::toDevice(PointF drawing) const
{
    return {static_cast<float>((double(drawing.x) - m_left) * m_unitsPerTwip),
            static_cast<float>((double(drawing.y) - m_top) * m_unitsPerTwip)};
}

PointF DeviceMapping::toDrawing(PointF device) const
{
    return {static_cast<float>(double(m_left) + device.x / m_unitsPerTwip),
            static_cast<float>(double(m_top) + device.y / m_unitsPerTwip)};
}

} // namespace quilmar
