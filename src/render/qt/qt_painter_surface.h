#pragma once
// The one drawing path to real devices: a Surface over a QPainter, so that the
// canvas image, the printer page, a PDF and an SVG file all receive the same
// calls. Drawing units (twips) become device units through a DeviceMapping.
//
// Lines, arcs and circles use a solid cosmetic pen one device unit wide (one
// pixel on an image, one dot on a printer), drawn through the centres of device
// units so that a horizontal leg on an image covers exactly one pixel row.
// Images and pixmaps are drawn antialiased. Text uses a small sans font of
// 8 points (160 twips, 11 pixels on a 96-dpi screen) until setFont() chooses
// another; font sizes are kept in twips, so a point is the same length on every
// device whatever dpi it reports. On a printer or PDF writer given as the paged
// device, newPage() starts the next sheet.

#include <QColor>
#include <QFont>
#include <QPointF>

#include "device_mapping.h"
#include "surface.h"

class QPainter;
class QPagedPaintDevice;

namespace quilmar {

/// A palette colour as a Qt colour (opaque).
inline QColor toQColor(Rgb c) { return QColor(c.red, c.green, c.blue); }

class QtPainterSurface : public Surface {
public:
    /// Point size of the map's text.
    static constexpr double kTextPoints = 8.0;

    /// @param painter  an active painter on any paint device; it must outlive the
    ///                 surface. Its pen, brush, font and render hints are replaced.
    ///                 On an inactive painter every call draws nothing.
    /// @param mapping  drawing units to the painter's device units; the painter's
    ///                 own transform should be the identity.
    QtPainterSurface(QPainter &painter, const DeviceMapping &mapping);

    const DeviceMapping &mapping() const { return m_mapping; }

    /// The printer or PDF writer the painter draws on, for newPage(); without
    /// one (an image, an SVG) newPage() does nothing.
    void setPagedDevice(QPagedPaintDevice *device) { m_pages = device; }

    /// Width of lines, arcs and circles in twips from the next colour set on;
    /// 0 (the default) is one device unit.
    void setLineWidth(float twips) { m_lineWidth = twips; }

    float scaleLeft() const override { return m_mapping.scaleLeft(); }
    float scaleTop() const override { return m_mapping.scaleTop(); }
    void setScaleLeft(float left) override { m_mapping.setScaleLeft(left); }
    void setScaleOrigin(float left, float top) override { m_mapping.setScaleOrigin(left, top); }
    void setColour(Rgb colour) override;
    /// Points that map to non-finite device coordinates draw nothing here and in
    /// the calls below.
    void line(PointF from, PointF to) override;
    void arc(PointF centre, float radius, double startRadians, double endRadians) override;
    void circle(PointF centre, float radius) override;
    void text(PointF at, int lineOffset, std::string_view utf8) override;
    /// The font's line spacing in twips: about 13 pixels, some 190 twips, on a
    /// 15-twip-a-pixel image.
    float textHeight() const override;
    /// "Arial" and "Courier" fall back to the metric-compatible Liberation faces
    /// and then to DejaVu where the named face is missing; "Courier" is fixed pitch.
    void setFont(const TextFont &font) override;
    float textWidth(std::string_view utf8) const override;
    void newPage() override;

private:
    /// Device position of a drawing point's device unit centre.
    QPointF penPoint(PointF drawing) const;

    QPainter &m_painter;
    DeviceMapping m_mapping;
    void applyFont();

    QPagedPaintDevice *m_pages = nullptr;
    float m_lineWidth = 0.0f;
    QFont m_qfont;
    double m_ascent = 0.0;      ///< device units
    double m_lineSpacing = 0.0; ///< device units
};

} // namespace quilmar
