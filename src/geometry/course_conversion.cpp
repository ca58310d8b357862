#include "course_conversion.h"

#include "curves.h"
#include "number_read.h"
#include "vb_math.h"

namespace quilmar {

namespace {

// The direction a quadrant bearing gives; any other code leaves the angle as it is.
float quadrantDirection(const std::string &code, float angle)
{
    if (code == "NE" || code == "N")
        return sng(angle - 90.0);
    if (code == "NW")
        return sng(-double(angle) - 90.0);
    if (code == "SE" || code == "S")
        return sng(90.0 - angle);
    if (code == "SW")
        return sng(angle + 90.0);
    return angle;
}

} // namespace

LegTable convertCourses(CourseTable &table, const MessageFn &message)
{
    LegTable legs;
    convertCourses(table, legs, message);
    return legs;
}

void convertCourses(CourseTable &table, LegTable &legs, const MessageFn &message)
{
    if (table.highest > CourseTable::kMaxHighest)
        table.highest = CourseTable::kMaxHighest;
    const int last = table.highest + 1;
    legs.resize(last + 1);

    float running = 0.0f;
    int counter = 0;
    for (int i = 0; i <= last; ++i) {
        Leg &leg = legs[i];
        leg.direction.reset();
        ++counter;
        std::string_view ns = table.at(i, ColNS).text();
        std::string_view ew = table.at(i, ColEW).text();
        double degrees = table.at(i, ColDeg).value();
        const double minutes = table.at(i, ColMin).value();
        const double seconds = table.at(i, ColSec).value();
        const Cell &distance = table.at(i, ColDistance);
        const Cell &radius = table.at(i, ColRadius);
        leg.distance = distance;
        leg.radius = radius;
        leg.lr = table.at(i, ColLR).text();
        leg.chord = table.at(i, ColChord);
        leg.tag = table.at(i, ColTag).text();

        const std::string_view tag = trimBlanks(leg.tag);
        if (tag == "N")
            --counter;
        if (tag == "B" && distance.isEmpty() && radius.isEmpty())
            --counter;
        leg.course = counter;

        // A due-east or due-west course typed as "E" or "W" alone is N 90 E or
        // N 90 W; its minutes and seconds still count.
        if (ns == "E" || ns == "W") {
            degrees = 90.0;
            ew = ns;
            ns = "N";
        }

        double chordValue = leg.chord.value();
        const double radiusValue = radius.value();
        double distanceValue = distance.value();
        if (chordValue == 0.0 && radiusValue != 0.0 && distanceValue != 0.0) {
            try {
                leg.chord = Cell(double(chordFromArc(sng(radiusValue), sng(distanceValue))));
                chordValue = leg.chord.number();
            } catch (const VbError &) {
                message("Error in chord calc");
                leg.chord = Cell(0.0);
                chordValue = 0.0;
            }
        }
        if (distanceValue == 0.0 && radiusValue != 0.0 && chordValue != 0.0) {
            try {
                leg.distance = Cell(arcFromChord(sng(radiusValue), sng(chordValue)));
                distanceValue = leg.distance.number();
            } catch (const VbError &) {
                // Deliberate: the arc completion has always carried this text.
                message("Error in calc of gap");
                leg.distance = Cell(0.0);
                distanceValue = 0.0;
            }
        }

        const float angle = sng(degrees + minutes / 60.0 + seconds / 3600.0);
        std::string code;
        code.reserve(ns.size() + ew.size());
        code.append(ns).append(ew);
        float direction = quadrantDirection(code, angle);
        const std::string_view trimmedCode = trimBlanks(code);
        leg.distanceValue = distanceValue;
        leg.radiusValue = radiusValue;
        leg.chordValue = chordValue;

        if (trimmedCode.empty()) {
            // A tangent course continues from the running direction.
            const double d = leg.distanceValue;
            const double r = leg.radiusValue;
            if (d <= 0.0 || r <= 0.0) {
                if (d > 0.0)
                    leg.direction = running;
            } else {
                const float delta = sng(360.0 * d / (kPi * (r * 2.0)));
                const std::string_view lr = trimBlanks(leg.lr);
                if (lr == "L") {
                    leg.direction = sng(running - delta / 2.0);
                    running = sng(double(running) - delta);
                } else if (lr == "R") {
                    leg.direction = sng(running + delta / 2.0);
                    running = sng(double(running) + delta);
                }
            }
            continue;
        }
        if (trimmedCode == "+")
            direction = sng(double(running) + angle);
        else if (trimmedCode == "-")
            direction = sng(double(running) - angle);
        leg.direction = direction;
        running = direction;
    }
}

} // namespace quilmar
