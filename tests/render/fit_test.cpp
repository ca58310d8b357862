// The fit of a figure's computed courses: to the canvas and the printed page
// (level factors, numeric scales, centring, balance shares), and the zoom
// window's fit, magnifications and picture.

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

#include "leg_table.h"
#include "rescaling.h"
#include "vb_math.h"
#include "zoom_fit.h"

using namespace quilmar;

namespace {

/// A straight course as the course conversion leaves it: @p direction degrees
/// from east, clockwise on the map; @p distance ground units.
Leg course(float direction, double distance, Tag tag = Tag::None)
{
    const double radians = double(direction) * kPi / 180.0;
    return {.direction = direction, .cosine = std::cos(radians), .sine = std::sin(radians), .distance = distance,
            .tag = tag};
}

// The fit on a 7200 x 4800 canvas from a fresh state.
FitResult fit(const LegTable &legs, const std::string &scale = "Standard", bool printing = false,
              Units units = Units::Feet, GapShares *shares = nullptr, float previousFactor = 0.0f)
{
    TraverseState state;
    GapShares scratch;
    const ScaleChoice choice{.scaleText = scale, .units = units};
    return rescaling(legs, choice, 7200.0f, 4800.0f, printing, previousFactor, state, shares ? *shares : scratch);
}

} // namespace

TEST(Rescaling, LevelFactors)
{
    const std::pair<const char *, double> cases[] = {{"Minimum", 0.36}, {"small", 0.48}, {" STANDARD ", 0.72},
        {"Maximum", 0.96}, {" 200", 0.72}, {"1000:1", 0.72}, {"Custom", 0.72}, {"", 0.72}};
    for (const auto &[text, factor] : cases)
        EXPECT_EQ(levelFactor(text), factor) << text;
}

TEST(Rescaling, ScreenAndPrintedFactors)
{
    // East 100: extY is taken as 1, fx = 7200 / 100 = 72, fy = 4800: 72 * 0.72 = 51.84.
    const LegTable east{course(0.0f, 100)};
    const struct { const char *scale; bool printing; Units units; float factor; } cases[] = {
        {"Standard", false, Units::Feet, 51.84f},
        {" 200", false, Units::Feet, 51.84f}, // on the screen a numeric scale does not change the fit
        {"1000:1", true, Units::Feet, 1.44f},  // 1440 / 1000
        {" 200", true, Units::Meters, 2.88f},  // 576 / 200
        {" 200", true, Units::Other, 103.68f}, // doubled
        {"Standard", true, Units::Feet, 103.68f}};
    for (const auto &c : cases)
        EXPECT_FLOAT_EQ(fit(east, c.scale, c.printing, c.units).scaleFactor, c.factor) << c.scale << c.printing;
    // Centred: offX = (7200 - 5184) / 2 = 1008, offY = (4800 - 51.84) / 2 = 2374.08.
    const FitResult screen = fit(east);
    EXPECT_FLOAT_EQ(screen.scaleLeft, -1008.0f);
    EXPECT_FLOAT_EQ(screen.scaleTop, -2375.0f); // Int rounds toward minus infinity
    EXPECT_FALSE(screen.failed);
    // Printed: centred on twice the canvas, offX = (14400 - 10368) / 2.
    EXPECT_FLOAT_EQ(fit(east, "Standard", true).scaleLeft, -2016.0f);
    // South 100 to an origin, east 300 tagged "C" back to the origin-beginning,
    // then "N" and west 50: extents x -50..300, y 0..100.
    const LegTable lots{course(90.0f, 100, Tag::Origin), course(0.0f, 300, Tag::Close), course(0.0f, 0, Tag::NewLot),
                        course(180.0f, 50)};
    EXPECT_NEAR(fit(lots, "Maximum").scaleFactor, 7200.0 / 350.0 * 0.96, 1e-4);
}

TEST(Rescaling, BalanceSharesSpreadTheGapOverStraightLegs)
{
    GapShares shares{9, 9, 9};
    const FitResult f = fit({course(0.0f, 100), course(90.0f, 50)}, "Standard", false, Units::Feet, &shares);
    EXPECT_EQ(shares.legCount, 2);
    EXPECT_NEAR(shares.x, 100.0 * f.scaleFactor / 2, 1e-3);
    EXPECT_NEAR(shares.y, 50.0 * f.scaleFactor / 2, 1e-3);
    // No straight leg: the shares keep their values, without a message.
    GapShares kept{9, 9, 9};
    fit({}, "Standard", false, Units::Feet, &kept);
    EXPECT_EQ(kept.legCount, 9);
}

TEST(Rescaling, AutoScaleCaption)
{
    const ScaleChoice feet, metres{.units = Units::Meters};
    EXPECT_EQ(autoScaleCaption(feet, 14.4f), "AutoScale = 50");
    EXPECT_EQ(autoScaleCaption(metres, 14.4f), "AutoScale = 20"); // 576 / 28.8
    EXPECT_EQ(autoScaleCaption(feet, 720.0f), "");                 // 1440 / 1440 = 1 is not above 1
    EXPECT_EQ(autoScaleCaption(feet, 514.2857f), "");               // 1.4 reads 1 as a whole number: not above 1
    EXPECT_EQ(autoScaleCaption(feet, 480.0f), "AutoScale = 2");     // 1.5 reads 2
    EXPECT_THROW(autoScaleCaption(feet, 0.0f), VbError);
}

TEST(Rescaling, AFaultKeepsTheFactorReached)
{
    // Each row's point is fitted as it is reached: a fault ends the fit at that
    // row, with the factor of the rows before it (before the level factor).
    const struct { LegTable legs; float factor; } cases[] = {
        {{course(0.0f, 100), course(0.0f, 1e39)}, 72.0f},   // the step beyond single range
        {{course(0.0f, 1e-40), course(0.0f, 100)}, 5.0f},   // the first row's extent too thin to divide by
        {{course(0.0f, 100), course(90.0f, 1e-40)}, 72.0f}, // the second row's
    };
    for (const auto &c : cases) {
        const FitResult f = fit(c.legs, "Standard", false, Units::Feet, nullptr, 5.0f);
        EXPECT_TRUE(f.failed) << c.legs.back().distance;
        EXPECT_FLOAT_EQ(f.scaleFactor, c.factor) << c.legs.back().distance;
    }
}

TEST(ZoomFit, FitsNinetyFivePercentAndCentres)
{
    // 100 east, 50 south on 20000 x 20000: fx = 200, fy = 400 -> 200 x 0.95 = 190
    TraverseState state;
    const LegTable legs{course(0.0f, 100.0), course(90.0f, 50.0)};
    const ZoomFit fit = zoomFit(legs, 20000.0f, 20000.0f, state);
    EXPECT_FALSE(fit.failed);
    EXPECT_FLOAT_EQ(fit.scaleFactor, 190.0f);
    // Int(0 - (20000 - 19000) / 2) = -500; Int(0 - (20000 - 9500) / 2) = -5250
    EXPECT_FLOAT_EQ(fit.scaleLeft, -500.0f);
    EXPECT_FLOAT_EQ(fit.scaleTop, -5250.0f);
    // A magnified redraw keeps that origin and only scales the factor.
    EXPECT_FLOAT_EQ(magnifiedScaleFactor(fit, 2.0), 380.0f);
    // A single point fits the picture's side.
    EXPECT_NEAR(zoomFit({}, 23040.0f, 23040.0f, state).scaleFactor, 23040 * 0.95, 1e-2);
    // Fitted at every row, as the main fit: a first row too thin to divide by faults.
    EXPECT_TRUE(zoomFit({course(0.0f, 1e-40), course(0.0f, 100)}, 20000.0f, 20000.0f, state).failed);
}

TEST(ZoomFit, Magnifications)
{
    const struct { const char *answer; double button, menu; } cases[] = {
        {"", 0.95, 0.95}, {"abc", 0.95, 0.95}, {"6", 6 / 6.3, 6.0}, {"1", 1 / 6.3, 1.0}, {"0", 0.95, 0.95},
        {"-2", -2 / 6.3, -2.0}, {"0.6", 0.6 / 6.3, 0.6}};
    for (const auto &c : cases) {
        EXPECT_DOUBLE_EQ(redrawButtonMagnification(c.answer), c.button) << c.answer;
        EXPECT_DOUBLE_EQ(redrawMenuMagnification(c.answer), c.menu) << c.answer;
    }
}

TEST(ZoomFit, PictureWindowAndTheSixtyTwipJumpWhenTheDragEnds)
{
    const ZoomPicture p = zoomPicture(11520.0f); // twice the screen height, with its scroll bars
    EXPECT_EQ(std::tuple(p.side, p.scrollMax, p.smallChange, p.overflow), std::tuple(23040.0f, 16128, 1612, false));
    // 0.7 of twice 23406 twips passes the bars' 16-bit maximum: held there, and flagged
    const ZoomPicture tall = zoomPicture(23406.0f);
    EXPECT_EQ(std::tuple(tall.scrollMax, tall.overflow, zoomPicture(23405.0f).overflow), std::tuple(32767, true, false));
    EXPECT_EQ(std::tuple(zoomPictureOffset(1000, false), zoomPictureOffset(1000, true), zoomPictureOffset(0, true)),
              std::tuple(-1000, -940, 60));
    const ZoomWindowPlacement w = zoomWindowPlacement(15360, 11520);
    EXPECT_EQ(std::tuple(w.height, w.width, w.left, w.top), std::tuple(10800, 10800, 2280, 240));
}
