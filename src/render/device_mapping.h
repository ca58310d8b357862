#pragma once
// Where a point of the map lands on a device. The map is drawn in drawing units
// (twips, 1/1440 inch; x east, y south); a device counts its own units (screen
// pixels, printer dots, SVG pixels), with (0, 0) at its top-left corner and y
// down. The scale origin (ScaleLeft, ScaleTop) is the drawing point shown at the
// device's top-left corner, exactly as a picture box's or a printer's.
//
// Device coordinates are continuous: device unit (i, j) covers [i, i+1) x [j, j+1).

#include "point.h"

namespace quilmar {

inline constexpr double kTwipsPerInch = 1440.0;
/// Twips per screen pixel at 96 pixels per inch.
inline constexpr int kScreenTwipsPerPixel = 15;

class DeviceMapping {
public:
    /// Origin (0, 0), one device unit per twip.
    DeviceMapping() = default;

    /// @param scaleLeft, scaleTop  drawing point (twips) at the device's top-left
    /// @param unitsPerTwip         device units per twip, e.g. 1/15 for a screen
    /// @throws std::invalid_argument when unitsPerTwip is not finite and above 0
    DeviceMapping(float scaleLeft, float scaleTop, double unitsPerTwip);

    /// A pixel image: @p twipsPerPixel twips (15 on a 96-dpi screen) per pixel.
    /// @throws std::invalid_argument when twipsPerPixel is not above 0
    static DeviceMapping forPixels(float scaleLeft, float scaleTop, int twipsPerPixel = kScreenTwipsPerPixel);

    /// A printer or PDF page of @p dotsPerInch device units per inch.
    /// @throws std::invalid_argument when dotsPerInch is not finite and above 0
    static DeviceMapping forDotsPerInch(float scaleLeft, float scaleTop, double dotsPerInch);

    float scaleLeft() const { return m_left; }
    float scaleTop() const { return m_top; }
    double unitsPerTwip() const { return m_unitsPerTwip; }

    /// Moves the scale origin (twips); any value is taken as it is.
    void setScaleLeft(float left) { m_left = left; }
    void setScaleTop(float top) { m_top = top; }
    void setScaleOrigin(float left, float top) { m_left = left; m_top = top; }

    /// Drawing point (twips) to device units. Far-off points may give infinities
    /// or lose precision; they are not checked here.
    PointF toDevice(PointF drawing) const;
    /// Device units to drawing point (twips); the inverse of toDevice.
    PointF toDrawing(PointF device) const;

    /// A length or radius: twips to device units, and back.
    double toDeviceLength(double twips) const { return twips * m_unitsPerTwip; }
    double toDrawingLength(double deviceUnits) const { return deviceUnits / m_unitsPerTwip; }

    bool operator==(const DeviceMapping &) const = default;

private:
    float m_left = 0.0f;
    float m_top = 0.0f;
    double m_unitsPerTwip = 1.0;
};

} // namespace quilmar
