#include <gtest/gtest.h>

#include "palette.h"
#include "vb_math.h"

namespace quilmar {
namespace {

TEST(Palette, EveryIndexGivesItsClassicColour)
{
    // Dark colours at half intensity 128, light ones at 255; 7 is the light grey.
    const Rgb expected[16] = {
        {0, 0, 0},       {0, 0, 128},     {0, 128, 0},     {0, 128, 128},
        {128, 0, 0},     {128, 0, 128},   {128, 128, 0},   {192, 192, 192},
        {128, 128, 128}, {0, 0, 255},     {0, 255, 0},     {0, 255, 255},
        {255, 0, 0},     {255, 0, 255},   {255, 255, 0},   {255, 255, 255},
    };
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(paletteColour(i), expected[i]) << "index " << i;
    EXPECT_EQ(paletteColour(Palette::Blue), (Rgb{0, 0, 128}));
    EXPECT_EQ(paletteColour(Palette::Red), (Rgb{128, 0, 0}));
    EXPECT_EQ(paletteColour(Palette::White), kBitmapWhite);
    EXPECT_EQ(paletteColour(7), kCanvasGrey);
}

TEST(Palette, IndexOutsideThePaletteIsAnInvalidCall)
{
    for (int index : {-1, 16, 255}) {
        try {
            paletteColour(index);
            ADD_FAILURE() << "no fault for index " << index;
        } catch (const VbError &e) {
            EXPECT_EQ(e.number(), 5) << "index " << index;
        }
    }
}

} // namespace
} // namespace quilmar
