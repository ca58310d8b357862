#include "paged_output.h"

#include <QBuffer>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>

#include "device_mapping.h"
#include "safe_file.h"
#include "qt_painter_surface.h"

namespace quilmar {

bool paintPages(QPagedPaintDevice &device, const PagePainter &paint)
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    const double dpiX = device.logicalDpiX();
    const double dpiY = device.logicalDpiY();
    QtPainterSurface surface(painter, DeviceMapping::forDotsPerInch(0.0f, 0.0f, dpiX));
    surface.setPagedDevice(&device);
    // A hundredth of an inch: six dots of a 600-dpi printer, a technical pen's line.
    surface.setLineWidth(14.4f);
    const PageSize page{float(device.width() / dpiX * kTwipsPerInch), float(device.height() / dpiY * kTwipsPerInch)};
    paint(surface, page);
    return painter.end();
}

QByteArray pdfBytes(QPageSize::PageSizeId paper, const PagePainter &paint)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setCreator(QStringLiteral("Quilmar Deed Plotter"));
        writer.setResolution(600);
        const double edge = kUnprintableEdge / kTwipsPerInch;
        writer.setPageLayout(QPageLayout(QPageSize(paper), QPageLayout::Portrait,
                                         QMarginsF(edge, edge, edge, edge), QPageLayout::Inch));
        if (!paintPages(writer, paint))
            return {};
    }
    return buffer.data();
}

bool writePdf(const QString &path, QPageSize::PageSizeId paper, const PagePainter &paint, QString *error)
{
    const QByteArray bytes = pdfBytes(paper, paint);
    if (bytes.isEmpty()) {
        if (error)
            *error = QStringLiteral("cannot draw the PDF");
        return false;
    }
    // The one writer of every file: a temporary file beside the target, synced
    // and renamed over it.
    const FileOutcome outcome =
        writeFileSafely(path.toStdString(), std::string_view(bytes.constData(), size_t(bytes.size())));
    if (!outcome.ok && error)
        *error = QString::fromStdString(outcome.error);
    return outcome.ok;
}

} // namespace quilmar
