#include "qt_painter_surface.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QString>

namespace quilmar {

namespace {

constexpr double kTwipsPerPoint = 20.0;

bool isFinite(QPointF p)
{
    return std::isfinite(p.x()) && std::isfinite(p.y());
}

double degrees(double radians)
{
    return radians * 180.0 / std::numbers::pi;
}

} // namespace

QtPainterSurface::QtPainterSurface(QPainter &painter, const DeviceMapping &mapping)
    : m_painter(painter), m_mapping(mapping)
{
    // The classic 8-point dialog font; DejaVu Sans is what Debian ships, any
    // other sans face serves where it is missing. The size is set in device
    // units so that 8 points are 160 twips on every device, whatever dpi the
    // device reports.
    m_font.setFamilies({QStringLiteral("DejaVu Sans"), QStringLiteral("Sans Serif")});
    m_font.setStyleHint(QFont::SansSerif);
    m_font.setPixelSize(std::max(1, static_cast<int>(std::lround(
                                        m_mapping.toDeviceLength(kTextPoints * kTwipsPerPoint)))));
    if (!m_painter.isActive())
        return;

    const int type = m_painter.device()->devType();
    m_painter.setRenderHint(QPainter::Antialiasing, type == QInternal::Image || type == QInternal::Pixmap);
    m_painter.setBrush(Qt::NoBrush);
    m_painter.setFont(m_font);
    setColour(paletteColour(Palette::Black)); // a picture box's default fore colour

    const QFontMetricsF metrics(m_font, m_painter.device());
    m_ascent = metrics.ascent();
    m_lineSpacing = metrics.lineSpacing();
}

void QtPainterSurface::setColour(Rgb colour)
{
    QPen pen(toQColor(colour), 1.0, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
    pen.setCosmetic(true);
    m_painter.setPen(pen);
}

QPointF QtPainterSurface::penPoint(PointF drawing) const
{
    const PointF d = m_mapping.toDevice(drawing);
    return {d.x + 0.5, d.y + 0.5};
}

void QtPainterSurface::line(PointF from, PointF to)
{
    const QPointF a = penPoint(from);
    const QPointF b = penPoint(to);
    if (isFinite(a) && isFinite(b))
        m_painter.drawLine(a, b);
}

void QtPainterSurface::arc(PointF centre, float radius, double startRadians, double endRadians)
{
    const QPointF c = penPoint(centre);
    const double r = m_mapping.toDeviceLength(radius);
    if (!isFinite(c) || !std::isfinite(r) || !(r > 0.0) || !std::isfinite(startRadians)
        || !std::isfinite(endRadians))
        return;
    constexpr double kTurn = 2.0 * std::numbers::pi;
    double sweep = std::fmod(endRadians - startRadians, kTurn);
    if (sweep < 0.0)
        sweep += kTurn;
    if (sweep == 0.0)
        return;
    // Qt's angles, like the figure's, grow counter-clockwise as seen on a y-down
    // device, so only the unit changes (degrees instead of radians).
    const QRectF box(c.x() - r, c.y() - r, 2.0 * r, 2.0 * r);
    QPainterPath path;
    path.arcMoveTo(box, degrees(startRadians));
    path.arcTo(box, degrees(startRadians), degrees(sweep));
    m_painter.drawPath(path);
}

void QtPainterSurface::circle(PointF centre, float radius)
{
    const QPointF c = penPoint(centre);
    const double r = m_mapping.toDeviceLength(radius);
    if (isFinite(c) && std::isfinite(r) && r > 0.0)
        m_painter.drawEllipse(c, r, r);
}

void QtPainterSurface::text(PointF at, int lineOffset, std::string_view utf8)
{
    // Text is placed on the device grid itself, not on pen centres: its top-left
    // is the top-left of the device unit the point falls in.
    const PointF topLeft = m_mapping.toDevice(at);
    const QPointF baseline(topLeft.x, topLeft.y + lineOffset * m_lineSpacing + m_ascent);
    if (isFinite(baseline))
        m_painter.drawText(baseline, QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())));
}

float QtPainterSurface::textHeight() const
{
    const double spacing = m_lineSpacing > 0.0 ? m_lineSpacing : m_font.pixelSize();
    return static_cast<float>(m_mapping.toDrawingLength(spacing));
}

} // namespace quilmar
