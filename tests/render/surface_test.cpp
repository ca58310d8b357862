// The mapping from drawing units to a device, and pixel checks of the Qt
// surface on a 200 x 100 pixel image (3000 x 1500 twips at 15 twips a pixel).
// Pen lines pass through pixel centres, so a drawing point at twip (15i, 15j)
// lights pixel (i, j).

#include <algorithm>
#include <cmath>
#include <numbers>
#include <stdexcept>
#include <vector>

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include "device_mapping.h"
#include "qt_painter_surface.h"

using namespace quilmar;

namespace {

constexpr double kPi = std::numbers::pi;
constexpr Rgb kGrey{192, 192, 192};

TEST(DeviceMapping, MapsPointsAndLengthsToDeviceAndBack)
{
    const struct { DeviceMapping mapping; PointF drawing, device; } cases[] = { // twips, device units
        // Origin (-360, -1080) at 15 twips a pixel: 360/15 = 24, 1080/15 = 72.
        {DeviceMapping::forPixels(-360, -1080), {0, 0}, {24, 72}},
        // (1440 + 360)/15 = 120, (150 + 1080)/15 = 82.
        {DeviceMapping::forPixels(-360, -1080), {1440, 150}, {120, 82}},
        // Origin right of the point: (100 - 400)/15 = -20, 45/15 = 3.
        {DeviceMapping::forPixels(400, 0), {100, 45}, {-20, 3}},
        // 600-dpi printer: 1440 twips (an inch) are 600 dots, 720 twips 300.
        {DeviceMapping::forDotsPerInch(0, 0, 600), {1440, 720}, {600, 300}}};
    for (const auto &c : cases) {
        const PointF device = c.mapping.toDevice(c.drawing);
        EXPECT_NEAR(device.x, c.device.x, 1e-4);
        EXPECT_NEAR(device.y, c.device.y, 1e-4);
        const PointF back = c.mapping.toDrawing(c.device);
        EXPECT_NEAR(back.x, c.drawing.x, 1e-3);
        EXPECT_NEAR(back.y, c.drawing.y, 1e-3);
    }
    // Lengths ignore the origin; the left edge moves only x.
    DeviceMapping m = DeviceMapping::forPixels(-360, -1080);
    EXPECT_NEAR(m.toDeviceLength(30), 2.0, 1e-12);   // 30/15
    EXPECT_NEAR(m.toDrawingLength(13), 195.0, 1e-9); // 13*15
    m.setScaleLeft(0);
    const PointF p = m.toDevice({0, 600});
    EXPECT_NEAR(p.x, 0.0, 1e-5);
    EXPECT_NEAR(p.y, 112.0, 1e-5); // (600 + 1080)/15
}

TEST(DeviceMapping, RejectsScalesThatAreNotPositive)
{
    EXPECT_THROW(DeviceMapping(0, 0, 0.0), std::invalid_argument);
    EXPECT_THROW(DeviceMapping(0, 0, -1.0 / 15), std::invalid_argument);
    EXPECT_THROW(DeviceMapping(0, 0, NAN), std::invalid_argument);
    EXPECT_THROW(DeviceMapping::forDotsPerInch(0, 0, INFINITY), std::invalid_argument);
}

class QtSurfaceTest : public ::testing::Test {
protected:
    QtSurfaceTest() : image(200, 100, QImage::Format_ARGB32_Premultiplied) { image.fill(QColor(192, 192, 192)); }

    /// Paints with @p draw in blue on a surface whose origin is the image's top-left.
    template <typename Draw> void paint(Draw draw)
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

    /// Whether any pixel of the rectangle (inclusive, clipped to the image) is not grey.
    bool inkIn(int x0, int y0, int x1, int y1) const
    {
        for (int y = std::max(y0, 0); y <= std::min(y1, 99); ++y)
            for (int x = std::max(x0, 0); x <= std::min(x1, 199); ++x)
                if (at(x, y) != kGrey)
                    return true;
        return false;
    }
    bool inkNear(int x, int y, int reach) const { return inkIn(x - reach, y - reach, x + reach, y + reach); }

    QImage image;
};

TEST_F(QtSurfaceTest, LegCoversExactlyOnePixelRowAndFollowsTheLeftEdge)
{
    paint([](Surface &s) {
        s.line({0, 150}, {1500, 150}); // row 150/15 = 10, columns 0 to 100
        s.setScaleLeft(-360);
        s.line({0, 450}, {0, 1500});   // column (0 + 360)/15 = 24, rows 30 to 100
    });
    const Rgb blue{0, 0, 128};
    const struct { int x, y; Rgb colour; } pixels[] = {{1, 10, blue},   {50, 10, blue}, {50, 9, kGrey}, {50, 11, kGrey},
                                                       {150, 10, kGrey}, {24, 60, blue}, {23, 60, kGrey}, {0, 60, kGrey}};
    for (const auto &p : pixels)
        EXPECT_EQ(at(p.x, p.y), p.colour) << p.x << "," << p.y;
}

TEST_F(QtSurfaceTest, ArcsRunCounterClockwiseAsSeenOnTheMap)
{
    // Centre (1500, 750) twips = pixel (100, 50), radius 600 twips = 40 pixels:
    // east (140, 50), north (100, 10), west (60, 50); at 45 degrees 40*cos 45 =
    // 28.3 pixels off the centre each way: NE (128, 22), SE (128, 78), NW (71, 22).
    const struct { double start, end; std::vector<QPoint> inked, empty; } cases[] = {
        {0.0, kPi / 2, {{128, 22}, {140, 50}, {100, 10}}, {{128, 78}, {71, 22}, {71, 78}}},
        // An end below the start: the quarter round east, not three quarters.
        {1.75 * kPi, 0.25 * kPi, {{140, 50}}, {{60, 50}, {100, 10}}}};
    for (const auto &c : cases) {
        image.fill(QColor(192, 192, 192));
        paint([&c](Surface &s) { s.arc({1500, 750}, 600, c.start, c.end); });
        for (QPoint p : c.inked)
            EXPECT_TRUE(inkNear(p.x(), p.y(), 1)) << c.start << " to " << c.end << " misses " << p.x() << "," << p.y();
        for (QPoint p : c.empty)
            EXPECT_FALSE(inkNear(p.x(), p.y(), 2)) << c.start << " to " << c.end << " inks " << p.x() << "," << p.y();
    }
}

TEST_F(QtSurfaceTest, PointOfBeginningCircleIsNotFilled)
{
    paint([](Surface &s) { s.circle({1500, 750}, 30); }); // 2 pixels round (100, 50)
    EXPECT_TRUE(inkNear(102, 50, 0));
    EXPECT_EQ(at(100, 50), kGrey);
    EXPECT_FALSE(inkNear(100, 45, 1));
}

TEST_F(QtSurfaceTest, TextHangsFromItsTopLeftCornerLinesBelow)
{
    float height = 0;
    paint([&height](Surface &s) {
        s.text({1500, 150}, 1, "CANNOT CLOSE."); // second line below pixel (100, 10)
        height = s.textHeight();
    });
    // An 11-pixel font spaces its lines about 13 pixels apart: some 195 twips.
    ASSERT_GT(height, 150.0f);
    ASSERT_LT(height, 240.0f);
    const int top = 10 + static_cast<int>(height / 15);
    EXPECT_TRUE(inkIn(100, top, 199, top + 13));
    EXPECT_FALSE(inkIn(0, 0, 199, top - 1)) << "text placed on its baseline or on the first line";
    EXPECT_FALSE(inkIn(0, 0, 99, 99));
}

} // namespace
