#pragma once
// Something the map can be drawn on: the window's canvas, the printer page, an
// image, an SVG file or a test's recorder. It is shaped like a picture box: a
// movable scale origin, a fore colour, and lines, arcs, circles and text in
// drawing units (twips; x east, y south). Every call draws with a 1-unit solid
// pen and never fills. A printer page adds fonts, measured text and new pages;
// a surface that has none of these keeps one font and one page.

#include <string>
#include <string_view>

#include "palette.h"
#include "point.h"

namespace quilmar {

/// A text font as a printer knows it: face name, size in points (1/72 inch,
/// 20 twips), bold or not.
struct TextFont {
    std::string name = "Arial";
    float points = 8.0f;
    bool bold = false;
    bool operator==(const TextFont &) const = default;
};

class Surface {
public:
    virtual ~Surface() = default;

    /// The drawing point (twips) shown at the surface's left or top edge.
    virtual float scaleLeft() const = 0;
    virtual float scaleTop() const = 0;

    /// Moves the left edge to @p left twips; items drawn afterwards shift with it.
    /// Any finite value is accepted.
    virtual void setScaleLeft(float left) = 0;
    /// Moves both edges at once (twips).
    virtual void setScaleOrigin(float left, float top) = 0;

    /// Pen and text colour of every later call.
    virtual void setColour(Rgb colour) = 0;

    /// A straight line between two drawing points (twips), both ends drawn.
    virtual void line(PointF from, PointF to) = 0;

    /// A circular arc around @p centre (twips) of @p radius (twips), traced
    /// counter-clockwise as seen on the map from @p startRadians to @p endRadians.
    /// Angles are radians from east, counter-clockwise as seen on the map (the
    /// point at angle t is centre + radius * (cos t, -sin t), y growing south).
    /// An end below the start sweeps through east; equal angles, a radius not
    /// above 0 or a non-finite value draw nothing.
    virtual void arc(PointF centre, float radius, double startRadians, double endRadians) = 0;

    /// A circle outline (not filled); a radius not above 0 draws nothing.
    virtual void circle(PointF centre, float radius) = 0;

    /// One line of UTF-8 text whose top-left corner lies at @p at (twips) moved
    /// down by @p lineOffset text lines of textHeight() (0: at @p at itself).
    /// Invalid UTF-8 is drawn with replacement characters.
    virtual void text(PointF at, int lineOffset, std::string_view utf8) = 0;

    /// Height of one text line in the surface's font, in twips (above 0).
    virtual float textHeight() const = 0;

    /// The font of later text() calls. A surface without fonts keeps its own and
    /// reports the last one set.
    virtual TextFont font() const { return m_font; }
    virtual void setFont(const TextFont &font) { m_font = font; }

    /// Printed width of @p utf8 in the current font, in twips (0 for "").
    /// Without real metrics: half the font's size a character.
    virtual float textWidth(std::string_view utf8) const
    {
        return float(utf8.size()) * m_font.points * 10.0f;
    }

    /// Ends the page and starts a new one with the same scale origin and font;
    /// a surface of one page (a canvas, an image) ignores it.
    virtual void newPage() {}

protected:
    TextFont m_font;
};

} // namespace quilmar
