#pragma once
// The classic 16-colour palette that the map's colours are chosen from: legs in
// blue (1), the end mark in red (4), the canvas in light grey and the copied
// bitmap in bright white (15). Colours are plain RGB triples so that the core
// can name them without any drawing library.

#include <cstdint>

#include "figure.h"

namespace quilmar {

/// An opaque colour, 0 to 255 per channel.
struct Rgb {
    uint8_t red = 0;
    uint8_t green = 0;
    uint8_t blue = 0;
    bool operator==(const Rgb &) const = default;
};

/// Background of the map canvas on the screen (light grey).
inline constexpr Rgb kCanvasGrey{192, 192, 192};
/// Background of the map copied to the clipboard as a bitmap (colour 15).
inline constexpr Rgb kBitmapWhite{255, 255, 255};

/// Colour @p index of the 16-colour palette (0 black, 1 blue ... 15 bright white).
/// @throws VbError "Invalid procedure call or argument" (5) outside 0 to 15, as
///         the classic palette function did.
Rgb paletteColour(int index);

/// The same for a figure item's colour; a value outside 0 to 15 throws as above.
Rgb paletteColour(Palette colour);

} // namespace quilmar
