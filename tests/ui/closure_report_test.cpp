// Map > Closure Report... on the window: the grid and the map follow Apply and
// Undo, an empty table gets its message; the report window's rows and buttons.

#include "closure_report_window.h"

#include <filesystem>

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <gtest/gtest.h>

#include "entry_grid.h"
#include "plotter.h"
#include "scripted_dialogs.h"
#include "table_builder.h"

using namespace quilmar;

namespace {

// The same four-sided figure twice; row 3 has N for S, row 9 E for W.
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

std::string cellText(const CourseTable &t, int r, int c) { return t.at(r, c).text(); }

class ClosureWindow : public ::testing::Test {
protected:
    std::filesystem::path dir = std::filesystem::temp_directory_path() / "quilmar_closure_ui";
    ScriptedDialogs dialogs;
    std::unique_ptr<Plotter> w;

    void SetUp() override
    {
        std::filesystem::create_directories(dir);
        w = std::make_unique<Plotter>(dialogs, startupOptionsIn(dir.string(), "quilmar", true));
        w->resize(1100, 700);
        w->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(w.get()));
    }
    void TearDown() override
    {
        w.reset();
        std::filesystem::remove_all(dir);
    }
    void load(const CourseTable &t)
    {
        w->engine().editTable() = t;
        w->grid().rules().populatefields();
        w->grid().sync();
    }
    // Every visible field shows its table cell.
    void expectGridShowsTable()
    {
        const CourseTable &t = w->engine().table();
        for (int r = 0; r < GridRules::kVisibleRows; ++r)
            for (int c = 1; c <= CourseTable::kColumns; ++c)
                ASSERT_EQ(w->grid().field({r, c})->text().toStdString(), cellText(t, r, c)) << r << "," << c;
    }
};

TEST_F(ClosureWindow, MenuEntryFollowsPerimeterWithAShortcutOfItsOwn)
{
    auto *peri = w->findChild<QAction *>("mnuPeri");
    auto *report = w->findChild<QAction *>("mnuClosureReport");
    ASSERT_TRUE(peri && report);
    EXPECT_EQ(report->text(), "Closure Report...");
    auto *map = w->findChild<QMenu *>("mnuView");
    const auto actions = map->actions();
    EXPECT_EQ(actions.indexOf(report), actions.indexOf(peri) + 1);
    for (QAction *other : w->findChildren<QAction *>()) {
        if (other != report && !other->shortcut().isEmpty()) {
            EXPECT_NE(other->shortcut(), report->shortcut()) << other->objectName().toStdString();
        }
    }
}

TEST_F(ClosureWindow, AppliesReachGridAndMapAndUndoRestoresBoth)
{
    load(twoBlunders());
    dialogs.closureSteps = {{ClosureStep::Apply, 0, 0}, {ClosureStep::Apply, 1, 0}};
    w->findChild<QAction *>("mnuClosureReport")->trigger();
    ASSERT_EQ(dialogs.closureReports, 1);
    EXPECT_EQ(dialogs.closureResults, (std::vector<bool>{true, true}));
    EXPECT_EQ(cellText(w->engine().table(), 3, ColNS), "S");
    EXPECT_EQ(cellText(w->engine().table(), 9, ColEW), "W");
    expectGridShowsTable();
    EXPECT_TRUE(w->engine().mapComputed());
    EXPECT_FALSE(w->engine().figure().items.empty());
    EXPECT_TRUE(w->findChild<QAction *>("Filesave")->isEnabled());

    // Each report keeps its own undo: a new one has nothing to take back.
    dialogs.closureSteps = {{ClosureStep::Undo}};
    w->mnuClosureReport_Click();
    EXPECT_EQ(dialogs.closureResults.back(), false);
    EXPECT_TRUE(dialogs.texts().empty());
}

TEST_F(ClosureWindow, UndoInTheSameReportPutsTheTableBack)
{
    load(twoBlunders());
    dialogs.closureSteps = {{ClosureStep::Apply, 1, 0}, {ClosureStep::Apply, 0, 0}, {ClosureStep::Undo},
                            {ClosureStep::Undo}};
    w->mnuClosureReport_Click();
    EXPECT_EQ(dialogs.closureResults, (std::vector<bool>{true, true, true, true}));
    const CourseTable original = twoBlunders();
    for (int r = 0; r < CourseTable::kRows; ++r)
        for (int c = 1; c <= CourseTable::kColumns; ++c)
            ASSERT_EQ(cellText(w->engine().table(), r, c), cellText(original, r, c));
    EXPECT_EQ(w->engine().table().highest, original.highest);
    expectGridShowsTable();
}

TEST_F(ClosureWindow, NothingToAnalyseGetsAMessageInstead)
{
    for (const CourseTable &t : {CourseTable(), test::makeTable({{"N", "10", "", "", "E", "100", "", "", "", ""}})}) {
        load(t);
        w->mnuClosureReport_Click();
        EXPECT_EQ(dialogs.closureReports, 0);
        EXPECT_EQ(dialogs.texts(), std::vector<std::string>{ClosureSession::kNoLots});
    }
}

TEST_F(ClosureWindow, ReportWindowShowsRowsAndItsButtonsWorkTheSession)
{
    load(twoBlunders());
    ClosureSession session(w->engine());
    ClosureReportWindow report(session);
    ASSERT_EQ(report.lotTabs()->count(), 2);
    struct Expect {
        const char *name;
        int row, column;
        const char *text;
    };
    const Expect cells[] = {
        {"compass_0Table", 0, 0, "2"},
        {"compass_0Table", 3, 0, "5"},
        {"transit_1Table", 3, 0, "11"},
        {"suggestions_0", 0, 0, "4"},
        {"suggestions_0", 0, 1, "N and S exchanged"},
        {"suggestions_0", 0, 2, "S 7 35 40 W 605.31"},
        {"suggestions_1", 0, 2, "S 7 35 40 W 605.31"},
    };
    for (const Expect &e : cells) {
        auto *t = report.findChild<QTableWidget *>(e.name);
        ASSERT_TRUE(t) << e.name;
        ASSERT_TRUE(t->item(e.row, e.column)) << e.name;
        EXPECT_EQ(t->item(e.row, e.column)->text().toStdString(), e.text) << e.name;
    }
    EXPECT_EQ(report.findChild<QTableWidget *>("compass_0Table")->rowCount(), 4);
    EXPECT_TRUE(report.findChild<QLabel *>("programGap_0")->text().startsWith("Gap = "));
    EXPECT_TRUE(report.findChild<QLabel *>("classes_0")->text().contains("1:20,000"));
    EXPECT_FALSE(report.undoButton()->isEnabled());

    QTest::mouseClick(report.findChild<QPushButton *>("cmdApply_0_0"), Qt::LeftButton);
    EXPECT_TRUE(session.canUndo());
    EXPECT_EQ(cellText(w->engine().table(), 3, ColNS), "S");
    EXPECT_TRUE(report.undoButton()->isEnabled());
    EXPECT_EQ(report.findChild<QTableWidget *>("suggestions_0"), nullptr); // lot 1 closes now
    QTest::mouseClick(report.undoButton(), Qt::LeftButton);
    EXPECT_EQ(cellText(w->engine().table(), 3, ColNS), "N");
    EXPECT_FALSE(report.undoButton()->isEnabled());
    EXPECT_NE(report.findChild<QTableWidget *>("suggestions_0"), nullptr);
}

} // namespace
