#include <gtest/gtest.h>

#include "course_table.h"

using namespace quilmar;

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
