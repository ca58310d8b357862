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
}
