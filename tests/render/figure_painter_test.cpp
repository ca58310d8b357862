#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "figure_painter.h"
#include "recording_surface.h"
#include "vb_math.h"

using namespace quilmar;

namespace {

using Calls = std::vector<std::string>;

// A leg for both devices, a reference label for the printer, the point of
// beginning mark for the screen, an arc for both and the red end mark.
// Palette: blue 1 = #000080, red 4 = #800000, black 0 = #000000.
const Figure kMixed{{{FigLine{{0, 0}, {1500, 0}}, Palette::Blue, Target::Both},
                     {FigText{{-180, 0}, 0, "A "}, Palette::Black, Target::Printer},
                     {FigCircle{{1500, 0}, 30}, Palette::Blue, Target::Screen},
                     {FigArc{{1500, 600}, 600, 1.5, 3.0}, Palette::Blue, Target::Both},
                     {FigText{{900, 600}, 0, "x"}, Palette::Red, Target::Screen}}};

TEST(FigurePainter, PaintsTheItemsOfTheDeviceInOrderAndColour)
{
    const std::string line = "#000080 line 0 0 1500 0", label = "#000000 text -180 0 0 A ",
                      mark = "#000080 circle 1500 0 30", arc = "#000080 arc 1500 600 600 1.5 3",
                      end = "#800000 text 900 600 0 x";
    const struct { Target which; Calls expected; } cases[] = {
        {Target::Screen, {line, mark, arc, end}}, {Target::Printer, {line, label, arc}},
        {Target::Both, {line, label, mark, arc, end}}};
    for (const auto &c : cases) {
        RecordingSurface surface;
        paintFigure(kMixed, surface, c.which);
        EXPECT_EQ(surface.calls(), c.expected) << "target " << int(c.which);
    }
}

TEST(FigurePainter, ScaleLeftMovesTheEdgeForLaterItemsOnly)
{
    // The failed closing leg: the red mark at the pen, then on the canvas only
    // the edge moves to -360 and "CANNOT CLOSE." goes to (0, 600).
    const Figure f{{{FigText{{2000, 300}, 0, "x"}, Palette::Red, Target::Both},
                    {FigScaleLeft{-360}, Palette::Red, Target::Screen},
                    {FigText{{0, 600}, 0, "CANNOT CLOSE."}, Palette::Red, Target::Screen},
                    {FigText{{0, 600}, 1, "Error in curve."}, Palette::Red, Target::Screen}}};

    RecordingSurface screen, printer;
    paintFigure(f, screen, Target::Screen);
    paintFigure(f, printer, Target::Printer);
    EXPECT_EQ(screen.calls(), (Calls{"#800000 text 2000 300 0 x", "scaleLeft -360",
                                     "#800000 text 0 600 0 CANNOT CLOSE.", "#800000 text 0 600 1 Error in curve."}));
    EXPECT_EQ(printer.calls(), (Calls{"#800000 text 2000 300 0 x"}));
}

TEST(FigurePainter, ColourOutsideThePaletteStopsWithInvalidCall)
{
    Figure f = kMixed;
    f.items.insert(f.items.begin() + 1, {FigLine{{0, 0}, {0, 10}}, static_cast<Palette>(16), Target::Both});
    RecordingSurface surface;
    try {
        paintFigure(f, surface, Target::Screen);
        ADD_FAILURE() << "no fault";
    } catch (const VbError &e) {
        EXPECT_EQ(e.number(), 5);
    }
    EXPECT_EQ(surface.calls(), (Calls{"#000080 line 0 0 1500 0"}));
}

} // namespace
