#pragma once
// The map canvas as a picture: the window's map, the double-size bitmap copied
// to the clipboard, and PNG or SVG files written from the command line all come
// from here. The picture shows the items of a figure meant for the screen.

#include <QImage>
#include <QString>

#include "canvas_view.h"
#include "figure.h"
#include "palette.h"
#include "safe_file.h"

namespace quilmar {

/// The largest picture drawn, in pixels: 100 megapixels, 400 MB as RGB32. A
/// larger canvas is refused before anything is allocated.
inline constexpr long long kMaxPicturePixels = 100'000'000;

/// Why a canvas cannot be drawn as a picture ("" when it can): a size not
/// above 0, or more pixels than kMaxPicturePixels (the limit is named).
std::string pictureSizeProblem(float widthTwips, float heightTwips, int twipsPerPixel = 15);

/// Paints the screen items of @p figure on a fresh image filled with @p background.
/// @param view           scale origin at the image's top-left and canvas size in
///                       twips (taken as whole twips); the image has
///                       ceil(size / twipsPerPixel) pixels each way
/// @param twipsPerPixel             15 for a 96-dpi screen
/// @returns an opaque RGB32 image, or a null image when a size or twipsPerPixel
///          is not above 0, the picture is over kMaxPicturePixels or the image
///          cannot be allocated
QImage renderFigureImage(const Figure &figure, const CanvasView &view, Rgb background, int twipsPerPixel = 15);

/// renderFigureImage() saved as a PNG file at @p path, through writeFileSafely
/// (a failed write leaves an old file intact).
/// @returns the outcome, with the reason on bad sizes or a failed write
FileOutcome writeFigurePng(const QString &path, const Figure &figure, const CanvasView &view, Rgb background,
                    int twipsPerPixel = 15);

/// The same picture as an SVG file: width and height in pixels as for the PNG,
/// a viewBox of the same size, the background as a filled rectangle and the
/// figure as vector lines, arcs and text.
/// @returns the outcome, with the reason on bad sizes or a failed write
FileOutcome writeFigureSvg(const QString &path, const Figure &figure, const CanvasView &view, Rgb background,
                    int twipsPerPixel = 15);

} // namespace quilmar
