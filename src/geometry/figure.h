#pragma once
// What one walk over the courses draws, kept as data so that any surface (the
// window's canvas, the printer, a PNG or SVG file, a test's recorder) can paint
// it. All coordinates are drawing units (twips); x grows east, y grows south,
// exactly as the canvas's own coordinates before its scale origin is applied.

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "point.h"

namespace quilmar {

/// Which device an item belongs to. Screen items appear on the map canvas; while
/// the map is printed the legs go to both devices and the reference labels only
/// to the printer.
enum class Target : uint8_t { Screen = 1, Printer = 2, Both = 3 };

/// Colours of the classic 16-colour palette by index (1 blue legs, 4 red end mark).
enum class Palette : uint8_t { Black = 0, Blue = 1, Red = 4, White = 15 };

/// A straight line from one point to another.
struct FigLine {
    PointF from, to;
};

/// A circular arc traced counter-clockwise as seen on the map, from @c start to
/// @c end; angles in radians from east, counter-clockwise as seen on the map
/// (that is: angle = atan2(-(y - centre.y), x - centre.x)), each in 0 to 2*pi.
struct FigArc {
    PointF centre;
    float radius = 0.0f;
    double start = 0.0;
    double end = 0.0;
};

/// A full circle (the point-of-beginning mark, 30 twips), not filled.
struct FigCircle {
    PointF centre;
    float radius = 0.0f;
};

/// Text whose top-left corner is at @c at, moved down by @c lineOffset text lines
/// (a second printed line); the line height is the surface's font's.
struct FigText {
    PointF at;
    int lineOffset = 0;
    std::string text; ///< UTF-8
};

/// Moves the canvas's left edge (its ScaleLeft) to @c left for every item that
/// follows; "CANNOT CLOSE." is printed after such a move.
struct FigScaleLeft {
    float left = 0.0f;
};

struct FigureItem {
    std::variant<FigLine, FigArc, FigCircle, FigText, FigScaleLeft> shape;
    Palette colour = Palette::Blue;
    Target target = Target::Screen;
};

struct Figure {
    std::vector<FigureItem> items;
    void clear() { items.clear(); }
};

} // namespace quilmar
