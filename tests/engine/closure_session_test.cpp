// The closure report's session: apply and undo on the engine's table, the map
// redrawn after each, the texts the window shows.

#include "closure_session.h"

#include <cmath>

#include <gtest/gtest.h>

#include "closure_tables.h"
#include "scripted_dialogs.h"

using namespace quilmar;
using analysis::BlunderKind;
using test::sameTable;
using test::twoBlunders;

namespace {

struct Session : ::testing::Test {
    ScriptedDialogs dialogs;
    Engine engine{dialogs};
    void SetUp() override { engine.editTable() = twoBlunders(); }
};

TEST_F(Session, FindsEachLotsPlantedMistakeFirstAndLeavesTheWindowAlone)
{
    engine.setAcresbox("as the user left it");
    ClosureSession session(engine);
    ASSERT_EQ(session.report().lots.size(), 2u);
    const struct { int row, column; BlunderKind kind; const char *corrected; } cases[] = {
        {3, ColNS, BlunderKind::NsFlip, "S"}, {9, ColEW, BlunderKind::EwFlip, "W"}};
    for (size_t i = 0; i < 2; ++i) {
        const auto &lot = session.report().lots[i];
        ASSERT_FALSE(lot.suggestions.empty());
        EXPECT_EQ(lot.suggestions[0].row, cases[i].row);
        EXPECT_EQ(lot.suggestions[0].kind, cases[i].kind);
        EXPECT_EQ(lot.suggestions[0].cells[cases[i].column - 1], cases[i].corrected);
        EXPECT_EQ(lot.programGap.rfind("Gap = ", 0), 0u) << lot.programGap;
    }
    // The plotter's gap is worked out aside: result line, table and map stay; no box pops up.
    EXPECT_EQ(engine.acresbox(), "as the user left it");
    EXPECT_TRUE(sameTable(engine.table(), twoBlunders()));
    EXPECT_FALSE(engine.mapComputed());
    EXPECT_TRUE(dialogs.texts().empty());
}

TEST_F(Session, UndoPutsBackEachTableBeforeItsApplyLastFirst)
{
    const std::vector<std::vector<std::pair<size_t, size_t>>> sequences = {{{0, 0}}, {{0, 0}, {1, 0}}, {{1, 0}, {0, 0}}};
    for (const auto &applies : sequences) {
        engine.editTable() = twoBlunders();
        int redraws = 0;
        ClosureSession session(engine, [&] { ++redraws; });
        std::vector<CourseTable> before;
        for (auto [lot, suggestion] : applies) {
            before.push_back(engine.table());
            ASSERT_TRUE(session.apply(lot, suggestion));
            EXPECT_FALSE(sameTable(engine.table(), before.back()));
            EXPECT_TRUE(session.report().lots[lot].suggestions.empty()); // that lot closes now
        }
        for (; !before.empty(); before.pop_back()) {
            ASSERT_TRUE(session.undo());
            EXPECT_TRUE(sameTable(engine.table(), before.back()));
        }
        EXPECT_FALSE(session.canUndo());
        EXPECT_FALSE(session.undo());
        EXPECT_EQ(redraws, 2 * int(applies.size()));
        EXPECT_FALSE(session.report().lots[0].suggestions.empty()); // the report follows the undo
    }
}

TEST_F(Session, WithoutAWindowTheEngineRedrawsItself)
{
    ClosureSession session(engine);
    ASSERT_TRUE(session.apply(0, 0));
    EXPECT_TRUE(engine.mapComputed());
    EXPECT_FALSE(engine.figure().items.empty());
    EXPECT_EQ(engine.table().at(3, ColNS).text(), "S");
    // Out of range: nothing changes, nothing to undo.
    for (auto [lot, suggestion] : {std::pair<size_t, size_t>{2, 0}, {1, 99}, {size_t(-1), 0}})
        EXPECT_FALSE(session.apply(lot, suggestion));
    ASSERT_TRUE(session.undo());
    EXPECT_FALSE(session.canUndo());
}

TEST_F(Session, NothingToAnalyse)
{
    const CourseTable tables[] = {
        CourseTable(), test::makeTable({{"", "", "", "", "", "", "", "", "", "B"}}),
        test::makeTable({{"N", "12", "", "", "E", "100", "", "", "", ""}}),
        test::makeTable({{"N", "12", "", "", "E", "100", "", "", "", "N"}, {"S", "1", "", "", "W", "50", "", "", "", ""}}),
    };
    for (const CourseTable &t : tables) {
        engine.editTable() = t;
        ClosureSession session(engine);
        EXPECT_TRUE(session.empty());
        EXPECT_FALSE(session.apply(0, 0));
    }
}

TEST_F(Session, WrittenOutlineEndsAtTheGapAndTheAdjustedOneOnThePointOfBeginning)
{
    const ClosureSession session(engine);
    for (const auto &lot : session.report().lots) {
        const Outlines o = compassOutlines(lot);
        ASSERT_EQ(o.north.size(), lot.compass.calls.size() + 1);
        EXPECT_NEAR(o.north.back(), lot.pobNorth + lot.gap.north, 1e-6);
        EXPECT_NEAR(o.east.back(), lot.pobEast + lot.gap.east, 1e-6);
        EXPECT_NEAR(o.adjustedNorth.back(), lot.pobNorth, 1e-6);
        EXPECT_NEAR(o.adjustedEast.back(), lot.pobEast, 1e-6);
        const double a = (14 + 2 / 60.0 + 10 / 3600.0) * M_PI / 180.0; // N 14°02'10" E 618.47
        EXPECT_NEAR(o.north[1] - o.north[0], 618.47 * std::cos(a), 1e-3);
        EXPECT_NEAR(o.east[1] - o.east[0], 618.47 * std::sin(a), 1e-3);
    }
}

TEST(ClosureTexts, Numbers)
{
    const std::pair<std::string, std::string> cases[] = {
        {precisionText(12345.9), "1:12,345"}, {precisionText(std::nullopt), "exact"},
        {groupedNumber(-1234567.8916, 3), "-1,234,567.892"}, {groupedNumber(-0.0001, 3), "0.000"},
        {areaText(43560.0, Units::Feet), "43,560.00 sq ft (1.0000 acres)"},
        {areaText(25000.0, Units::Meters), "25,000.00 sq m (2.5000 ha)"},
        {areaText(12.5, Units::Other), "12.50 square units"}, {kindWords(BlunderKind::EwFlip), "E and W exchanged"},
    };
    for (const auto &[got, want] : cases)
        EXPECT_EQ(got, want);
}

} // namespace
