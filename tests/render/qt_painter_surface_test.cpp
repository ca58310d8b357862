// Pixel checks of the Qt surface on a 200 x 100 pixel image (3000 x 1500 twips
// at 15 twips a pixel). Pen lines pass through pixel centres, so a drawing
// point at twip (15i, 15j) lights pixel (i, j).

#include <numbers>

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include "qt_painter_surface.h"

namespace quilmar {
namespace {

constexpr double kPi = std::numbers::pi;

class QtSurfaceTest : public ::testing::Test {
protected:
    QtSurfaceTest() : image(200, 100, QImage::Format_ARGB32_Premultiplied)
    {
        image.fill(toQColor(kCanvasGrey));
    }

    /// Paints with @p draw on a surface whose origin is the image's top-left.
    template <typename Draw>
    void paint(Draw draw)
    {
        QPainter painter(&image);
        QtPainterSurface surface(painter, DeviceMapping::forPixels(0, 0));
        surface.setColour(paletteColour(Palette::Blue));
        draw(surface);
    }

    Rgb at(int x, int y) const
    {
        const QColor c = image.pixelColor(x, y);
        return {uint8_t(c.red()), uint8_t(c.green()), uint8_t(c.blue())};
    }

    /// Whether any pixel within @p reach of (x, y) carries ink (differs from grey).
    bool inkNear(int x, int y, int reach = 1) const
    {
        for (int dy = -reach; dy <= reach; ++dy)
            for (int dx = -reach; dx <= reach; ++dx)
                if (at(x + dx, y + dy) != kCanvasGrey)
                    return true;
        return false;
    }

    QImage image;
};

TEST_F(QtSurfaceTest, HorizontalLegCoversExactlyOnePixelRow)
{
    paint([](Surface &s) { s.line({0, 150}, {1500, 150}); }); // y 150/15 = row 10, to x 100
    const Rgb blue{0, 0, 128};
    for (int x : {1, 50, 99})
        EXPECT_EQ(at(x, 10), blue) << "x " << x;
    EXPECT_EQ(at(50, 9), kCanvasGrey);
    EXPECT_EQ(at(50, 11), kCanvasGrey);
    EXPECT_EQ(at(150, 10), kCanvasGrey); // beyond the end
}

TEST_F(QtSurfaceTest, MovedLeftEdgeShiftsLaterLines)
{
    paint([](Surface &s) {
        s.setScaleLeft(-360);
        s.line({0, 0}, {0, 1500}); // x = (0 + 360)/15 = column 24
    });
    EXPECT_EQ(at(24, 50), (Rgb{0, 0, 128}));
    EXPECT_EQ(at(23, 50), kCanvasGrey);
    EXPECT_EQ(at(0, 50), kCanvasGrey);
}

TEST_F(QtSurfaceTest, QuarterArcRunsCounterClockwiseFromEastToNorth)
{
    // Centre (1500, 750) twips = pixel (100, 50), radius 600 twips = 40 pixels.
    // At 45 degrees the arc passes 40*cos 45 = 28.3 pixels right of and above
    // the centre: pixel (128, 21..22). The other three quadrants stay empty.
    paint([](Surface &s) { s.arc({1500, 750}, 600, 0.0, kPi / 2); });
    EXPECT_TRUE(inkNear(128, 22));
    EXPECT_TRUE(inkNear(140, 50)); // east end
    EXPECT_TRUE(inkNear(100, 10)); // north end
    EXPECT_FALSE(inkNear(128, 78, 2)) << "drawn mirrored (south-east)";
    EXPECT_FALSE(inkNear(71, 22, 2)) << "drawn in the north-west";
    EXPECT_FALSE(inkNear(71, 78, 2)) << "drawn in the south-west";
}

TEST_F(QtSurfaceTest, ArcWhoseEndIsBelowItsStartSweepsThroughEast)
{
    // From 315 degrees counter-clockwise to 45 degrees: the quarter around east
    // (pixel 140, 50), not the three quarters through west (pixel 60, 50).
    paint([](Surface &s) { s.arc({1500, 750}, 600, 1.75 * kPi, 0.25 * kPi); });
    EXPECT_TRUE(inkNear(140, 50));
    EXPECT_FALSE(inkNear(60, 50, 2));
    EXPECT_FALSE(inkNear(100, 10, 2)) << "swept through north";
}

TEST_F(QtSurfaceTest, PointOfBeginningCircleIsNotFilled)
{
    // 30 twips = 2 pixels around pixel (100, 50).
    paint([](Surface &s) { s.circle({1500, 750}, 30); });
    EXPECT_TRUE(inkNear(102, 50, 0));
    EXPECT_EQ(at(100, 50), kCanvasGrey);
    EXPECT_FALSE(inkNear(100, 45, 1));
}

TEST_F(QtSurfaceTest, TextHangsBelowAndRightOfItsPoint)
{
    float height = 0;
    paint([&height](Surface &s) {
        s.text({1500, 300}, 0, "CANNOT CLOSE."); // top-left at pixel (100, 20)
        height = s.textHeight();
    });
    bool inkBelow = false, inkAbove = false, inkLeft = false;
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 200; ++x) {
            const bool ink = at(x, y) != kCanvasGrey;
            inkBelow |= ink && y >= 20 && y < 34 && x >= 100;
            inkAbove |= ink && y < 20;
            inkLeft |= ink && x < 100;
        }
    EXPECT_TRUE(inkBelow);
    EXPECT_FALSE(inkAbove) << "text placed on its baseline instead of its top";
    EXPECT_FALSE(inkLeft);
    // An 11-pixel font spaces its lines about 13 pixels apart: 195 twips.
    EXPECT_GT(height, 150.0f);
    EXPECT_LT(height, 240.0f);
}

TEST_F(QtSurfaceTest, SecondTextLineIsOneTextHeightLower)
{
    float height = 0;
    paint([&height](Surface &s) {
        s.text({0, 0}, 1, "x");
        height = s.textHeight();
    });
    const int lineTop = static_cast<int>(height / 15);
    for (int y = 0; y < lineTop; ++y)
        for (int x = 0; x < 20; ++x)
            ASSERT_EQ(at(x, y), kCanvasGrey) << "ink above the second line at " << x << "," << y;
    EXPECT_TRUE(inkNear(3, lineTop + 8, 3));
}

} // namespace
} // namespace quilmar
