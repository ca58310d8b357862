#include "canvas_image.h"

#include <cstdint>

#include <QBuffer>
#include <QPainter>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSvgGenerator>

#include "device_mapping.h"
#include "figure_painter.h"
#include "qt_painter_surface.h"

namespace quilmar {

namespace {

/// Pixel size of a canvas; an empty size when any argument is not above 0.
QSize pixelSize(int widthTwips, int heightTwips, int twipsPerPixel)
{
    if (widthTwips <= 0 || heightTwips <= 0 || twipsPerPixel <= 0)
        return {};
    // Rounded up so that a canvas of a part pixel still shows its last column.
    return {static_cast<int>((widthTwips + int64_t{twipsPerPixel} - 1) / twipsPerPixel),
            static_cast<int>((heightTwips + int64_t{twipsPerPixel} - 1) / twipsPerPixel)};
}

void paintCanvas(QPainter &painter, QSize size, const Figure &figure, float scaleLeft, float scaleTop,
                 Rgb background, int twipsPerPixel)
{
    painter.fillRect(QRect(QPoint(0, 0), size), toQColor(background));
    QtPainterSurface surface(painter, DeviceMapping::forPixels(scaleLeft, scaleTop, twipsPerPixel));
    paintFigure(figure, surface, Target::Screen);
}

} // namespace

QImage renderFigureImage(const Figure &figure, const CanvasView &view, Rgb background, int twipsPerPixel)
{
    const QSize size = pixelSize(int(view.width), int(view.height), twipsPerPixel);
    if (size.isEmpty())
        return {};
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull())
        return {};
    QPainter painter(&image);
    paintCanvas(painter, size, figure, view.scaleLeft, view.scaleTop, background, twipsPerPixel);
    painter.end();
    return image;
}

bool writeFigurePng(const QString &path, const Figure &figure, const CanvasView &view, Rgb background,
                    int twipsPerPixel)
{
    const QImage image = renderFigureImage(figure, view, background, twipsPerPixel);
    return !image.isNull() && image.save(path, "PNG");
}

bool writeFigureSvg(const QString &path, const Figure &figure, const CanvasView &view, Rgb background,
                    int twipsPerPixel)
{
    const QSize size = pixelSize(int(view.width), int(view.height), twipsPerPixel);
    if (size.isEmpty())
        return false;
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(0, 0), size));
    generator.setResolution(96); // one SVG user unit is one CSS pixel
    generator.setTitle(QStringLiteral("Map"));
    QPainter painter;
    if (!painter.begin(&generator))
        return false;
    paintCanvas(painter, size, figure, view.scaleLeft, view.scaleTop, background, twipsPerPixel);
    if (!painter.end())
        return false;

    // The generator states the size in millimetres; the picture is a pixel
    // canvas, so its root element gets the same pixel size as the PNG.
    QString svg = QString::fromUtf8(buffer.data());
    static const QRegularExpression rootSize(QStringLiteral("<svg width=\"[^\"]*\" height=\"[^\"]*\""));
    svg.replace(rootSize, QStringLiteral("<svg width=\"%1\" height=\"%2\"").arg(size.width()).arg(size.height()));

    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    const QByteArray bytes = svg.toUtf8();
    return file.write(bytes) == bytes.size() && file.commit();
}

} // namespace quilmar
