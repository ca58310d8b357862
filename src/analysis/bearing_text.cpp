#include "bearing_text.h"

#include <charconv>
#include <cmath>

#include "vb_math.h"

namespace quilmar::analysis {

namespace {

struct Quadrant {
    bool north = true, east = true;
    double angle = 0.0; ///< degrees from the meridian, 0 to 90
};

Quadrant quadrant(double north, double east)
{
    Quadrant q;
    q.north = north >= 0.0;
    q.east = east >= 0.0;
    q.angle = std::atan2(std::fabs(east), std::fabs(north)) * 180.0 / kPi;
    return q;
}

// Degrees, minutes and seconds of @p angle with the seconds rounded to @p step.
void splitDms(double angle, double step, long &deg, long &min, double &sec)
{
    const double total = std::round(angle * 3600.0 / step) * step;
    deg = long(std::floor(total / 3600.0 + 1e-9));
    const double rest = total - double(deg) * 3600.0;
    min = long(std::floor(rest / 60.0 + 1e-9));
    sec = std::max(0.0, rest - double(min) * 60.0);
    if (sec >= 60.0 - step / 2.0) {
        sec = 0.0;
        ++min;
    }
    if (min >= 60) {
        min -= 60;
        ++deg;
    }
}

// Due east or west reads north, due north or south reads east, whatever side
// of the axis a rounding error put the vector on.
void normalise(Quadrant &q, long deg, long min, double sec)
{
    if (min == 0 && sec == 0.0) {
        if (deg == 90)
            q.north = true;
        if (deg == 0)
            q.east = true;
    }
}

std::string two(long v)
{
    std::string s(v < 10 ? 1 : 0, '0');
    s += std::to_string(v);
    return s;
}

} // namespace

std::string trimmedFixed(double value, int decimals)
{
    char buf[64];
    auto [end, ec] = std::to_chars(buf, buf + sizeof buf, value, std::chars_format::fixed, decimals);
    std::string s = ec == std::errc() ? std::string(buf, end) : std::string("0");
    if (s.find('.') != std::string::npos) {
        while (s.back() == '0')
            s.pop_back();
        if (s.back() == '.')
            s.pop_back();
    }
    if (s == "-0")
        s = "0";
    return s;
}

std::string bearingText(double north, double east)
{
    if (north == 0.0 && east == 0.0)
        return {};
    Quadrant q = quadrant(north, east);
    long deg = 0, min = 0;
    double sec = 0.0;
    splitDms(q.angle, 1.0, deg, min, sec);
    normalise(q, deg, min, sec);
    return std::string(q.north ? "N " : "S ") + std::to_string(deg) + "\u00b0" + two(min) + "'" + two(long(sec)) +
           "\" " + (q.east ? "E" : "W");
}

BearingCells bearingCells(double north, double east)
{
    Quadrant q = quadrant(north, east);
    long deg = 0, min = 0;
    double sec = 0.0;
    splitDms(q.angle, 0.1, deg, min, sec);
    normalise(q, deg, min, sec);
    return {q.north ? "N" : "S", std::to_string(deg), std::to_string(min), trimmedFixed(sec, 1), q.east ? "E" : "W"};
}

double azimuth(double north, double east)
{
    if (north == 0.0 && east == 0.0)
        return 0.0;
    double a = std::atan2(east, north) * 180.0 / kPi;
    if (a < 0.0)
        a += 360.0;
    return a;
}

} // namespace quilmar::analysis
