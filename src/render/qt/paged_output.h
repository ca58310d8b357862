#pragma once
// Printouts onto real paged devices: a QPrinter chosen in the print dialog or a
// PDF file written from the command line. Both are painted through the one
// QtPainterSurface, in twips from the top-left of the printable area.

#include <functional>

#include <QByteArray>
#include <QPageSize>
#include <QString>

#include "print_page.h"
#include "surface.h"

class QPagedPaintDevice;

namespace quilmar {

/// Paints a printout: receives the surface and the printable page size (twips).
using PagePainter = std::function<void(Surface &surface, PageSize page)>;

/// Runs @p paint on @p device (a QPrinter or QPdfWriter whose page layout is
/// already set); its newPage() starts the device's next page.
/// @returns false when no painter could be started on the device
bool paintPages(QPagedPaintDevice &device, const PagePainter &paint);

/// A PDF of @p paper with a quarter-inch margin all round, painted by @p paint.
/// @returns the file's bytes; empty when the PDF could not be drawn
QByteArray pdfBytes(QPageSize::PageSizeId paper, const PagePainter &paint);

/// pdfBytes() written to @p path through the writer of every file
/// (writeFileSafely): a temporary file in the target's folder renamed over
/// @p path only when complete, so a failure leaves the old file as it was.
/// @param error  receives a reason when the file could not be written
/// @returns true when the file was written
bool writePdf(const QString &path, QPageSize::PageSizeId paper, const PagePainter &paint, QString *error = nullptr);

} // namespace quilmar
