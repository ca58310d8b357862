// The recovery file: a session that ends without a clean exit comes back
// exactly as it was; an untouched session writes nothing; a clean exit or a
// declined restore leaves nothing behind.

#include "session_recovery.h"

#include <filesystem>

#include <QComboBox>
#include <QPlainTextEdit>
#include <QTest>
#include <gtest/gtest.h>

#include "plotter.h"
#include "run_window.h"
#include "scripted_dialogs.h"
#include "temp_folder.h"

using namespace quilmar;
namespace fs = std::filesystem;

namespace {

class Recovery : public ::testing::Test {
protected:
    test::TempFolder dir;
    std::string file = dir.file("recovery.map");
    ScriptedDialogs dialogs;

    std::unique_ptr<Plotter> window()
    {
        auto w = std::make_unique<Plotter>(dialogs, startupOptionsIn(dir.path().string(), "quilmar", true));
        w->show();
        return w;
    }
    static std::function<std::string()> snapshotOf(Plotter &w)
    {
        return [&w] { return w.engine().mapFileBytes(); };
    }
};

TEST_F(Recovery, AKilledSessionComesBackExactly)
{
    auto before = window();
    SessionRecovery recovery(file, snapshotOf(*before));
    recovery.start();
    EXPECT_FALSE(recovery.saveIfChanged()); // nothing typed yet: nothing written
    EXPECT_FALSE(fs::exists(file));

    CourseTable &table = before->engine().editTable();
    table.at(0, ColTag) = Cell("B");
    const char *rows[][6] = {{"N", "12", "30", "15", "E", "100.5"}, {"S", "77", "", "", "E", "80"},
                             {"S", "12", "30", "15", "W", "100.5"}};
    for (int r = 0; r < 3; ++r)
        for (int c = 0; c < 6; ++c)
            table.at(r + 1, c + 1) = Cell(rows[r][c]);
    table.at(150, ColDistance) = Cell("far down");
    table.gethighest();
    before->findChild<QPlainTextEdit *>("Headerbox")->setPlainText("Lot 7\nBlock C");
    before->metrix_Click(1);
    before->findChild<QComboBox *>("Scalebox")->setEditText("1200");
    ASSERT_TRUE(recovery.saveIfChanged());
    EXPECT_FALSE(recovery.saveIfChanged()); // written once per change
    const std::string session = before->engine().mapFileBytes();
    const CourseTable typed = before->engine().table();
    before.reset(); // the kill: no clean exit, the file stays

    auto after = window();
    dialogs.answers.push_back(Answer::Yes);
    ASSERT_TRUE(offerRecovery(*after, dialogs, file));
    for (int r = 0; r < CourseTable::kRows; ++r)
        for (int c = 1; c <= CourseTable::kColumns; ++c)
            ASSERT_EQ(after->engine().table().at(r, c).text(), typed.at(r, c).text()) << r << "," << c;
    EXPECT_EQ(after->findChild<QPlainTextEdit *>("Headerbox")->toPlainText(), "Lot 7\nBlock C");
    EXPECT_EQ(after->engine().units(), Units::Meters);
    EXPECT_EQ(after->engine().mapFileBytes(), session);
}

TEST_F(Recovery, CleanExitAndDeclinedRestoreLeaveNothing)
{
    auto w = window();
    SessionRecovery recovery(file, snapshotOf(*w));
    recovery.start();
    w->engine().editTable().at(0, ColNS) = Cell("N");
    ASSERT_TRUE(recovery.saveIfChanged());
    recovery.discard();
    EXPECT_FALSE(fs::exists(file));

    SessionRecovery again(file, [] { return std::string("N\t\t\t\t\t1\t\t\t\t\r\n"); });
    again.saveIfChanged();
    ASSERT_TRUE(fs::exists(file));
    dialogs.answers.push_back(Answer::No);
    EXPECT_FALSE(offerRecovery(*w, dialogs, file));
    EXPECT_FALSE(fs::exists(file));
    EXPECT_EQ(w->engine().table().at(0, ColNS).text(), "N"); // the table was not touched
}

} // namespace
