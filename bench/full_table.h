#pragma once
// The benchmarks' full table: 202 rows mixing straight courses, tangent curves,
// curves by chord and turned courses, as a long subdivision deed would have
// them, closed by a last row tagged "C" with the given closing radius ("" for a
// straight close).

#include <string>

#include "course_table.h"
#include "prompter.h"

namespace quilmar::bench {

class Silent : public Prompter {
public:
    Answer ask(const std::string &, const std::string &, Buttons, Icon) override { return Answer::Ok; }
};

// The kinds of row the full tables mix; @p distance in feet.
inline void setTangentCurve(CourseTable &t, int r, const std::string &distance)
{
    t.at(r, ColDistance) = distance;
    t.at(r, ColRadius) = std::to_string(300 + (r * 13) % 500);
    t.at(r, ColLR) = r % 2 ? "R" : "L";
}

inline void setQuadrantBearing(CourseTable &t, int r, const std::string &distance)
{
    t.at(r, ColNS) = r % 4 < 2 ? "N" : "S";
    t.at(r, ColDeg) = std::to_string((r * 7) % 90);
    t.at(r, ColMin) = std::to_string((r * 11) % 60);
    t.at(r, ColSec) = std::to_string((r * 17) % 60);
    t.at(r, ColEW) = r % 3 ? "E" : "W";
    t.at(r, ColDistance) = distance;
}

inline void setTurnedCourse(CourseTable &t, int r, const std::string &distance)
{
    t.at(r, ColNS) = r % 4 < 2 ? "+" : "-";
    t.at(r, ColDeg) = std::to_string(10 + r % 50);
    t.at(r, ColDistance) = distance;
}

/// A curve given by its chord's bearing (whole degrees), chord and radius 400.
inline void setCurveByChord(CourseTable &t, int r)
{
    t.at(r, ColNS) = "S";
    t.at(r, ColDeg) = std::to_string(r % 90);
    t.at(r, ColEW) = "W";
    t.at(r, ColChord) = std::to_string(100 + r % 150);
    t.at(r, ColRadius) = "400";
    t.at(r, ColLR) = r % 2 ? "L" : "R";
}

inline void fillFullTable(quilmar::CourseTable &t, const char *closingRadius)
{
    using namespace quilmar;
    t.at(0, ColTag) = "B";
    for (int r = 1; r < CourseTable::kRows - 1; ++r) {
        const std::string distance = std::to_string(100 + (r * 37) % 400);
        switch (r % 5) {
        case 0: setTangentCurve(t, r, distance); break;
        case 1: setQuadrantBearing(t, r, distance); break;
        case 2: setTurnedCourse(t, r, distance); break;
        case 3: setCurveByChord(t, r); break;
        default: // tangent straight course
            t.at(r, ColDistance) = distance;
            break;
        }
    }
    t.at(CourseTable::kRows - 1, ColRadius) = closingRadius;
    t.at(CourseTable::kRows - 1, ColTag) = "C";
    t.gethighest();
}

} // namespace quilmar::bench
