#include "map_canvas.h"

#include <QPainter>

#include "device_mapping.h"
#include "figure_painter.h"
#include "palette.h"
#include "qt_painter_surface.h"
#include "vb_math.h"

namespace quilmar {

MapCanvas::MapCanvas(QWidget *parent) : QWidget(parent)
{
    setObjectName("minmap");
    setAccessibleName("minmap");
    setAutoFillBackground(false);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void MapCanvas::show(const Figure *figure, float scaleLeft, float scaleTop)
{
    m_figure = figure;
    m_left = scaleLeft;
    m_top = scaleTop;
    update();
}

void MapCanvas::clear()
{
    m_figure = nullptr;
    update();
}

QSize MapCanvas::sizeHint() const
{
    const int em = fontMetrics().averageCharWidth();
    return {em * 60, em * 45};
}

QSize MapCanvas::minimumSizeHint() const
{
    const int em = fontMetrics().averageCharWidth();
    return {em * 20, em * 15};
}

void MapCanvas::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), toQColor(kCanvasGrey));
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (!m_figure)
        return;
    QtPainterSurface surface(painter, DeviceMapping::forPixels(m_left, m_top, kTwipsPerPixel));
    try {
        paintFigure(*m_figure, surface, Target::Screen);
    } catch (const VbError &) {
        // a colour outside the palette: the items before it stay drawn
    }
}

} // namespace quilmar
