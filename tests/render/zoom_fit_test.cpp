// The zoom window's fit, its magnifications and its picture's size.

#include <gtest/gtest.h>

#include <tuple>

#include "test_legs.h"
#include "zoom_fit.h"

using namespace quilmar;

using test::course;

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
}

TEST(ZoomFit, Magnifications)
{
    struct Case { const char *answer; double button, menu; };
    const Case cases[] = {{"", 0.95, 0.95}, {"abc", 0.95, 0.95}, {"6", 6 / 6.3, 6.0},   {"1", 1 / 6.3, 1.0},
                          {"0", 0.95, 0.95}, {"-2", -2 / 6.3, -2.0}, {"0.6", 0.6 / 6.3, 0.6}};
    for (const Case &c : cases) {
        EXPECT_DOUBLE_EQ(redrawButtonMagnification(c.answer), c.button) << c.answer;
        EXPECT_DOUBLE_EQ(redrawMenuMagnification(c.answer), c.menu) << c.answer;
    }
}

TEST(ZoomFit, PictureWindowAndTheSixtyTwipJumpWhenTheDragEnds)
{
    const ZoomPicture p = zoomPicture(11520.0f); // twice the screen height, with its scroll bars
    EXPECT_EQ(std::tuple(p.side, p.scrollMax, p.smallChange), std::tuple(23040.0f, 16128, 1612));
    EXPECT_EQ(zoomPictureOffset(1000, false), -1000);
    EXPECT_EQ(zoomPictureOffset(1000, true), -940);
    EXPECT_EQ(zoomPictureOffset(0, true), 60);
    const ZoomWindowPlacement w = zoomWindowPlacement(15360, 11520);
    EXPECT_EQ(std::tuple(w.height, w.width, w.left, w.top), std::tuple(10800, 10800, 2280, 240));
}
