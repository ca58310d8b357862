#include "course_conversion.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

#include "curves.h"
#include "number_read.h"
#include "vb_math.h"

namespace quilmar {

namespace {

// The bearing code of a row: its N/S and E/W cells taken together, as typed.
enum class Code : uint8_t { NE, NW, SE, SW, TurnRight, TurnLeft, Blank, Other };

// The code of N/S + E/W. "N" and "S" alone count as "NE" and "SE"; "+" and "-"
// (blanks around them aside) turn from the running direction; all blanks is a
// tangent course; anything else keeps the typed angle as the direction.
Code readCode(std::string_view ns, std::string_view ew)
{
    const size_t length = ns.size() + ew.size();
    if (length == 1 || length == 2) {
        // The joined text, without building it.
        const char first = ns.empty() ? ew[0] : ns[0];
        const char second = length == 1 ? '\0' : ns.size() == 2 ? ns[1] : ew[ew.size() - 1];
        if (first == 'N' && (second == 'E' || second == '\0'))
            return Code::NE;
        if (first == 'N' && second == 'W')
            return Code::NW;
        if (first == 'S' && (second == 'E' || second == '\0'))
            return Code::SE;
        if (first == 'S' && second == 'W')
            return Code::SW;
    }
    // The joined text trimmed of blanks is one part trimmed when the other part
    // is all blanks; with both parts non-blank it is longer than one character.
    const std::string_view a = trimBlanks(ns), b = trimBlanks(ew);
    if (a.empty() && b.empty())
        return Code::Blank;
    const std::string_view one = b.empty() ? a : a.empty() ? b : std::string_view();
    if (one == "+")
        return Code::TurnRight;
    if (one == "-")
        return Code::TurnLeft;
    return Code::Other;
}

// A cell's number for the leg; NaN (the report's null) when it is beyond range.
double legNumber(const Cell &cell)
{
    try {
        return cell.value();
    } catch (const VbError &) {
        return std::numeric_limits<double>::quiet_NaN();
    }
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
        const std::optional<float> previous = leg.direction;
        leg.direction.reset();
        ++counter;
        std::string_view ns = table.at(i, ColNS).text();
        std::string_view ew = table.at(i, ColEW).text();
        double degrees = table.at(i, ColDeg).value();
        const double minutes = table.at(i, ColMin).value();
        const double seconds = table.at(i, ColSec).value();
        const Cell &distance = table.at(i, ColDistance);
        const Cell &radius = table.at(i, ColRadius);
        const Cell &chord = table.at(i, ColChord);
        leg.distance = legNumber(distance);
        leg.radius = legNumber(radius);
        leg.chord = legNumber(chord);
        leg.radiusTyped = !radius.isEmpty();
        leg.cellsRead = true;
        leg.side = readCurveSide(table.at(i, ColLR).text());
        leg.tag = readTag(table.at(i, ColTag).text());

        if (leg.tag == Tag::NewLot)
            --counter;
        if (leg.tag == Tag::Begin && distance.isEmpty() && radius.isEmpty())
            --counter;
        leg.course = counter;

        // A due-east or due-west course typed as "E" or "W" alone is N 90 E or
        // N 90 W; its minutes and seconds still count.
        if (ns == "E" || ns == "W") {
            degrees = 90.0;
            ew = ns;
            ns = "N";
        }

        // A number beyond range stops the computation here, as reading it always has.
        double chordValue = chord.value();
        const double radiusValue = radius.value();
        double distanceValue = distance.value();
        if (chordValue == 0.0 && radiusValue != 0.0 && distanceValue != 0.0) {
            try {
                chordValue = double(chordFromArc(sng(radiusValue), sng(distanceValue)));
            } catch (const VbError &) {
                message("Error in chord calc");
                chordValue = 0.0;
            }
        }
        if (distanceValue == 0.0 && radiusValue != 0.0 && chordValue != 0.0) {
            try {
                distanceValue = arcFromChord(sng(radiusValue), sng(chordValue));
            } catch (const VbError &) {
                // Deliberate: the arc completion has always carried this text.
                message("Error in calc of gap");
                distanceValue = 0.0;
            }
        }
        leg.distance = distanceValue;
        leg.radius = radiusValue;
        leg.chord = chordValue;

        const float angle = sng(degrees + minutes / 60.0 + seconds / 3600.0);
        float direction = angle;
        const Code code = readCode(ns, ew);
        switch (code) {
        case Code::NE: direction = sng(angle - 90.0); break;
        case Code::NW: direction = sng(-double(angle) - 90.0); break;
        case Code::SE: direction = sng(90.0 - angle); break;
        case Code::SW: direction = sng(angle + 90.0); break;
        case Code::TurnRight: direction = sng(double(running) + angle); break;
        case Code::TurnLeft: direction = sng(double(running) - angle); break;
        case Code::Blank:
        case Code::Other: break;
        }

        if (code == Code::Blank) {
            // A tangent course continues from the running direction.
            const double d = distanceValue;
            const double r = radiusValue;
            if (d <= 0.0 || r <= 0.0) {
                if (d > 0.0)
                    leg.direction = running;
            } else {
                const float delta = sng(360.0 * d / (kPi * (r * 2.0)));
                if (leg.side == CurveSide::Left) {
                    leg.direction = sng(running - delta / 2.0);
                    running = sng(double(running) - delta);
                } else if (leg.side == CurveSide::Right) {
                    leg.direction = sng(running + delta / 2.0);
                    running = sng(double(running) + delta);
                }
            }
        } else {
            leg.direction = direction;
            running = direction;
        }
        // Every command redraws the same table: a row whose direction is the
        // same single as last time (bit for bit) keeps its cosine and sine.
        const bool same = previous.has_value() == leg.direction.has_value() &&
                          (!previous || std::bit_cast<uint32_t>(*previous) == std::bit_cast<uint32_t>(*leg.direction));
        if (!leg.direction) {
            leg.cosine = 1.0;
            leg.sine = 0.0;
            leg.radians = 0.0f;
            leg.radiansCosine = 1.0;
            leg.radiansSine = 0.0;
        } else if (!same) {
            const double a = double(*leg.direction) * kPi / 180.0;
            leg.cosine = std::cos(a);
            leg.sine = std::sin(a);
            leg.radians = sng(a);
            leg.radiansCosine = std::cos(double(leg.radians));
            leg.radiansSine = std::sin(double(leg.radians));
        }
    }
}

} // namespace quilmar
