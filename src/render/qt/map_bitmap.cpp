#include "map_bitmap.h"

#include "canvas_image.h"
#include "palette.h"

namespace quilmar {

QImage mapBitmap(const Figure &figure, const CanvasView &view)
{
    if (!(view.width >= 1.0f) || !(view.height >= 1.0f))
        return {};
    return renderFigureImage(figure, view, kBitmapWhite);
}

} // namespace quilmar
