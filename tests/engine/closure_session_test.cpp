// The closure report's session: apply and undo on the engine's table, the map
// redrawn after each, the texts the window shows.

#include "closure_session.h"

#include <cmath>

#include <gtest/gtest.h>

#include "scripted_dialogs.h"
#include "table_builder.h"

using namespace quilmar;
using analysis::BlunderKind;

namespace {

// Two lots of the same four-sided figure: the first with row 3's N written for
// S, the second (after the "N" row 5) with row 9's W written for E.
CourseTable twoBlunders()
{
    return test::makeTable({
        {"", "", "", "", "", "", "", "", "", "B"},
        {"N", "14", "2", "10", "E", "618.47", "", "", "", ""},
        {"S", "80", "20", "23", "E", "476.76", "", "", "", ""},
        {"N", "7", "35", "40", "W", "605.31", "", "", "", ""},
        {"N", "81", "34", "23", "W", "545.89", "", "", "", ""},
        {"", "", "", "", "", "", "", "", "", "N"},
        {"", "", "", "", "", "", "", "", "", "B"},
        {"N", "14", "2", "10", "E", "618.47", "", "", "", ""},
        {"S", "80", "20", "23", "E", "476.76", "", "", "", ""},
        {"S", "7", "35", "40", "E", "605.31", "", "", "", ""},
        {"N", "81", "34", "23", "W", "545.89", "", "", "", ""},
    });
}

bool sameTable(const CourseTable &a, const CourseTable &b)
{
    if (a.highest != b.highest)
        return false;
    for (int r = 0; r < CourseTable::kRows; ++r)
        for (int c = 1; c <= CourseTable::kColumns; ++c)
            if (!(a.at(r, c) == b.at(r, c)))
                return false;
    return true;
}

struct Session : ::testing::Test {
    ScriptedDialogs dialogs;
    Engine engine{dialogs, english()};
    static StartupSettings english()
    {
        StartupSettings s;
        s.englishMeasure = true;
        return s;
    }
    void SetUp() override { engine.editTable() = twoBlunders(); }
};

TEST_F(Session, FindsThePlantedBlunderOfEachLotFirst)
{
    engine.setAcresbox("as the user left it");
    ClosureSession session(engine);
    ASSERT_EQ(session.report().lots.size(), 2u);
    struct Case {
        int row, column;
        BlunderKind kind;
        const char *corrected;
    };
    const Case cases[] = {{3, ColNS, BlunderKind::NsFlip, "S"}, {9, ColEW, BlunderKind::EwFlip, "W"}};
    for (size_t i = 0; i < 2; ++i) {
        SCOPED_TRACE(i);
        const auto &lot = session.report().lots[i];
        ASSERT_FALSE(lot.suggestions.empty());
        EXPECT_EQ(lot.suggestions[0].row, cases[i].row);
        EXPECT_EQ(lot.suggestions[0].kind, cases[i].kind);
        EXPECT_EQ(lot.suggestions[0].cells[cases[i].column - 1], cases[i].corrected);
        EXPECT_EQ(lot.programGap.rfind("Gap = ", 0), 0u) << lot.programGap;
    }
    // The plotter's gap is worked out aside: the window's result line and table stay.
    EXPECT_EQ(engine.acresbox(), "as the user left it");
    EXPECT_TRUE(sameTable(engine.table(), twoBlunders()));
    EXPECT_TRUE(dialogs.texts().empty());
}

TEST_F(Session, ApplyThenUndoRestoresTheTableExactly)
{
    struct Case {
        const char *name;
        std::vector<std::pair<size_t, size_t>> applies;
    };
    const Case cases[] = {
        {"one apply", {{0, 0}}},
        {"both lots", {{0, 0}, {1, 0}}},
        {"second lot first", {{1, 0}, {0, 0}}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        engine.editTable() = twoBlunders();
        int redraws = 0;
        ClosureSession session(engine, [&] {
            ++redraws;
            engine.redraw();
        });
        std::vector<CourseTable> before;
        for (auto [lot, suggestion] : c.applies) {
            before.push_back(engine.table());
            ASSERT_TRUE(session.apply(lot, suggestion));
            EXPECT_FALSE(sameTable(engine.table(), before.back()));
            // The lot just corrected closes and asks for nothing more.
            EXPECT_TRUE(session.report().lots[lot].suggestions.empty());
        }
        EXPECT_EQ(redraws, int(c.applies.size()));
        while (!before.empty()) {
            ASSERT_TRUE(session.canUndo());
            ASSERT_TRUE(session.undo());
            EXPECT_TRUE(sameTable(engine.table(), before.back()));
            before.pop_back();
        }
        EXPECT_TRUE(sameTable(engine.table(), twoBlunders()));
        EXPECT_FALSE(session.canUndo());
        EXPECT_FALSE(session.undo());
        EXPECT_EQ(redraws, 2 * int(c.applies.size()));
        EXPECT_EQ(session.report().lots[0].suggestions.size(), ClosureSession(engine).report().lots[0].suggestions.size());
    }
}

TEST_F(Session, ApplyRedrawsTheMapByItselfWithoutAWindow)
{
    ClosureSession session(engine);
    EXPECT_FALSE(engine.mapComputed());
    ASSERT_TRUE(session.apply(0, 0));
    EXPECT_TRUE(engine.mapComputed());
    EXPECT_FALSE(engine.figure().items.empty());
    EXPECT_EQ(engine.table().at(3, ColNS).text(), "S");
}

TEST_F(Session, OutOfRangeAppliesChangeNothing)
{
    ClosureSession session(engine);
    for (auto [lot, suggestion] : {std::pair<size_t, size_t>{2, 0}, {0, 99}, {size_t(-1), 0}}) {
        EXPECT_FALSE(session.apply(lot, suggestion));
        EXPECT_FALSE(session.canUndo());
        EXPECT_TRUE(sameTable(engine.table(), twoBlunders()));
    }
}

TEST_F(Session, NothingToAnalyse)
{
    const std::vector<CourseTable> tables = {
        CourseTable(),
        test::makeTable({{"", "", "", "", "", "", "", "", "", "B"}}),
        test::makeTable({{"N", "", "", "", "", "", "", "", "", ""}}),
        test::makeTable({{"N", "12", "", "", "E", "0", "", "", "", ""}, {"S", "1", "", "", "W", "", "", "", "", ""}}),
        test::makeTable({{"N", "12", "", "", "E", "100", "", "", "", ""}}),
        test::makeTable({{"N", "12", "", "", "E", "100", "", "", "", "N"}, {"S", "1", "", "", "W", "50", "", "", "", ""}}),
    };
    for (size_t i = 0; i < tables.size(); ++i) {
        SCOPED_TRACE(i);
        engine.editTable() = tables[i];
        ClosureSession session(engine);
        EXPECT_TRUE(session.empty());
        EXPECT_FALSE(session.apply(0, 0));
    }
}

TEST_F(Session, WrittenOutlineEndsAtTheGapAndAdjustedOneOnThePointOfBeginning)
{
    ClosureSession session(engine);
    for (const auto &lot : session.report().lots) {
        const Outlines o = compassOutlines(lot);
        ASSERT_EQ(o.north.size(), lot.compass.calls.size() + 1);
        EXPECT_NEAR(o.north.back(), lot.pobNorth + lot.gap.north, 1e-6);
        EXPECT_NEAR(o.east.back(), lot.pobEast + lot.gap.east, 1e-6);
        EXPECT_NEAR(o.adjustedNorth.back(), lot.pobNorth, 1e-6);
        EXPECT_NEAR(o.adjustedEast.back(), lot.pobEast, 1e-6);
        // The first call as written: N 14°02'10" E 618.47 from the start.
        const double a = (14 + 2 / 60.0 + 10 / 3600.0) * M_PI / 180.0;
        EXPECT_NEAR(o.north[1] - o.north[0], 618.47 * std::cos(a), 1e-3);
        EXPECT_NEAR(o.east[1] - o.east[0], 618.47 * std::sin(a), 1e-3);
    }
}

TEST(ClosureTexts, Numbers)
{
    struct Case {
        std::string got, want;
    };
    const Case cases[] = {
        {precisionText(12345.9), "1:12,345"},
        {precisionText(999.0), "1:999"},
        {precisionText(std::nullopt), "exact"},
        {groupedNumber(-1234567.8916, 3), "-1,234,567.892"},
        {groupedNumber(-0.0001, 3), "0.000"},
        {areaText(43560.0, Units::Feet), "43,560.00 sq ft (1.0000 acres)"},
        {areaText(25000.0, Units::Meters), "25,000.00 sq m (2.5000 ha)"},
        {areaText(12.5, Units::Other), "12.50 square units"},
        {kindWords(BlunderKind::NsFlip), "N and S exchanged"},
        {kindWords(BlunderKind::Omitted), "a whole call left out"},
    };
    for (const Case &c : cases)
        EXPECT_EQ(c.got, c.want);
}

} // namespace
