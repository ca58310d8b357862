#include "walk_marks.h"

#include <cmath>

namespace quilmar {

void addReferenceLabel(Figure &figure, const WalkOptions &options, PointF at, int label, int row, double dx,
                       double dy)
{
    if (!options.printing || !options.referencePoints)
        return;
    if (!(std::fabs(dx) > 240.0 || std::fabs(dy) > 240.0))
        return;
    const std::string text = std::to_string(label);
    const float x = at.x - (100.0f * float(std::to_string(row).size()) + 80.0f);
    figure.items.push_back({FigText{{x, at.y}, 0, text + " "}, Palette::Blue, Target::Printer});
}

void addCannotClose(Figure &figure, TraverseState &state, const std::string &message)
{
    figure.items.push_back({FigText{state.pen, 0, "x"}, Palette::Blue, Target::Screen});
    constexpr float left = -360.0f;
    figure.items.push_back({FigScaleLeft{left}, Palette::Blue, Target::Screen});
    figure.items.push_back({FigText{{0.0f, 600.0f}, 0, "CANNOT CLOSE."}, Palette::Blue, Target::Screen});
    figure.items.push_back({FigText{{left, 600.0f}, 1, message}, Palette::Blue, Target::Screen});
    state.canvas = {left, 600.0f + 2.0f * kTextLineTwips};
}

} // namespace quilmar
