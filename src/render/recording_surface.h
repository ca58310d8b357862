#pragma once
// A surface that draws nothing and keeps a line of text per call instead, so
// that tests can check what a painter drew, in which order and colour, without
// looking at pixels.
//
// Each drawing call is kept as "#rrggbb kind numbers...", with the colour in
// force at the time, e.g. "#000080 line 0 150 1500 150"; a move of the scale
// origin as "scaleLeft -360" or "scaleOrigin -360 -1080", a font as
// "font Arial 7.8 bold|plain", a new page as "newPage". Numbers are written in
// their shortest exact form ("0.5", "-360", "1.5707963").
//
// Text metrics are simple and exact, so that tests can work positions out by
// hand: a character is half the font's size wide (80 twips at 8 points) and a
// line is the constructor's height scaled by the font's size over 8 points.

#include <string>
#include <vector>

#include "surface.h"

namespace quilmar {

class RecordingSurface : public Surface {
public:
    /// @param textHeight  the line height (twips) that textHeight() reports;
    ///                    195 is an 8-point font on a 96-dpi screen (13 pixels)
    explicit RecordingSurface(float textHeight = 195.0f) : m_textHeight(textHeight) {}

    float scaleLeft() const override { return m_left; }
    float scaleTop() const override { return m_top; }
    void setScaleLeft(float left) override;
    void setScaleOrigin(float left, float top) override;
    void setColour(Rgb colour) override { m_colour = colour; }
    void line(PointF from, PointF to) override;
    void arc(PointF centre, float radius, double startRadians, double endRadians) override;
    void circle(PointF centre, float radius) override;
    /// Kept as "#rrggbb text x y lineOffset the text".
    void text(PointF at, int lineOffset, std::string_view utf8) override;
    float textHeight() const override { return m_textHeight * m_font.points / 8.0f; }
    void setFont(const TextFont &font) override;
    void newPage() override;

    const std::vector<std::string> &calls() const { return m_calls; }
    Rgb colour() const { return m_colour; }

private:
    float m_textHeight;
    float m_left = 0.0f;
    float m_top = 0.0f;
    Rgb m_colour{};
    std::vector<std::string> m_calls;
};

} // namespace quilmar
