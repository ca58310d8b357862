#include "canvas_image.h"

#include <cmath>
#include <cstdint>

#include <QBuffer>
#include <QPainter>
#include <QRegularExpression>
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

FileOutcome refused(const std::string &reason)
{
    return {false, FileProblem::Other, reason};
}

} // namespace

std::string pictureSizeProblem(float widthTwips, float heightTwips, int twipsPerPixel)
{
    // Checked in floating point first: a canvas of billions of twips must not wrap around.
    if (!(widthTwips >= 1 && heightTwips >= 1) || twipsPerPixel <= 0)
        return "the canvas must be at least 1x1 twips";
    const double columns = std::ceil(double(int64_t(widthTwips)) / twipsPerPixel);
    const double rows = std::ceil(double(int64_t(heightTwips)) / twipsPerPixel);
    if (columns * rows > double(kMaxPicturePixels))
        return "the canvas of " + std::to_string(int64_t(columns)) + "x" + std::to_string(int64_t(rows))
            + " pixels is larger than the limit of 100 megapixels";
    return {};
}

QImage renderFigureImage(const Figure &figure, const CanvasView &view, Rgb background, int twipsPerPixel)
{
    if (!pictureSizeProblem(view.width, view.height, twipsPerPixel).empty())
        return {};
    const QSize size = pixelSize(int(view.width), int(view.height), twipsPerPixel);
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull())
        return {};
    QPainter painter(&image);
    paintCanvas(painter, size, figure, view.scaleLeft, view.scaleTop, background, twipsPerPixel);
    painter.end();
    return image;
}

FileOutcome writeFigurePng(const QString &path, const Figure &figure, const CanvasView &view, Rgb background,
                           int twipsPerPixel)
{
    if (std::string problem = pictureSizeProblem(view.width, view.height, twipsPerPixel); !problem.empty())
        return refused(problem);
    const QImage image = renderFigureImage(figure, view, background, twipsPerPixel);
    if (image.isNull())
        return refused("there is not enough memory for the picture");
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG"))
        return refused("the picture could not be encoded as PNG");
    return writeFileSafely(path.toStdString(), std::string_view(bytes.constData(), bytes.size()));
}

FileOutcome writeFigureSvg(const QString &path, const Figure &figure, const CanvasView &view, Rgb background,
                           int twipsPerPixel)
{
    if (std::string problem = pictureSizeProblem(view.width, view.height, twipsPerPixel); !problem.empty())
        return refused(problem);
    const QSize size = pixelSize(int(view.width), int(view.height), twipsPerPixel);
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
        return refused("the SVG picture could not be started");
    paintCanvas(painter, size, figure, view.scaleLeft, view.scaleTop, background, twipsPerPixel);
    if (!painter.end())
        return refused("the SVG picture could not be finished");

    // The generator states the size in millimetres; the picture is a pixel
    // canvas, so its root element gets the same pixel size as the PNG.
    QString svg = QString::fromUtf8(buffer.data());
    static const QRegularExpression rootSize(QStringLiteral("<svg width=\"[^\"]*\" height=\"[^\"]*\""));
    svg.replace(rootSize, QStringLiteral("<svg width=\"%1\" height=\"%2\"").arg(size.width()).arg(size.height()));

    const QByteArray bytes = svg.toUtf8();
    return writeFileSafely(path.toStdString(), std::string_view(bytes.constData(), bytes.size()));
}

} // namespace quilmar
