// The recovery file: a session that ends without a clean exit comes back
// exactly as it was; an untouched session writes nothing; a clean exit or a
// declined restore leaves nothing behind.

#include "session_recovery.h"

#include <QComboBox>
#include <QPlainTextEdit>

#include "run_window.h"
#include "window_fixture.h"

using namespace quilmar;
namespace fs = std::filesystem;

namespace {

struct Recovery : test::WindowTest {
    std::string file = folder.file("recovery.map");
    std::function<std::string()> snapshot = [this] { return w->engine().mapFileBytes(); };
};

TEST_F(Recovery, AKilledSessionComesBackExactly)
{
    SessionRecovery recovery(file, snapshot);
    recovery.start();
    EXPECT_FALSE(recovery.saveIfChanged()); // nothing typed yet: nothing written
    EXPECT_FALSE(fs::exists(file));

    CourseTable table = test::makeTable({{"", "", "", "", "", "", "", "", "", "B"},
                                         {"N", "12", "30", "15", "E", "100.5", "", "", "", ""},
                                         {"S", "77", "", "", "E", "80", "", "", "", ""},
                                         {"S", "12", "30", "15", "W", "100.5", "", "", "", ""}});
    table.at(150, ColDistance) = Cell("far down");
    table.gethighest();
    w->engine().editTable() = table;
    child<QPlainTextEdit>("Headerbox")->setPlainText("Lot 7\nBlock C");
    w->metrix_Click(1);
    child<QComboBox>("Scalebox")->setEditText("1200");
    ASSERT_TRUE(recovery.saveIfChanged());
    EXPECT_FALSE(recovery.saveIfChanged()); // written once per change
    const std::string session = w->engine().mapFileBytes();
    start(true); // the kill: no clean exit, the file stays

    dialogs.answers.push_back(Answer::Yes);
    ASSERT_TRUE(offerRecovery(*w, dialogs, file));
    for (int r = 0; r < CourseTable::kRows; ++r)
        for (int c = 1; c <= CourseTable::kColumns; ++c)
            ASSERT_EQ(cell(r, c), table.at(r, c).text()) << r << "," << c;
    EXPECT_EQ(child<QPlainTextEdit>("Headerbox")->toPlainText(), "Lot 7\nBlock C");
    EXPECT_EQ(w->engine().units(), Units::Meters);
    EXPECT_EQ(w->engine().mapFileBytes(), session);
}

TEST_F(Recovery, CleanExitAndDeclinedRestoreLeaveNothing)
{
    SessionRecovery recovery(file, snapshot);
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
