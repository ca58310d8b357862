#include "demo_samples.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace quilmar {
namespace {

TEST(DemoSamples, SixSamplesWithTheirNotes)
{
    EXPECT_THROW(demoSample(0), std::out_of_range);
    EXPECT_THROW(demoSample(7), std::out_of_range);
    const size_t rows[] = {8, 8, 8, 10, 8, 5};
    for (int n = 1; n <= 6; ++n)
        EXPECT_EQ(demoSample(n).rows.size(), rows[n - 1]) << "sample " << n;
    // Double blanks and the spelling "cords" are the note's own.
    EXPECT_EQ(demoSample(3).note,
              "This is a sample map.  The curves are specified with a bearing but without cords.  Note the "
              "bearing specification in the row just before the curve (0 entry in the distance field).  "
              "Practice with it.  Change it.  You can restore the original data by choosing the 'Demo "
              "Sample' in the Help menu again.");
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
    EXPECT_EQ(table.at(c.row, c.column), Cell(c.text));
}

INSTANTIATE_TEST_SUITE_P(Cells, DemoCellTest, ::testing::Values(
    CellCase{1, 0, ColTag, "B"}, CellCase{1, 3, ColNS, "+"}, CellCase{1, 3, ColDeg, "20"},
    CellCase{1, 4, ColEW, "W"},                          // S 45 W 1000, not the incremental - 40
    CellCase{1, 5, ColRadius, "500"}, CellCase{1, 7, ColLR, "L"}, CellCase{1, 7, ColTag, "C"},
    CellCase{2, 5, ColChord, "300"}, CellCase{2, 5, ColDistance, ""}, CellCase{2, 6, ColLR, "R"},
    CellCase{3, 5, ColDistance, "0"}, CellCase{3, 6, ColRadius, "200"},
    CellCase{4, 0, ColNS, "E"}, CellCase{4, 0, ColTag, "O"}, CellCase{4, 4, ColDeg, ""},
    CellCase{4, 6, ColTag, "N"}, CellCase{4, 8, ColDistance, "400"},
    CellCase{5, 0, ColTag, ""}, CellCase{5, 4, ColLR, "L"},
    CellCase{6, 1, ColDeg, "45"}, CellCase{6, 3, ColEW, "W"}, CellCase{6, 4, ColTag, "C"}));

TEST(DemoSamples, LoadingOverALongTableLeavesNoTrace)
{
    CourseTable table;
    for (int row = 0; row < CourseTable::kRows; ++row)
        for (int col = 1; col <= CourseTable::kColumns; ++col)
            table.at(row, col) = Cell(12.5);
    table.gethighest();
    loadDemoRows(demoSample(6), table);

    CourseTable fresh;
    loadDemoRows(demoSample(6), fresh);
    for (int row = 0; row < CourseTable::kRows; ++row)
        for (int col = 1; col <= CourseTable::kColumns; ++col)
            ASSERT_EQ(table.at(row, col), fresh.at(row, col)) << row << "," << col;
    EXPECT_EQ(table.highest, fresh.highest); // the old row count is gone too
    EXPECT_LT(table.highest, 11);
}

} // namespace
} // namespace quilmar
