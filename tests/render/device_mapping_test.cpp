#include <cmath>
#include <stdexcept>

#include <gtest/gtest.h>

#include "device_mapping.h"

using namespace quilmar;

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
        {DeviceMapping::forDotsPerInch(0, 0, 600), {1440, 720}, {600, 300}},
    };
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
