#include "recording_surface.h"

#include <charconv>

namespace quilmar {

namespace {

// Singles are written in their own shortest form, so 0.1f reads "0.1" and not
// "0.10000000149011612".
template <typename T>
void appendNumber(std::string &out, T v)
{
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, v);
    out.append(buffer, result.ptr);
}

std::string colourText(Rgb c)
{
    static constexpr char kHex[] = "0123456789abcdef";
    std::string s = "#";
    for (uint8_t v : {c.red, c.green, c.blue}) {
        s += kHex[v >> 4];
        s += kHex[v & 15];
    }
    return s;
}

std::string floats(std::initializer_list<float> numbers)
{
    std::string s;
    for (float v : numbers) {
        s += ' ';
        appendNumber(s, v);
    }
    return s;
}

} // namespace

void RecordingSurface::setScaleLeft(float left)
{
    m_left = left;
    m_calls.push_back("scaleLeft" + floats({left}));
}

void RecordingSurface::setScaleOrigin(float left, float top)
{
    m_left = left;
    m_top = top;
    m_calls.push_back("scaleOrigin" + floats({left, top}));
}

void RecordingSurface::line(PointF from, PointF to)
{
    m_calls.push_back(colourText(m_colour) + " line" + floats({from.x, from.y, to.x, to.y}));
}

void RecordingSurface::arc(PointF centre, float radius, double startRadians, double endRadians)
{
    std::string s = colourText(m_colour) + " arc" + floats({centre.x, centre.y, radius});
    for (double angle : {startRadians, endRadians}) {
        s += ' ';
        appendNumber(s, angle);
    }
    m_calls.push_back(std::move(s));
}

void RecordingSurface::circle(PointF centre, float radius)
{
    m_calls.push_back(colourText(m_colour) + " circle" + floats({centre.x, centre.y, radius}));
}

void RecordingSurface::text(PointF at, int lineOffset, std::string_view utf8)
{
    std::string s = colourText(m_colour) + " text" + floats({at.x, at.y}) + ' ' + std::to_string(lineOffset) + ' ';
    s.append(utf8);
    m_calls.push_back(std::move(s));
}

void RecordingSurface::setFont(const TextFont &font)
{
    m_font = font;
    m_calls.push_back("font " + font.name + floats({font.points}) + (font.bold ? " bold" : " plain"));
}

void RecordingSurface::newPage()
{
    m_calls.push_back("newPage");
}

} // namespace quilmar
