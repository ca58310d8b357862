// Map > Closure Report... on the window: the grid and the map follow Apply and
// Undo, an empty table gets its message; the report window's rows and buttons.

#include "closure_report_window.h"

#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>

#include "closure_tables.h"
#include "window_fixture.h"

using namespace quilmar;

namespace {

using ClosureWindow = test::WindowTest;

TEST_F(ClosureWindow, AppliesReachGridAndMapAndUndoPutsBothBack)
{
    load(test::twoBlunders());
    dialogs.closureSteps = {{ClosureStep::Apply, 0, 0}, {ClosureStep::Apply, 1, 0}};
    trigger("mnuClosureReport");
    ASSERT_EQ(dialogs.closureResults, (std::vector<bool>{true, true}));
    EXPECT_EQ(cell(3, ColNS), "S");
    EXPECT_EQ(cell(9, ColEW), "W");
    expectGridShowsTable();
    EXPECT_FALSE(w->engine().figure().items.empty());
    EXPECT_TRUE(w->findChild<QAction *>("Filesave")->isEnabled()); // the map counts as computed

    dialogs.closureSteps = {{ClosureStep::Apply, 0, 0}, {ClosureStep::Undo}};
    load(test::twoBlunders());
    w->mnuClosureReport_Click();
    EXPECT_TRUE(test::sameTable(w->engine().table(), test::twoBlunders()));
    expectGridShowsTable();
    EXPECT_TRUE(dialogs.texts().empty());
}

TEST_F(ClosureWindow, NothingToAnalyseGetsAMessageInstead)
{
    load(test::makeTable({{"N", "10", "", "", "E", "100", "", "", "", ""}})); // one course, no lot
    w->mnuClosureReport_Click();
    EXPECT_EQ(dialogs.closureReports, 0);
    EXPECT_EQ(dialogs.texts(), std::vector<std::string>{ClosureSession::kNoLots});
}

TEST_F(ClosureWindow, ReportShowsTheRowsAndItsButtonsWorkTheSession)
{
    load(test::twoBlunders());
    ClosureSession session(w->engine());
    ClosureReportWindow report(session);
    ASSERT_EQ(report.lotTabs()->count(), 2);
    const struct { const char *table; int row, column; const char *text; } cells[] = {
        {"compass_0Table", 3, 0, "5"},           {"transit_1Table", 3, 0, "11"},
        {"suggestions_0", 0, 0, "4"},            {"suggestions_0", 0, 1, "N and S exchanged"},
        {"suggestions_0", 0, 2, "S 7 35 40 W 605.31"}, {"suggestions_1", 0, 2, "S 7 35 40 W 605.31"},
    };
    for (const auto &e : cells) {
        auto *t = report.findChild<QTableWidget *>(e.table);
        ASSERT_TRUE(t && t->item(e.row, e.column)) << e.table;
        EXPECT_EQ(t->item(e.row, e.column)->text().toStdString(), e.text) << e.table;
    }
    EXPECT_EQ(report.findChild<QTableWidget *>("compass_0Table")->rowCount(), 4);
    EXPECT_TRUE(report.findChild<QLabel *>("programGap_0")->text().startsWith("Gap = "));
    EXPECT_FALSE(report.undoButton()->isEnabled());

    QTest::mouseClick(report.findChild<QPushButton *>("cmdApply_0_0"), Qt::LeftButton);
    EXPECT_EQ(cell(3, ColNS), "S");
    EXPECT_TRUE(report.undoButton()->isEnabled());
    EXPECT_EQ(report.findChild<QTableWidget *>("suggestions_0"), nullptr); // the lot closes now
    QTest::mouseClick(report.undoButton(), Qt::LeftButton);
    EXPECT_EQ(cell(3, ColNS), "N");
    EXPECT_FALSE(report.undoButton()->isEnabled());
    EXPECT_NE(report.findChild<QTableWidget *>("suggestions_0"), nullptr);
}

} // namespace
