#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "figure_painter.h"
#include "recording_surface.h"
#include "vb_math.h"

namespace quilmar {
namespace {

FigureItem item(decltype(FigureItem::shape) shape, Palette colour, Target target)
{
    return {std::move(shape), colour, target};
}

// A leg for both devices, a reference label for the printer, the point of
// beginning mark for the screen, an arc for both and the red end mark.
Figure mixedFigure()
{
    Figure f;
    f.items.push_back(item(FigLine{{0, 0}, {1500, 0}}, Palette::Blue, Target::Both));
    f.items.push_back(item(FigText{{-180, 0}, 0, "A "}, Palette::Black, Target::Printer));
    f.items.push_back(item(FigCircle{{1500, 0}, 30}, Palette::Blue, Target::Screen));
    f.items.push_back(item(FigArc{{1500, 600}, 600, 1.5, 3.0}, Palette::Blue, Target::Both));
    f.items.push_back(item(FigText{{900, 600}, 0, "x"}, Palette::Red, Target::Screen));
    return f;
}

TEST(FigurePainter, PaintsTheItemsOfTheDeviceInOrderAndColour)
{
    const std::string line = "#000080 line 0 0 1500 0";
    const std::string label = "#000000 text -180 0 0 A ";
    const std::string mark = "#000080 circle 1500 0 30";
    const std::string arc = "#000080 arc 1500 600 600 1.5 3";
    const std::string end = "#800000 text 900 600 0 x";
    const struct {
        Target which;
        std::vector<std::string> expected;
    } cases[] = {
        {Target::Screen, {line, mark, arc, end}},
        {Target::Printer, {line, label, arc}},
        {Target::Both, {line, label, mark, arc, end}},
    };
    for (const auto &c : cases) {
        RecordingSurface surface;
        paintFigure(mixedFigure(), surface, c.which);
        EXPECT_EQ(surface.calls(), c.expected) << "target " << int(c.which);
    }
}

TEST(FigurePainter, ScaleLeftMovesTheEdgeForLaterItemsOnly)
{
    // The failed closing leg: the red mark at the pen, then the edge moves to
    // -360 and "CANNOT CLOSE." goes to (0, 600) on the canvas only.
    Figure f;
    f.items.push_back(item(FigText{{2000, 300}, 0, "x"}, Palette::Red, Target::Both));
    f.items.push_back(item(FigScaleLeft{-360}, Palette::Red, Target::Screen));
    f.items.push_back(item(FigText{{0, 600}, 0, "CANNOT CLOSE."}, Palette::Red, Target::Screen));
    f.items.push_back(item(FigText{{0, 600}, 1, "Error in curve."}, Palette::Red, Target::Screen));

    RecordingSurface screen;
    paintFigure(f, screen, Target::Screen);
    EXPECT_EQ(screen.calls(), (std::vector<std::string>{
                                  "#800000 text 2000 300 0 x",
                                  "scaleLeft -360",
                                  "#800000 text 0 600 0 CANNOT CLOSE.",
                                  "#800000 text 0 600 1 Error in curve.",
                              }));
    EXPECT_EQ(screen.scaleLeft(), -360.0f);

    RecordingSurface printer;
    paintFigure(f, printer, Target::Printer);
    EXPECT_EQ(printer.calls(), (std::vector<std::string>{"#800000 text 2000 300 0 x"}));
    EXPECT_EQ(printer.scaleLeft(), 0.0f);
}

TEST(FigurePainter, ColourOutsideThePaletteStopsWithInvalidCall)
{
    Figure f = mixedFigure();
    f.items.insert(f.items.begin() + 1, item(FigLine{{0, 0}, {0, 10}}, static_cast<Palette>(16), Target::Both));
    RecordingSurface surface;
    try {
        paintFigure(f, surface, Target::Screen);
        ADD_FAILURE() << "no fault";
    } catch (const VbError &e) {
        EXPECT_EQ(e.number(), 5);
    }
    EXPECT_EQ(surface.calls(), (std::vector<std::string>{"#000080 line 0 0 1500 0"}));
}

TEST(FigurePainter, EmptyFigureDrawsNothing)
{
    RecordingSurface surface;
    paintFigure(Figure{}, surface, Target::Both);
    EXPECT_TRUE(surface.calls().empty());
}

} // namespace
} // namespace quilmar
