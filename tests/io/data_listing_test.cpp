// The printed data listing: its columns, the tabbing rule, the description and "end".

#include <gtest/gtest.h>

#include "data_listing.h"
#include "table_builder.h"

using namespace quilmar;

TEST(DataListing, RowsTabToTheColumnsAndWrapWhenACellIsTooLong)
{
    CourseTable table = test::makeTable({{"N", "45", "30", "15", "E", "100.25", "141.42", "100", "R", "B"}});
    EXPECT_EQ(dataRowLines(table, 0),
              std::vector<std::string>{"N   45   30   15   E  100.25      141.42      100         R    B"});

    // A 14-character distance passes column 35: the chord tabs to column 35 of a new line.
    table.at(1, ColDistance) = "12345678901234";
    table.at(1, ColChord) = "7";
    EXPECT_EQ(dataRowLines(table, 1),
              (std::vector<std::string>{"                      12345678901234", "                                  7"}));
}

TEST(DataListing, OneCourseGivesHeadingRowAndEnd)
{
    const CourseTable table = test::makeTable({{"S", "", "", "", "", "1000", "", "", "", ""}});
    const std::vector<std::string> lines = dataListingLines(table, "", 75);
    //                           1   5    10   15   20 23          35          47          59   64
    const std::string heading = "NS  Deg  Min  Sec  EW Distance    Chord       Radius      L-R  Tag";
    const std::vector<std::string> expected{"", "", "", heading, "S                     1000", "end"};
    EXPECT_EQ(lines, expected);
}

TEST(DataListing, DescriptionWrapsByWordsAndKeepsItsLineBreaks)
{
    CourseTable table;
    const std::vector<std::string> lines = dataListingLines(table, "Lot 7 of the Oak\r\nHill  tract", 10);
    const std::vector<std::string> expected{"", "", "Lot 7 of", "the Oak", "Hill tract", "", dataHeadingLine(), "end"};
    EXPECT_EQ(lines, expected);
    // A word longer than a line is cut at the line's width.
    EXPECT_EQ(dataListingLines(table, "abcdefghijkl", 5)[2], "abcde");
}
