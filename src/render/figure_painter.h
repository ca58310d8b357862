#pragma once
// Paints a figure (what one walk over the courses drew, kept as data) onto a
// surface. The same figure goes to the canvas with Target::Screen and to the
// printer with Target::Printer; each surface receives only the items meant for it.

#include "figure.h"
#include "surface.h"

namespace quilmar {

/// Paints, in figure order, every item whose target includes @p which (an item
/// for Both goes to either device), each in its palette colour. A FigScaleLeft
/// item moves the surface's left edge for the items after it and is left in
/// place afterwards, as the canvas keeps it until the next rescaling.
/// @param which  Screen or Printer; Both paints every item.
/// @throws VbError "Invalid procedure call or argument" (5) for an item whose
///         colour is outside the 16-colour palette; the items before it stay drawn.
void paintFigure(const Figure &figure, Surface &surface, Target which);

} // namespace quilmar
