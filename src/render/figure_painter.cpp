#include "figure_painter.h"

#include <optional>
#include <type_traits>

namespace quilmar {

namespace {

bool belongsTo(Target item, Target which)
{
    return (static_cast<unsigned>(item) & static_cast<unsigned>(which)) != 0;
}

} // namespace

void paintFigure(const Figure &figure, Surface &surface, Target which)
{
    // A device switches its pen only when the colour really changes; a deed of
    // two hundred blue legs sets it once.
    std::optional<Palette> current;
    for (const FigureItem &item : figure.items) {
        if (!belongsTo(item.target, which))
            continue;
        if (const auto *move = std::get_if<FigScaleLeft>(&item.shape)) {
            surface.setScaleLeft(move->left);
            continue;
        }
        if (current != item.colour) {
            surface.setColour(paletteColour(item.colour));
            current = item.colour;
        }
        std::visit(
            [&surface](const auto &shape) {
                using T = std::decay_t<decltype(shape)>;
                if constexpr (std::is_same_v<T, FigLine>)
                    surface.line(shape.from, shape.to);
                else if constexpr (std::is_same_v<T, FigArc>)
                    surface.arc(shape.centre, shape.radius, shape.start, shape.end);
                else if constexpr (std::is_same_v<T, FigCircle>)
                    surface.circle(shape.centre, shape.radius);
                else if constexpr (std::is_same_v<T, FigText>)
                    surface.text(shape.at, shape.lineOffset, shape.text);
            },
            item.shape);
    }
}

} // namespace quilmar
