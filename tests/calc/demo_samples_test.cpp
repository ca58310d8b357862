#include "demo_samples.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace quilmar {
namespace {

TEST(DemoSamples, OnlySamplesOneToSixExist)
{
    EXPECT_NO_THROW(demoSample(1));
    EXPECT_NO_THROW(demoSample(6));
    EXPECT_THROW(demoSample(0), std::out_of_range);
    EXPECT_THROW(demoSample(7), std::out_of_range);
}

TEST(DemoSamples, NotesKeepTheirDoubleSpacesAndSpelling)
{
    EXPECT_EQ(demoSample(3).note,
              "This is a sample map.  The curves are specified with a bearing but without cords.  Note the "
              "bearing specification in the row just before the curve (0 entry in the distance field).  "
              "Practice with it.  Change it.  You can restore the original data by choosing the 'Demo "
              "Sample' in the Help menu again.");
    EXPECT_EQ(demoSample(6).note,
              "This is a sample of a lot that closes from TWO sides.  Practice with it.  Change it.  You can "
              "restore the original data by choosing the 'Demo Sample' in the Help menu again.");
    EXPECT_EQ(demoSample(1).note.substr(0, 71),
              "In this example the curves are specified using TANGENTS (not chords).  ");
}

struct CellCase {
    int sample;
    int row;
    Column column;
    const char *text;
};

class DemoCellTest : public ::testing::TestWithParam<CellCase> {};

TEST_P(DemoCellTest, LoadsTheCellAsTyped)
{
    const CellCase &c = GetParam();
    CourseTable table;
    loadDemoRows(demoSample(c.sample), table);
    EXPECT_EQ(table.at(c.row, c.column).text(), c.text);
    EXPECT_FALSE(table.at(c.row, c.column).isNumber());
}

INSTANTIATE_TEST_SUITE_P(Cells, DemoCellTest, ::testing::Values(
    CellCase{1, 0, ColTag, "B"},
    CellCase{1, 3, ColNS, "+"},
    CellCase{1, 3, ColDeg, "20"},
    CellCase{1, 4, ColEW, "W"},        // row 4 is S 45 W 1000, not the incremental - 40
    CellCase{1, 5, ColRadius, "500"},
    CellCase{1, 7, ColLR, "L"},
    CellCase{1, 7, ColTag, "C"},
    CellCase{2, 5, ColChord, "300"},
    CellCase{2, 5, ColDistance, ""},
    CellCase{2, 6, ColLR, "R"},
    CellCase{3, 5, ColDistance, "0"},
    CellCase{3, 6, ColRadius, "200"},
    CellCase{4, 0, ColNS, "E"},
    CellCase{4, 0, ColTag, "O"},
    CellCase{4, 4, ColNS, "S"},
    CellCase{4, 4, ColDeg, ""},
    CellCase{4, 6, ColTag, "N"},
    CellCase{4, 8, ColDistance, "400"},
    CellCase{5, 0, ColTag, ""},        // no "B" flag in sample 5
    CellCase{5, 4, ColLR, "L"},
    CellCase{5, 6, ColDistance, "300"},
    CellCase{6, 1, ColDeg, "45"},
    CellCase{6, 3, ColEW, "W"},
    CellCase{6, 4, ColTag, "C"}));

TEST(DemoSamples, RowCounts)
{
    const size_t expected[] = {8, 8, 8, 10, 8, 5};
    for (int n = 1; n <= 6; ++n)
        EXPECT_EQ(demoSample(n).rows.size(), expected[n - 1]) << "sample " << n;
}

TEST(DemoSamples, LoadingOverALongTableLeavesNoTrace)
{
    CourseTable table;
    for (int row = 0; row < CourseTable::kRows; ++row)
        for (int col = 1; col <= CourseTable::kColumns; ++col)
            table.at(row, col) = Cell(12.5);
    table.gethighest();
    ASSERT_EQ(table.highest, 202);

    loadDemoRows(demoSample(6), table);

    for (int row = 0; row < CourseTable::kRows; ++row)
        for (int col = 1; col <= CourseTable::kColumns; ++col)
            EXPECT_FALSE(table.at(row, col).isNumber()) << row << "," << col;
    EXPECT_TRUE(table.at(0, ColMin).isEmpty());
    EXPECT_TRUE(table.at(5, ColDistance).isEmpty());
    EXPECT_TRUE(table.at(201, ColTag).isEmpty());
    CourseTable fresh;
    loadDemoRows(demoSample(6), fresh);
    EXPECT_EQ(table.highest, fresh.highest); // the old row count is gone too
    EXPECT_LT(table.highest, 11);
}

TEST(DemoSamples, HighestCountsTheSampleRows)
{
    CourseTable table;
    loadDemoRows(demoSample(4), table);
    EXPECT_EQ(table.highest, 10); // last used row 9
}

} // namespace
} // namespace quilmar
