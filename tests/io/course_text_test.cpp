// The table as text: the course descriptions of the clipboard and the
// reference list, and the printed data listing (its columns, the tabbing rule,
// the description and "end").

#include <gtest/gtest.h>

#include "course_description.h"
#include "data_listing.h"
#include "table_builder.h"

using namespace quilmar;

TEST(CourseDescription, EachCourseInWords)
{
    const struct { test::Row row; const char *words; } cases[] = {
        {{"N", "45", "30", "15", "E", "100", "", "", "", ""}, "N 45\u00b0 30' 15\" E 100"},
        {{"S", "10", "", "", "W", "250.5", "", "", "", ""}, "S 10\u00b0 W 250.5"},
        {{"E", "", "", "", "", "500", "", "", "", ""}, "E 500"},
        {{"+", "20", "", "", "", "400", "", "", "", ""}, "+ 20\u00b0 400"},
        {{"N", "45", "", "", "W", "", "300", "500", "L", ""}, "N 45\u00b0 W, ch 300, r 500 L"},
        {{"", "", "", "", "", "157.08", "", "100", "R", ""}, "157.08, r 100 R"},
        {{" S ", " 5 ", "", "", " E ", " 10 ", "", "", "", ""}, "S 5\u00b0 E 10"},
        {{"", "", "", "", "", "", "", "", "", "N"}, "New"}, {{"", "", "", "", "", "", "", "", "", "C"}, " Back to pob"},
        {{"", "", "", "", "", "", "", "", "L", "C"}, " Back to pob"}, // L/R without a radius says nothing
        {{"N", "10", "", "", "E", "90", "", "", "", "C"}, "N 10\u00b0 E 90 Close"},
        {{"", "", "", "", "", "", "", "50", "R", "C"}, ", r 50 R Close"},
        {{"S", "", "", "", "", "1000", "", "", "", "B"}, "S 1000"}, {{"", "", "", "", "", "", "", "", "", ""}, ""}};
    for (const auto &c : cases)
        EXPECT_EQ(describeCourse(test::makeTable({c.row}), 0), c.words) << c.words;
}

TEST(CourseDescription, ClipboardTextJoinsUsedRowsWithCrLf)
{
    EXPECT_EQ(courseDescriptionText(CourseTable{}), "");
    CourseTable table = test::makeTable({{"N", "", "", "", "", "100", "", "", "", "B"},
        {"", "", "", "", "", "", "", "", "", ""}, {"E", "", "", "", "", "50", "", "", "", ""},
        {"", "", "", "", "", "", "", "", "", "N"}, {"", "", "", "", "", "", "", "", "", "C"}});
    EXPECT_EQ(courseDescriptionText(table), "N 100\r\nE 50\r\nNew\r\n Back to pob\r\n");
    // A number stored by a conversion shows in its general form.
    table.at(2, ColDistance) = Cell(328.1);
    EXPECT_EQ(describeCourse(table, 2), "E 328.1");
    EXPECT_EQ(describeCourse(table, 202), "");
}

TEST(DataListing, RowsTabToTheColumnsAndWrapWhenACellIsTooLong)
{
    // Row 1: a 14-character distance passes column 35, so the chord tabs to column 35 of a new line.
    const CourseTable table = test::makeTable({{"N", "45", "30", "15", "E", "100.25", "141.42", "100", "R", "B"},
                                               {"", "", "", "", "", "12345678901234", "7", "", "", ""}});
    EXPECT_EQ(dataRowLines(table, 0),
              std::vector<std::string>{"N   45   30   15   E  100.25      141.42      100         R    B"});
    EXPECT_EQ(dataRowLines(table, 1),
              (std::vector<std::string>{"                      12345678901234", "                                  7"}));
    // An empty cell is tabbed to as well: a cell passing the empty cell's column sends the rest to a new line.
    const struct { test::Row row; std::vector<std::string> lines; } cases[] = {
        {{"N", "", "", "97849.15", "", "90824.95", "", "", "", ""},
         {"N             97849.15", "                      90824.95"}},
        {{"", "", "", "", "", "1234567890123", "", "257", "L", ""},
         {"                      1234567890123", "                                              257         L"}}};
    for (const auto &c : cases)
        EXPECT_EQ(dataRowLines(test::makeTable({c.row}), 0), c.lines) << c.row[5];
}

TEST(DataListing, HeadingRowsDescriptionAndEnd)
{
    //                           1   5    10   15   20 23          35          47          59   64
    const std::string heading = "NS  Deg  Min  Sec  EW Distance    Chord       Radius      L-R  Tag";
    EXPECT_EQ(dataListingLines(test::makeTable({{"S", "", "", "", "", "1000", "", "", "", ""}}), "", 75),
              (std::vector<std::string>{"", "", "", heading, "S                     1000", "end"}));
    // The description wraps by words and keeps its line breaks; a word longer than a line is cut.
    EXPECT_EQ(dataListingLines(CourseTable{}, "Lot 7 of the Oak\r\nHill  tract", 10),
              (std::vector<std::string>{"", "", "Lot 7 of", "the Oak", "Hill tract", "", heading, "end"}));
    EXPECT_EQ(dataListingLines(CourseTable{}, "abcdefghijkl", 5)[2], "abcde");
    // The highest used row itself is listed: a row typed after scrolling is the row the grid counts.
    CourseTable scrolled;
    scrolled.at(12, ColDistance) = Cell("40");
    scrolled.highest = 12;
    EXPECT_EQ(dataListingLines(scrolled, "", 75),
              (std::vector<std::string>{"", "", "", heading, "                      40", "end"}));
}
