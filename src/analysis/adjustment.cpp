#include "adjustment.h"

#include <cmath>

#include "bearing_text.h"
#include "vb_math.h"

namespace quilmar::analysis {

double figureArea(const std::vector<double> &north, const std::vector<double> &east,
                  const std::vector<double> &radius, const std::vector<bool> &right)
{
    // Shoelace on (east, north) is positive counter-clockwise; the walk's sides
    // are taken clockwise, where a curve bending right bulges outward and adds.
    const size_t n = north.size();
    double twice = 0.0;
    for (size_t i = 0; i < n; ++i) {
        const size_t j = (i + 1) % n;
        twice += east[i] * north[j] - east[j] * north[i];
    }
    double clockwise = -twice / 2.0;
    for (size_t i = 0; i < radius.size() && i < n; ++i) {
        const double r = std::fabs(radius[i]);
        if (r == 0.0)
            continue;
        const size_t j = (i + 1) % n;
        const double c = std::hypot(north[j] - north[i], east[j] - east[i]);
        const double theta = 2.0 * std::asin(std::min(1.0, c / (2.0 * r)));
        const double segment = r * r / 2.0 * (theta - std::sin(theta));
        clockwise += right[i] ? segment : -segment;
    }
    return std::fabs(clockwise);
}

Adjustment adjust(const LotFigure &lot, AdjustmentRule rule)
{
    double sumLength = 0.0, sumNorth = 0.0, sumEast = 0.0;
    for (const FigureRow &f : lot.rows) {
        if (!f.moves())
            continue;
        sumLength += std::fabs(f.reading.course.length);
        sumNorth += std::fabs(f.north);
        sumEast += std::fabs(f.east);
    }
    Adjustment out;
    std::vector<double> cornersN{lot.startNorth}, cornersE{lot.startEast}, radius;
    std::vector<bool> right;
    double n = lot.startNorth, e = lot.startEast;
    for (const FigureRow &f : lot.rows) {
        if (!f.moves())
            continue;
        const CourseReading &c = f.reading.course;
        double wn = 0.0, we = 0.0;
        if (rule == AdjustmentRule::Compass) {
            wn = we = sumLength > 0.0 ? std::fabs(c.length) / sumLength : 0.0;
        } else {
            wn = sumNorth > 0.0 ? std::fabs(f.north) / sumNorth : 0.0;
            we = sumEast > 0.0 ? std::fabs(f.east) / sumEast : 0.0;
        }
        const double dn = f.north - lot.gapNorth * wn;
        const double de = f.east - lot.gapEast * we;
        n += dn;
        e += de;
        AdjustedCall a;
        a.row = f.row;
        a.north = n;
        a.east = e;
        a.bearing = bearingText(dn, de);
        a.distance = std::hypot(dn, de);
        a.distanceChange = a.distance - std::fabs(c.length);
        double turn = azimuth(dn, de) - azimuth(f.north, f.east);
        if (turn > 180.0)
            turn -= 360.0;
        if (turn < -180.0)
            turn += 360.0;
        a.bearingChange = turn * 3600.0;
        a.curve = c.curve();
        if (!a.curve) {
            a.arc = a.distance;
        } else if (a.distance <= 2.0 * std::fabs(c.radius)) {
            a.arc = 2.0 * std::fabs(c.radius) * std::asin(a.distance / (2.0 * std::fabs(c.radius)));
        }
        out.calls.push_back(std::move(a));
        cornersN.push_back(n);
        cornersE.push_back(e);
        radius.push_back(c.radius);
        right.push_back(c.right);
    }
    // The last corner is the point of beginning again; the polygon closes on its own.
    cornersN.pop_back();
    cornersE.pop_back();
    out.area = figureArea(cornersN, cornersE, radius, right);
    return out;
}

} // namespace quilmar::analysis
