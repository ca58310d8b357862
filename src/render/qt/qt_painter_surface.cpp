#include "qt_painter_surface.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <QFontMetricsF>
#include <QPagedPaintDevice>
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
    // other sans face serves where it is missing.
    m_font = TextFont{"DejaVu Sans", float(kTextPoints), false};
    if (m_painter.isActive()) {
        const int type = m_painter.device()->devType();
        m_painter.setRenderHint(QPainter::Antialiasing, type == QInternal::Image || type == QInternal::Pixmap);
        m_painter.setBrush(Qt::NoBrush);
        setColour(paletteColour(Palette::Black)); // a picture box's default fore colour
    }
    applyFont();
}

void QtPainterSurface::setFont(const TextFont &font)
{
    m_font = font;
    applyFont();
}

void QtPainterSurface::applyFont()
{
    QStringList families{QString::fromStdString(m_font.name)};
    QFont::StyleHint hint = QFont::SansSerif;
    if (m_font.name == "Courier" || m_font.name == "Courier New") {
        families << QStringLiteral("Courier New") << QStringLiteral("Liberation Mono")
                 << QStringLiteral("DejaVu Sans Mono") << QStringLiteral("Monospace");
        hint = QFont::TypeWriter;
    } else {
        families << QStringLiteral("Liberation Sans") << QStringLiteral("DejaVu Sans")
                 << QStringLiteral("Sans Serif");
    }
    QFont qfont;
    qfont.setFamilies(families);
    qfont.setStyleHint(hint);
    qfont.setFixedPitch(hint == QFont::TypeWriter);
    qfont.setBold(m_font.bold);
    // Set in device units so that the size in twips is right on every device.
    const double points = m_font.points > 0.0f ? m_font.points : kTextPoints;
    qfont.setPixelSize(std::max(1, static_cast<int>(std::lround(m_mapping.toDeviceLength(points * kTwipsPerPoint)))));
    m_qfont = qfont;
    if (!m_painter.isActive())
        return;
    m_painter.setFont(m_qfont);
    const QFontMetricsF metrics(m_qfont, m_painter.device());
    m_ascent = metrics.ascent();
    m_lineSpacing = metrics.lineSpacing();
}

float QtPainterSurface::textWidth(std::string_view utf8) const
{
    const QString text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    const double width = m_painter.isActive() ? QFontMetricsF(m_qfont, m_painter.device()).horizontalAdvance(text)
                                              : QFontMetricsF(m_qfont).horizontalAdvance(text);
    return static_cast<float>(m_mapping.toDrawingLength(width));
}

void QtPainterSurface::newPage()
{
    if (m_pages && m_painter.isActive())
        m_pages->newPage();
}

void QtPainterSurface::setColour(Rgb colour)
{
    const double width = m_lineWidth > 0.0f ? std::max(1.0, m_mapping.toDeviceLength(m_lineWidth)) : 1.0;
    QPen pen(toQColor(colour), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
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
    const double spacing = m_lineSpacing > 0.0 ? m_lineSpacing : m_qfont.pixelSize();
    return static_cast<float>(m_mapping.toDrawingLength(spacing));
}

} // namespace quilmar
