#include <gtest/gtest.h>

#include <algorithm>

#include "misreadings.h"

using namespace quilmar;
using namespace quilmar::analysis;

namespace {

RowCells row(std::initializer_list<const char *> texts)
{
    RowCells cells;
    int c = 0;
    for (const char *t : texts)
        cells[c++] = Cell(std::string(t));
    return cells;
}

bool has(const std::vector<Misreading> &all, BlunderKind kind, int column, const std::string &text)
{
    return std::any_of(all.begin(), all.end(), [&](const Misreading &m) {
        return m.kind == kind && m.first.column == column && m.first.text == text;
    });
}

int count(const std::vector<Misreading> &all, BlunderKind kind)
{
    return int(std::count_if(all.begin(), all.end(), [&](const Misreading &m) { return m.kind == kind; }));
}

} // namespace

TEST(Misreadings, DistanceDigitsPointAndChains)
{
    const auto all = misreadings(row({"N", "12", "45", "0", "E", "1034.20"}), {}, {true, 2, 66.0});
    EXPECT_TRUE(has(all, BlunderKind::Transpose, ColDistance, "1304.20"));
    EXPECT_TRUE(has(all, BlunderKind::Transpose, ColDistance, "1034.02"));
    EXPECT_FALSE(has(all, BlunderKind::Transpose, ColDistance, "0134.20")) << "no leading zero";
    EXPECT_TRUE(has(all, BlunderKind::DropDigit, ColDistance, "10374.20"));
    EXPECT_FALSE(has(all, BlunderKind::DropDigit, ColDistance, "1034.205")) << "no third decimal";
    EXPECT_FALSE(has(all, BlunderKind::DropDigit, ColDistance, "01034.20")) << "same number";
    EXPECT_EQ(count(all, BlunderKind::DoubleDigit), 0);
    EXPECT_TRUE(has(all, BlunderKind::TimesTen, ColDistance, "103.420"));
    EXPECT_TRUE(has(all, BlunderKind::TimesTen, ColDistance, "10342.0"));
    EXPECT_TRUE(has(all, BlunderKind::ChainsFeet, ColDistance, "68257.2"));
    EXPECT_TRUE(has(all, BlunderKind::NsFlip, ColNS, "S"));
    EXPECT_TRUE(has(all, BlunderKind::EwFlip, ColEW, "W"));
    ASSERT_EQ(count(all, BlunderKind::DegMinSwap), 1);
    const Misreading &swap = *std::find_if(all.begin(), all.end(),
                                           [](const Misreading &m) { return m.kind == BlunderKind::DegMinSwap; });
    EXPECT_EQ(swap.first.text, "45");
    EXPECT_EQ(swap.second->column, ColMin);
    EXPECT_EQ(swap.second->text, "12");
}

TEST(Misreadings, WholeFeetCardinalRowsAndCurvesByChord)
{
    // Whole feet: a doubled digit comes out, the point never moves into decimals.
    auto all = misreadings(row({"E", "", "", "", "", "1224"}), {}, {true, 0, 66.0});
    EXPECT_TRUE(has(all, BlunderKind::DoubleDigit, ColDistance, "124"));
    EXPECT_TRUE(has(all, BlunderKind::TimesTen, ColDistance, "12240"));
    EXPECT_FALSE(has(all, BlunderKind::TimesTen, ColDistance, "122.4"));
    EXPECT_TRUE(has(all, BlunderKind::EwFlip, ColNS, "W")) << "a due-east row turns west in its N/S cell";
    EXPECT_EQ(count(all, BlunderKind::NsFlip) + count(all, BlunderKind::DegMinSwap), 0);

    // Degrees of 60 and more cannot have been minutes.
    all = misreadings(row({"S", "75", "10", "0", "W", "100"}), {}, {false, 2, 66.0});
    EXPECT_EQ(count(all, BlunderKind::DegMinSwap), 0);
    EXPECT_EQ(count(all, BlunderKind::DropDigit), 0) << "lengths left out";

    // A curve given by its chord is read again in its chord.
    CourseReading curve;
    curve.radius = 400.0;
    all = misreadings(row({"N", "10", "0", "0", "E", "", "251.30", "400", "R"}), curve, {true, 2, 66.0});
    EXPECT_TRUE(has(all, BlunderKind::Transpose, ColChord, "215.30"));
}
