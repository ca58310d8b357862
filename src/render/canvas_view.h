#pragma once
// What the map canvas shows: the drawing point at its top-left corner (the
// scale origin that the fit chose) and its size. The engine hands one out with
// its figure, so every picture of the canvas (window, PNG, SVG, clipboard
// bitmap) gets the same view in one value.

#include "device_mapping.h"

namespace quilmar {

struct CanvasView {
    float scaleLeft = 0.0f; ///< drawing point (twips) at the canvas's left edge
    float scaleTop = 0.0f;  ///< drawing point (twips) at the canvas's top edge
    float width = 7200.0f;  ///< canvas width, twips
    float height = 4800.0f; ///< canvas height, twips

    /// The mapping onto a pixel image of @p twipsPerPixel twips a pixel.
    /// @throws std::invalid_argument when twipsPerPixel is not above 0
    DeviceMapping pixels(int twipsPerPixel = kScreenTwipsPerPixel) const
    {
        return DeviceMapping::forPixels(scaleLeft, scaleTop, twipsPerPixel);
    }
};

} // namespace quilmar
