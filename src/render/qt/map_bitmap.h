#pragma once
// The bitmap of Copy Map to Clipboard: the map drawn on a canvas twice the
// size of the window's, on bright white (colour 15) instead of the canvas grey.

#include <QImage>

#include "canvas_view.h"
#include "figure.h"

namespace quilmar {

/// The screen items of @p figure (a draw on the doubled canvas) on white.
/// @param view  that draw's canvas view: its origin and the doubled size
///              (twips), 15 twips a pixel
/// @returns an RGB32 image, or a null image for a size below 1 twip
QImage mapBitmap(const Figure &figure, const CanvasView &view);

} // namespace quilmar
