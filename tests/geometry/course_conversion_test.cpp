#include <gtest/gtest.h>

#include <vector>

#include "course_conversion.h"
#include "course_table.h"
#include "table_builder.h"
#include "vb_math.h"

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

} // namespace

TEST(CourseConversion, DirectionOfTheLastRow)
{
    struct Case { const char *what; std::vector<Row> rows; float direction; };
    const Case cases[] = {
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
        {"+ 90 after north turns right", {{"N", "", "", "", "", "100", "", "", "", ""}, {"+", "90", "", "", "", "100", "", "", "", ""}}, 0.0f},
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
    for (const Case &c : cases) {
        LegTable legs = convert(makeTable(c.rows));
        const size_t r = c.rows.size();
        ASSERT_TRUE(legs[r - 1].direction.has_value()) << c.what;
        EXPECT_NEAR(*legs[r - 1].direction, c.direction, 2e-4) << c.what;
    }
}

TEST(CourseConversion, RowsThatAreNoCourseGetNoDirection)
{
    LegTable legs = convert(makeTable({
        {"", "", "", "", "", "", "", "", "", "B"},      // tag only
        {"", "", "", "", "", "100", "", "100", "", ""}, // tangent curve without L/R
        {"", "", "", "", "", "-5", "", "", "", ""},     // tangent with a negative distance
    }));
    for (int row : {0, 1, 2, 5}) // and an empty row
        EXPECT_FALSE(legs[row].direction) << row;
}

TEST(CourseConversion, CourseNumbersSkipNewLotsAndBareBeginnings)
{
    LegTable legs = convert(makeTable({
        {"N", "", "", "", "", "100", "", "", "", "O"},
        {"", "", "", "", "", "", "", "", "", "B"}, // no distance, no radius: not a course
        {"E", "", "", "", "", "100", "", "", "", ""},
        {"", "", "", "", "", "", "", "", "", "N"},
        {"S", "", "", "", "", "100", "", "", "", "B"}, // a course that is also the beginning
        {"", "", "", "", "", "", "", "", "", ""},
    }));
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
    }), &messages);
    EXPECT_NEAR(legs[0].chord, 95.8851, 1e-3);
    EXPECT_NEAR(legs[1].distance, 311.36, 0.01);
    EXPECT_DOUBLE_EQ(legs[2].distance, 0.0);
    EXPECT_EQ(std::pair(legs[3].chord, legs[3].distance), std::pair(40.0, 50.0));
    EXPECT_EQ(messages, std::vector<std::string>{"Error in calc of gap"});
}

TEST(CourseConversion, HighestIsCappedAt200AndSingleRangeOverflows)
{
    CourseTable t;
    t.at(201, ColDistance) = "5";
    t.gethighest();
    ASSERT_EQ(t.highest, 202);
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
    struct Case { int row; int expected; };
    // Rows 0 to 3 are never looked at; a last used row r >= 4 gives r + 1.
    const Case cases[] = {{-1, 10}, {0, 10}, {3, 10}, {4, 5}, {7, 8}, {9, 10}, {10, 11}, {150, 151}, {201, 202}};
    for (const Case &c : cases) {
        CourseTable t;
        if (c.row >= 0)
            t.at(c.row, ColTag) = "B";
        t.highest = 99;
        t.gethighest();
        EXPECT_EQ(t.highest, c.expected) << "row " << c.row;
    }
}
