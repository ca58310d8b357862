// The traverse: the course table's highest row, the conversion of its rows to
// courses, the curves, and the walk that turns them into a figure.

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "course_conversion.h"
#include "course_table.h"
#include "curves.h"
#include "table_builder.h"
#include "vb_math.h"
#include "walk.h"

using namespace quilmar;
using quilmar::test::makeTable;
using quilmar::test::Row;

namespace {

LegTable convert(CourseTable t, std::vector<std::string> *messages = nullptr)
{
    return convertCourses(t, [&](const std::string &m) {
        if (messages)
            messages->push_back(m);
    });
}

struct Walked { TraverseState state; Figure figure; WalkStop stop = WalkStop::None; };

// Walks @p t at scale 1 with the area and perimeter sums on.
Walked walk(CourseTable t)
{
    Walked w;
    w.state.areaMode = w.state.perimeterMode = true;
    w.stop = walkCourses(convertCourses(t, [](const std::string &) {}), WalkOptions{}, w.state, w.figure);
    return w;
}

template <class T> std::vector<T> itemsOf(const Figure &f)
{
    std::vector<T> out;
    for (const FigureItem &i : f.items)
        if (auto p = std::get_if<T>(&i.shape))
            out.push_back(*p);
    return out;
}

// From a bare beginning: east 100, south 100, then the closing row @p close.
Walked corner(test::Row close)
{
    return walk(makeTable({{"", "", "", "", "", "", "", "", "", "B"}, {"E", "", "", "", "", "100", "", "", "", ""},
                           {"S", "", "", "", "", "100", "", "", "", ""}, close}));
}

} // namespace

TEST(CourseConversion, DirectionOfTheLastRow)
{
    const struct { const char *what; std::vector<Row> rows; float direction; } cases[] = {
        {"N 0 E is north", {{"N", "0", "0", "0", "E", "100", "", "", "", ""}}, -90.0f},
        {"S 45 W", {{"S", "45", "0", "0", "W", "100", "", "", "", ""}}, 135.0f},
        {"N 45 E", {{"N", "45", "", "", "E", "100", "", "", "", ""}}, -45.0f},
        {"N 45 W", {{"N", "45", "", "", "W", "100", "", "", "", ""}}, -135.0f},
        {"S 45 E", {{"S", "45", "", "", "E", "100", "", "", "", ""}}, 45.0f},
        {"N alone is north", {{"N", "", "", "", "", "100", "", "", "", ""}}, -90.0f},
        {"S alone is south", {{"S", "", "", "", "", "100", "", "", "", ""}}, 90.0f},
        {"E alone is N 90 E", {{"E", "", "", "", "", "50", "", "", "", ""}}, 0.0f},
        {"E keeps its minutes", {{"E", "", "30", "", "", "50", "", "", "", ""}}, 0.5f},
        {"W alone is N 90 W", {{"W", "", "", "", "", "50", "", "", "", ""}}, -180.0f},
        {"N 12 30 15 W", {{"N", "12", "30", "15", "W", "50", "", "", "", ""}}, -102.50417f},
        {"- 90 after north turns left", {{"N", "", "", "", "", "100", "", "", "", ""}, {"-", "90", "", "", "", "100", "", "", "", ""}}, -180.0f},
        {"the code may sit in the E/W cell", {{"", "45", "", "", "NE", "100", "", "", "", ""}}, -45.0f},
        {"+ with blanks around it still turns", {{"N", "", "", "", "", "100", "", "", "", ""}, {" + ", "90", "", "", " ", "100", "", "", "", ""}}, 0.0f},
        {"+ with an E/W code is no turn", {{"N", "", "", "", "", "100", "", "", "", ""}, {"+", "20", "", "", "E", "100", "", "", "", ""}}, 20.0f},
        {"tangent straight course keeps the direction", {{"S", "45", "", "", "W", "100", "", "", "", ""}, {"", "", "", "", "", "100", "", "", "", ""}}, 135.0f},
        // 360 * 100 / (3.14159265 * 200) = 57.29578; half of it off north to the left.
        {"tangent curve left", {{"N", "", "", "", "", "100", "", "", "", ""}, {"", "", "", "", "", "100", "", "100", "L", ""}}, -118.64789f},
        {"tangent curve right", {{"N", "", "", "", "", "100", "", "", "", ""}, {"", "", "", "", "", "100", "", "100", "R", ""}}, -61.35211f},
        // After the left curve the running direction is -147.29578.
        {"course after a tangent curve", {{"N", "", "", "", "", "100", "", "", "", ""}, {"", "", "", "", "", "100", "", "100", "L", ""}, {"", "", "", "", "", "10", "", "", "", ""}}, -147.29578f},
        {"a curve with a bearing sets the running direction to its chord", {{"N", "45", "", "", "W", "", "300", "500", "L", ""}, {"", "", "", "", "", "10", "", "", "", ""}}, -135.0f},
    };
    for (const auto &c : cases) {
        const auto direction = convert(makeTable(c.rows))[c.rows.size() - 1].direction;
        ASSERT_TRUE(direction.has_value()) << c.what;
        EXPECT_NEAR(*direction, c.direction, 2e-4) << c.what;
    }
}

TEST(CourseConversion, RowsThatAreNoCourseGetNoDirection)
{
    // A tag only, a tangent curve without L/R, a tangent with a negative distance, and an empty row.
    LegTable legs = convert(makeTable({{"", "", "", "", "", "", "", "", "", "B"},
        {"", "", "", "", "", "100", "", "100", "", ""}, {"", "", "", "", "", "-5", "", "", "", ""}}));
    for (int row : {0, 1, 2, 5})
        EXPECT_FALSE(legs[row].direction) << row;
}

TEST(CourseConversion, CourseNumbersSkipNewLotsAndBareBeginnings)
{
    // Row 1, without distance or radius, is no course; row 4 is a course and also the beginning.
    LegTable legs = convert(makeTable({{"N", "", "", "", "", "100", "", "", "", "O"},
        {"", "", "", "", "", "", "", "", "", "B"}, {"E", "", "", "", "", "100", "", "", "", ""},
        {"", "", "", "", "", "", "", "", "", "N"}, {"S", "", "", "", "", "100", "", "", "", "B"}}));
    const int expected[] = {1, 1, 2, 2, 3, 4, 5};
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(legs[i].course, expected[i]) << "row " << i;
}

TEST(CourseConversion, CurveCompletion)
{
    std::vector<std::string> messages;
    LegTable legs = convert(makeTable({
        {"", "", "", "", "", "100", "", "100", "L", ""},   // chord from arc: 95.8851
        {"N", "", "", "", "", "", "200", "100", "R", ""}, // half circle: radius widened to 100.01, arc 311.36
        {"N", "", "", "", "", "", "120", "50", "L", ""},  // radius too small
        {"N", "", "", "", "", "50", "40", "100", "L", ""}, // both given: nothing computed
        {"N", "", "", "", "", "50", "", "5730", "L", ""},  // a flat curve: chord 49.99984, never longer than its arc
        {"N", "", "", "", "", "0.225", "", "466", "R", ""}, // a short arc on a long radius keeps its chord
    }), &messages);
    EXPECT_NEAR(legs[0].chord, 95.8851, 1e-3);
    EXPECT_NEAR(legs[1].distance, 311.36, 0.01);
    EXPECT_DOUBLE_EQ(legs[2].distance, 0.0);
    EXPECT_EQ(std::pair(legs[3].chord, legs[3].distance), std::pair(40.0, 50.0));
    EXPECT_NEAR(legs[4].chord, 49.99984, 1e-4);
    EXPECT_NEAR(legs[5].chord, 0.225, 1e-5);
    EXPECT_EQ(messages, std::vector<std::string>{"Error in calc of gap"});
}

TEST(CourseConversion, HighestIsCappedAt200AndSingleRangeOverflows)
{
    CourseTable t;
    t.at(201, ColDistance) = "5";
    t.gethighest();
    EXPECT_EQ(convertCourses(t, [](const std::string &) {}).size(), 202u); // rows 0 to 201
    EXPECT_EQ(t.highest, 200);

    try {
        convert(makeTable({{"N", "1e39", "", "", "E", "100", "", "", "", ""}}));
        ADD_FAILURE() << "no fault";
    } catch (const VbError &e) {
        EXPECT_EQ(e.number(), 6);
    }
}

TEST(CourseTable, GethighestScansRowsFourUpward)
{
    // Rows 0 to 3 are never looked at; a last used row r >= 4 gives r + 1.
    const std::pair<int, int> cases[] = {{-1, 10}, {0, 10}, {3, 10}, {4, 5}, {9, 10}, {10, 11}, {201, 202}};
    for (const auto &[row, expected] : cases) {
        CourseTable t;
        if (row >= 0)
            t.at(row, ColTag) = "B";
        t.highest = 99;
        t.gethighest();
        EXPECT_EQ(t.highest, expected) << "row " << row;
    }
}

// Chord from arc and arc from chord are checked through the course conversion.
TEST(Curves, QuarterCircleCentreLiesOnTheSideOfTheBend)
{
    EXPECT_NEAR(perimeterArc(100.0f, 141.42136f), 157.0796, 1e-3);
    // Chord of 141.42 heading south-east (45 degrees) on radius 100: a quarter
    // circle. Bending left its centre is north-east of the start, at (100, 0).
    for (bool right : {false, true}) {
        Figure f;
        PointF pen{0, 0};
        CurveSink sink{&f, Target::Screen};
        EXPECT_EQ(traceCurve(right, pen, ChordDirection::of(45.0 * 3.14159265 / 180.0), 100.0f, 141.42136f, sink),
                  CurveOutcome::Traced);
        EXPECT_NEAR(pen.x, 100.0f, 1e-3);
        EXPECT_NEAR(pen.y, 100.0f, 1e-3);
        auto arcs = itemsOf<FigArc>(f);
        ASSERT_EQ(arcs.size(), 1u);
        EXPECT_NEAR(arcs[0].centre.x, right ? 0.0f : 100.0f, 1e-3);
        EXPECT_NEAR(arcs[0].centre.y, right ? 100.0f : 0.0f, 1e-3);
        // Counter-clockwise on the map from start to end: 90 degrees either way.
        double sweep = arcs[0].end - arcs[0].start;
        if (sweep < 0)
            sweep += 2 * M_PI;
        EXPECT_NEAR(sweep, M_PI / 2, 1e-5);
    }
    // A radius shorter than half the chord fails and leaves the pen.
    PointF pen{5, 5};
    EXPECT_EQ(traceCurve(false, pen, ChordDirection::of(0.0), 50.0f, 120.0f, CurveSink{}), CurveOutcome::Fault);
    EXPECT_EQ(pen, (PointF{5, 5}));
}

TEST(Walk, BeginningNewLotAndOrigin)
{
    Walked w = walk(makeTable({
        {"E", "", "", "", "", "100", "", "", "", "O"}, {"N", "", "", "", "", "50", "", "", "", "B"},
        {"E", "", "", "", "", "10", "", "", "", ""}, {"", "", "", "", "", "", "", "", "", "N"},
        {"S", "", "", "", "", "20", "", "", "", ""}}));
    EXPECT_EQ(w.stop, WalkStop::None);
    EXPECT_NEAR(w.state.origin.x, 100.0f, 1e-3);
    EXPECT_NEAR(w.state.pob.x, 100.0f, 1e-3);
    EXPECT_NEAR(w.state.pob.y, -50.0f, 1e-3);
    // After "N" the pen went back to the origin, then 20 south.
    EXPECT_NEAR(w.state.pen.x, 100.0f, 1e-3);
    EXPECT_NEAR(w.state.pen.y, 20.0f, 1e-3);
    EXPECT_NEAR(w.state.canvas.y, 20.0f, 1e-3);
    auto circles = itemsOf<FigCircle>(w.figure);
    ASSERT_EQ(circles.size(), 1u);
    EXPECT_FLOAT_EQ(circles[0].radius, 30.0f);
    EXPECT_NEAR(circles[0].centre.y, -50.0f, 1e-3);
    std::vector<FigLine> lines = itemsOf<FigLine>(w.figure);
    std::erase_if(lines, [](const FigLine &l) { return l.from == l.to; }); // empty rows step by nothing
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_NEAR(lines[3].from.x, 100.0f, 1e-3); // the new lot starts at the origin
    EXPECT_NEAR(lines[3].from.y, 0.0f, 1e-3);
}

TEST(Walk, StraightAndCurvedClosesReturnToTheBeginningOrCannotClose)
{
    Walked w = corner({"N", "10", "", "", "E", "999", "", "", "", "C"}); // its own bearing is not used
    EXPECT_EQ(w.state.pen, w.state.pob);
    EXPECT_NEAR(w.state.closingStart.x, 100.0f, 1e-3);
    EXPECT_NEAR(w.state.closingStart.y, 100.0f, 1e-3);
    EXPECT_TRUE(w.state.closingFlag); // only a curved close clears it
    EXPECT_NEAR(w.state.areaSum, 5000.0f, 0.01);
    EXPECT_NEAR(w.state.perimeterSum, 200.0 + std::sqrt(20000.0), 1e-3);

    // Closing from (100, 100) to (0, 0) on radius 100 bending left cuts the
    // quarter-circle segment (7853.98 - 5000) out of the triangle's 5000.
    Walked ok = corner({"", "", "", "", "", "", "", "100", "L", "C"});
    EXPECT_FALSE(ok.state.closingFlag);
    EXPECT_NEAR(ok.state.areaSum, 2146.018f, 0.01);
    EXPECT_NEAR(ok.state.perimeterSum, 357.0796, 1e-3);
    EXPECT_NEAR(ok.state.pen.x, 0.0f, 1e-3);

    for (const char *lr : {"L", "R"}) {
        Walked bad = corner({"", "", "", "", "", "", "", "50", lr, "C"});
        EXPECT_EQ(bad.stop, WalkStop::None); // the walk goes on
        EXPECT_TRUE(bad.state.closingFlag);
        EXPECT_NEAR(bad.state.pen.x, 100.0f, 1e-3); // left open
        auto texts = itemsOf<FigText>(bad.figure);
        ASSERT_EQ(texts.size(), 3u);
        EXPECT_EQ((std::vector<std::string>{texts[0].text, texts[1].text, texts[2].text}),
                  (std::vector<std::string>{"x", "CANNOT CLOSE.", std::string(lr) == "L" ? "Error in curve" : "Error int curve"}));
        EXPECT_EQ(texts[2].lineOffset, 1);
        EXPECT_EQ(itemsOf<FigScaleLeft>(bad.figure).at(0).left, -360.0f);
    }
}

TEST(Walk, HalfCircleByChordIsDrawnAndAShorterRadiusStopsTheWalk)
{
    // Chord exactly twice the radius: drawn as a half circle, not rejected.
    Walked w = walk(makeTable({{"E", "", "", "", "", "", "200", "100", "R", ""}}));
    EXPECT_EQ(w.stop, WalkStop::None);
    EXPECT_NEAR(w.state.pen.x, 200.0f, 1e-3);
    EXPECT_EQ(itemsOf<FigArc>(w.figure).size(), 1u);

    w = walk(makeTable({{"N", "", "", "", "", "", "120", "50", "L", ""}, {"E", "", "", "", "", "100", "", "", "", ""}}));
    EXPECT_EQ(w.stop, WalkStop::CurveFault);
    EXPECT_TRUE(itemsOf<FigLine>(w.figure).empty());
}

TEST(Walk, StepsWithTheDirectionInRadiansHeldAsASingle)
{
    // Regression: the walk stepped with the radians unrounded. Held as a single,
    // -90 degrees is -1.5707963705 radians, whose cosine is -4.37e-8 (unrounded
    // +1.79e-9); -180 degrees is -3.1415927410 radians, whose sine is +8.74e-8.
    // A curved close north to the beginning 100000 away: its direction, -89.9999975,
    // is -90 as a single, so it ends 0.0043711 further west.
    const struct { const char *what; std::vector<Row> rows; PointF pen; } cases[] = {
        {"north", {{"N", "", "", "", "", "100000", "", "", "", ""}}, {-0.0043711f, -100000.0f}},
        {"south", {{"S", "", "", "", "", "100000", "", "", "", ""}}, {-0.0043711f, 100000.0f}},
        {"west", {{"W", "", "", "", "", "100000", "", "", "", ""}}, {-100000.0f, 0.0087423f}},
        {"curve north over a chord", {{"N", "", "", "", "", "", "100000", "60000", "R", ""}}, {-0.0043711f, -100000.0f}},
        {"curved close", {{"S", "", "", "", "", "100000", "", "", "", ""}, {"", "", "", "", "", "", "", "60000", "L", "C"}},
         {-0.0087423f, 0.0f}},
    };
    for (const auto &c : cases) {
        const Walked w = walk(makeTable(c.rows));
        EXPECT_NEAR(w.state.pen.x, c.pen.x, 2e-6) << c.what;
        EXPECT_NEAR(w.state.pen.y, c.pen.y, 1e-2) << c.what;
    }
}

TEST(Walk, AreaSignFollowsTheDirectionOfTravel)
{
    auto square = [](const char *a, const char *b, const char *c, const char *d) {
        return walk(makeTable({{"", "", "", "", "", "", "", "", "", "B"}, {a, "", "", "", "", "100", "", "", "", ""},
                               {b, "", "", "", "", "100", "", "", "", ""}, {c, "", "", "", "", "100", "", "", "", ""},
                               {d, "", "", "", "", "100", "", "", "", ""}})).state.areaSum;
    };
    EXPECT_NEAR(square("N", "E", "S", "W"), 10000.0f, 0.01);  // clockwise
    EXPECT_NEAR(square("N", "W", "S", "E"), -10000.0f, 0.01); // counter-clockwise
}

TEST(Walk, PrintedCourseLabelsStandLeftByTheDigitsOfTheRowNumber)
{
    // Ten legs east of 1000 twips: row 9 carries label 10, yet stands 100 twips
    // per digit of its row number (one) plus 80 left of its start. After a
    // bare beginning, row 10 carries label 10 and stands by its two digits.
    const struct { bool bareBeginning; float x; } cases[] = {{false, 9000.0f - 180.0f}, {true, 9000.0f - 280.0f}};
    for (const auto &c : cases) {
        std::vector<Row> rows;
        if (c.bareBeginning)
            rows.push_back({"", "", "", "", "", "", "", "", "", "B"});
        for (int i = 0; i < 10; ++i)
            rows.push_back({"E", "", "", "", "", "1000", "", "", "", ""});
        Walked w;
        WalkOptions options;
        options.printing = options.referencePoints = true;
        CourseTable table = makeTable(rows);
        walkCourses(convertCourses(table, [](const std::string &) {}), options, w.state, w.figure);
        const std::vector<FigText> texts = itemsOf<FigText>(w.figure);
        ASSERT_EQ(texts.size(), 10u);
        EXPECT_EQ(texts.back().text, "10 ");
        EXPECT_FLOAT_EQ(texts.back().at.x, c.x) << c.bareBeginning;
    }
}
