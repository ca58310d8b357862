#include "demo_samples.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "closure_tables.h"

using namespace quilmar;

// Guards against a sample loaded over a longer table keeping the old rows.
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
    EXPECT_TRUE(test::sameTable(table, fresh)) << "an old cell or the old row count is left";
    EXPECT_THROW(demoSample(0), std::out_of_range); // samples 1 to 6 only
    EXPECT_THROW(demoSample(7), std::out_of_range);
}
