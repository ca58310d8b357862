#include "palette.h"

#include <array>

#include "vb_math.h"

namespace quilmar {

namespace {

// Dark colours use half intensity (128), their light partners full (255); the
// "white" of index 7 is the light grey that the canvas also uses.
constexpr std::array<Rgb, 16> kPalette{{
    {0, 0, 0},       {0, 0, 128},     {0, 128, 0},     {0, 128, 128},
    {128, 0, 0},     {128, 0, 128},   {128, 128, 0},   {192, 192, 192},
    {128, 128, 128}, {0, 0, 255},     {0, 255, 0},     {0, 255, 255},
    {255, 0, 0},     {255, 0, 255},   {255, 255, 0},   {255, 255, 255},
}};

} // namespace

Rgb paletteColour(int index)
{
    if (index < 0 || index >= static_cast<int>(kPalette.size()))
        throw VbError::invalidCall();
    return kPalette[static_cast<size_t>(index)];
}

Rgb paletteColour(Palette colour)
{
    return paletteColour(static_cast<int>(colour));
}

} // namespace quilmar
