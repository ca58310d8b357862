// The window through real focus changes, keys and clicks (offscreen platform),
// with every question answered by ScriptedDialogs.

#include <sys/resource.h>

#include <csignal>

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include "map_canvas.h"
#include "window_fixture.h"

using namespace quilmar;
namespace fs = std::filesystem;

using Window = test::WindowTest;

TEST_F(Window, StartsWithTheScaleListUnitsAndNames)
{
    auto *scale = child<QComboBox>("Scalebox");
    QStringList items;
    for (int i = 0; i < scale->count(); ++i)
        items << scale->itemText(i);
    EXPECT_EQ(items.join("|"), "Minimum|Small|Standard|Maximum| 50| 100| 200| 400| 800| 1500| 2000| 3000| 4000|Custom");
    EXPECT_EQ(scale->currentText(), "Standard");
    EXPECT_TRUE(child<QRadioButton>("metrix_0")->isChecked());
    EXPECT_FALSE(w->engine().mapComputed()); // "Standard" at start-up draws nothing
    // Nothing to save, print or copy before the first computation; a sample computes at once.
    const char *const needsMap[] = {"Filesave", "mnuBackup", "FilePrintmap", "FilePrint", "Fileprinttext"};
    for (const char *name : needsMap)
        EXPECT_FALSE(action(name)->isEnabled()) << name;
    action("demosample4")->trigger();
    for (const char *name : needsMap)
        EXPECT_TRUE(action(name)->isEnabled()) << name;
    EXPECT_EQ(field(0, 1)->objectName(), "Text1_0");
    EXPECT_EQ(field(9, 10)->objectName(), "Text10_9");
    EXPECT_EQ(field(0, 2)->accessibleName(), "Row 1 Deg");
    QTest::mouseMove(field(5, 2));
    EXPECT_EQ(child<QLabel>("Commentbox")->text(), "Row 6");
    EXPECT_EQ(child<QLabel>("Commentbox")->accessibleDescription(), "Row 6");
    w->grid().scrollBar()->setValue(11);
    EXPECT_EQ(field(0, 6)->accessibleName(), "Row 12 Distance");

    // Only the United States measure is the English mode; the British and every other is metric.
    const QLocale saved;
    const struct { const char *locale; bool english; } measures[] = {
        {"en_US", true}, {"en_GB", false}, {"de_DE", false}, {"C", false}};
    for (const auto &m : measures) {
        QLocale::setDefault(QLocale(m.locale));
        EXPECT_EQ(startupOptionsFor((dir / "quilmar").string()).englishMeasure, m.english) << m.locale;
    }
    QLocale::setDefault(saved);

    start(false, "[setting]\nscales=250\n");
    EXPECT_TRUE(child<QRadioButton>("metrix_1")->isChecked());
    EXPECT_EQ(child<QComboBox>("Scalebox")->itemText(4), " 250");
    EXPECT_EQ(child<QComboBox>("Scalebox")->count(), 6);
}

TEST_F(Window, TypingTheSquareDrawsItAndCtrlAGivesAcres)
{
    click(field(0, 10));
    closeTagMenu();
    type("b");
    click(field(1, 1));
    type("n\t0\t\t\tx\t100\r"); // Min and Sec left blank; "x" in E/W gives "E"
    EXPECT_EQ(field(1, 5)->text(), "E");
    EXPECT_EQ(QApplication::focusWidget(), field(2, 1));
    type("n\t90\t\t\te\t100\r");
    type("s\t0\t\t\te\t100\r");
    type("s\t90\t\t\tW\t100\r"); // a capital: a small "w" in E/W toggles
    EXPECT_EQ(cell(4, ColDistance), "100");
    EXPECT_TRUE(w->engine().mapComputed());
    EXPECT_TRUE(child<QLabel>("Autoscalebox")->text().startsWith("AutoScale = "));
    EXPECT_TRUE(dialogs.asked.empty());

    QTest::keyClick(field(5, 1), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(child<QLabel>("Acresbox")->text().toStdString(), "0.23 acres [10,000.00 sq ft]");
    EXPECT_EQ(child<QLabel>("Acresbox")->accessibleDescription(), child<QLabel>("Acresbox")->text());
    EXPECT_FALSE(field(5, 1)->hasSelectedText());

    // A wrong bearing fixed: the map is recomputed when the row is left.
    const std::string before = w->engine().acresbox();
    click(field(2, 2));
    field(2, 2)->selectAll();
    type("45");
    click(field(6, 1));
    EXPECT_EQ(cell(2, ColDeg), "45");
    EXPECT_EQ(child<QLabel>("Acresbox")->text(), ""); // the redraw empties the result line
}

TEST_F(Window, MessagesAndFocusFromTheRules)
{
    click(field(9, 6));
    type("5\r");
    ASSERT_EQ(dialogs.asked.size(), 1u);
    EXPECT_EQ(dialogs.asked[0].text, "Please use scroll bar to add additional rows.");
    EXPECT_EQ(QApplication::focusWidget(), field(9, 6));

    click(field(3, 3));
    type("60");
    click(field(3, 4));
    EXPECT_EQ(dialogs.asked.back().text, "Invalid entry.");
    EXPECT_EQ(QApplication::focusWidget(), field(3, 3));
    EXPECT_EQ(cell(3, ColMin), "60"); // stored all the same

    EXPECT_EQ(field(3, 3)->palette().color(QPalette::Base), QColor(255, 255, 128)); // focused: light yellow
    EXPECT_EQ(field(3, 10)->palette().color(QPalette::Base), QColor(224, 224, 224)); // tags: light grey
    EXPECT_EQ(field(3, 4)->palette().color(QPalette::Base), QColor(255, 255, 255));
    QTest::keyClick(field(3, 3), 'q'); // refused with a beep
    QTest::keyClick(field(3, 3), Qt::Key_K, Qt::ControlModifier); // a control character too
    EXPECT_EQ(field(3, 3)->text(), "60");
    click(field(3, 1));
    QTest::keyClick(field(3, 1), Qt::Key_Escape); // any key toggles the N/S code
    EXPECT_EQ(field(3, 1)->text(), "N");

    // Delete is no typed character: it deletes in every column, refused nowhere, toggling nothing.
    const size_t messages = dialogs.asked.size();
    const struct { int column; const char *after; } deletes[] = {{ColMin, "6"}, {ColNS, ""}}; // "60", "N" before
    for (const auto &d : deletes) {
        click(field(3, d.column));
        QTest::keyClick(field(3, d.column), Qt::Key_End);
        QTest::keyClick(field(3, d.column), Qt::Key_Left);
        // with the text the X11 platform gives the key (Qt's test keys give none)
        QTest::sendKeyEvent(QTest::Click, field(3, d.column), Qt::Key_Delete, QString(QChar(0x7f)), Qt::NoModifier);
        EXPECT_EQ(field(3, d.column)->text().toStdString(), d.after) << d.column;
    }
    EXPECT_EQ(dialogs.asked.size(), messages);
}

TEST_F(Window, ScrollingWithAPendingEditKeepsItInItsRow)
{
    click(field(9, 6));
    type("77");
    w->grid().scrollBar()->setValue(5);
    EXPECT_EQ(cell(9, ColDistance), "77");
    EXPECT_EQ(field(4, 6)->text(), "77");
    EXPECT_EQ(field(9, 6)->text(), "");
    click(field(9, 6));
    EXPECT_EQ(w->engine().table().highest, 14);
}

TEST_F(Window, TagMenuAndRowButtons)
{
    click(field(2, 6));
    type("100");
    click(field(2, 10));
    QMenu *menu = w->grid().tagMenu();
    EXPECT_TRUE(menu->isVisible());
    menu->findChild<QAction *>("mnuPopup3")->trigger();
    menu->hide();
    EXPECT_EQ(dialogs.texts(), std::vector<std::string>{"The Close tag must be placed on a new line."});
    menu->findChild<QAction *>("mnuPopup2")->trigger();
    EXPECT_EQ(field(2, 10)->text(), "B");
    QTest::mouseDClick(field(2, 10), Qt::LeftButton); // double-click shows the menu again
    EXPECT_TRUE(menu->isVisible());
    menu->hide();

    click(field(2, 1));
    QTest::keyClick(field(2, 1), Qt::Key_Insert);
    EXPECT_EQ(cell(3, ColDistance), "100");
    EXPECT_EQ(field(3, 6)->text(), "100");
    dialogs.answers = {Answer::Ok};
    click(child<QPushButton>("CommandDelete"));
    EXPECT_EQ(dialogs.texts(), std::vector<std::string>{"Are you sure you want to delete the current row?"});
    EXPECT_EQ(field(2, 6)->text(), "100");

    dialogs.answers = {Answer::Cancel, Answer::Ok};
    w->Toolbar_Click(2);
    EXPECT_EQ(field(2, 6)->text(), "100");
    w->Toolbar_Click(2);
    EXPECT_EQ(field(2, 6)->text(), "");
    EXPECT_EQ(w->engine().table().highest, 50);
    EXPECT_EQ(QApplication::focusWidget(), field(0, 1));

    // What the row buttons emptied stays empty when Calculate Acres then refuses an open traverse.
    load(test::makeTable({{"N", "0", "", "", "E", "100", "", "", "", ""}}));
    trigger("mnuGap");
    EXPECT_NE(acres(), "");
    auto *canvas = child<MapCanvas>("minmap");
    for (int button : {1, 2}) {
        dialogs.answers = {Answer::Ok};
        w->Toolbar_Click(button);
        dialogs.asked.clear();
        trigger("mnuAcres");
        EXPECT_EQ(dialogs.texts(), std::vector<std::string>{"Before you can calculate the acreage, please close the gap.  "
                                                            "Click on Calc Gap button to see gap information."});
        EXPECT_EQ(acres(), "") << button;
        EXPECT_EQ(canvas->isBlank(), button == 2);
        EXPECT_EQ(child<QLabel>("Autoscalebox")->text().isEmpty(), button == 2);
    }
}

TEST_F(Window, CustomScaleAndUnits)
{
    auto *scale = child<QComboBox>("Scalebox");
    dialogs.inputs = {std::string("1000")};
    w->Scalebox_Click(scale->count() - 1); // "Custom"
    EXPECT_EQ(scale->currentText(), "1000:1");
    EXPECT_EQ(scale->itemText(scale->count() - 1), "Custom");
    EXPECT_EQ(w->engine().scaleText(), "1000:1");
    EXPECT_TRUE(w->engine().mapComputed());
    click(child<QRadioButton>("metrix_1"));
    EXPECT_EQ(w->engine().metricFactor(), 2.5f);

    // A typed scale stays as typed: the list completes nothing ("S" is not "Small").
    scale->lineEdit()->selectAll();
    QTest::keyClicks(scale->lineEdit(), "S");
    EXPECT_EQ(scale->currentText(), "S");
    EXPECT_EQ(w->engine().scaleText(), "S");
}

TEST_F(Window, CloseAsksOnlyAboutTheTopRow)
{
    click(field(4, 1));
    type("n");
    w->Toolbar_Click(7); // button 7 is Exit
    EXPECT_TRUE(dialogs.asked.empty());
    EXPECT_FALSE(w->isVisible());

    start(true);
    click(field(0, 1));
    type("n");
    dialogs.answers = {Answer::Cancel};
    w->close();
    EXPECT_TRUE(w->isVisible());
    dialogs.answers = {Answer::Yes};
    dialogs.files = {(dir / "deed").string()};
    w->close();
    EXPECT_FALSE(w->isVisible());
    EXPECT_TRUE(fs::exists(dir / "deed.map")); // ".map" added
}

TEST_F(Window, SaveOpenAndAFailedSaveKeepsTheOldFile)
{
    click(field(0, 1));
    type("n\t10\t\t\te\t250\r");
    w->Toolbar_Click(0);
    const fs::path path = dir / "lot.map";
    dialogs.files = {path.string()};
    w->saveit(1);
    const std::string saved = test::fileBytes(path);
    EXPECT_EQ(saved.substr(0, 13), "N\t10\t\t\tE\t250\t");

    // Overwrite refused.
    dialogs.files = {path.string()};
    dialogs.answers = {Answer::No};
    w->saveit(1);
    EXPECT_EQ(dialogs.texts(), std::vector<std::string>{"File already exists.  Do you want to overwrite it?"});

    // A write that fails half-way (file size limit) leaves the old file as it was.
    click(field(1, 6));
    type("999");
    click(field(2, 6));
    struct rlimit old {};
    getrlimit(RLIMIT_FSIZE, &old);
    auto previous = std::signal(SIGXFSZ, SIG_IGN);
    struct rlimit tiny = old;
    tiny.rlim_cur = 8;
    setrlimit(RLIMIT_FSIZE, &tiny);
    dialogs.files = {path.string()};
    dialogs.answers = {Answer::Yes};
    w->saveit(1);
    setrlimit(RLIMIT_FSIZE, &old);
    std::signal(SIGXFSZ, previous);
    EXPECT_EQ(test::fileBytes(path), saved);
    EXPECT_EQ(std::distance(fs::directory_iterator(dir), fs::directory_iterator{}), 1); // no temporary left

    if (::geteuid() != 0) { // a read-only folder stops everyone but root
        fs::permissions(dir, fs::perms::owner_write, fs::perm_options::remove);
        dialogs.files = {path.string()};
        w->saveit(1);
        EXPECT_EQ(test::fileBytes(path), saved);
        fs::permissions(dir, fs::perms::owner_write, fs::perm_options::add);
    }

    // Open asks to save (Cancel goes on all the same) and reads the file.
    dialogs.asked.clear();
    dialogs.answers = {Answer::Cancel};
    dialogs.files = {path.string()};
    w->fileopen_Click();
    EXPECT_EQ(dialogs.texts(), std::vector<std::string>{"Do you wish to save the data?"});
    EXPECT_EQ(field(0, 6)->text(), "250");
    EXPECT_EQ(field(1, 6)->text(), "");

    // With no N/S code in the visible rows nothing is asked; the grid comes back to the top.
    w->grid().scrollBar()->setValue(3);
    dialogs.files = {path.string()};
    w->fileopen_Click();
    EXPECT_TRUE(dialogs.texts().empty());
    EXPECT_EQ(w->grid().scrollBar()->value(), 0);
    EXPECT_EQ(field(0, 1)->text(), "N");

    dialogs.files = {(dir / "none.map").string()};
    dialogs.answers = {Answer::No};
    w->fileopen_Click();
    EXPECT_EQ(dialogs.texts().back(), "File " + (dir / "none.map").string() + " not found.");

    w->saveit(2);
    EXPECT_TRUE(fs::exists(w->backupPath()));
}

TEST_F(Window, EditMenuWorksOnTheFocusedField)
{
    click(field(1, 6));
    type("123");
    QMenu *edit = child<QMenu>("Editmenu");
    emit edit->aboutToShow();
    EXPECT_FALSE(child<QAction>("Editcopy")->isEnabled()); // nothing selected
    EXPECT_TRUE(child<QAction>("EditUndo")->isEnabled());
    field(1, 6)->selectAll();
    emit edit->aboutToShow();
    EXPECT_TRUE(child<QAction>("Editcut")->isEnabled());
    child<QAction>("Editcut")->trigger();
    emit edit->aboutToHide();
    EXPECT_EQ(field(1, 6)->text(), "");
    click(field(2, 7));
    child<QAction>("Editpaste")->trigger();
    EXPECT_EQ(field(2, 7)->text(), "123");
    click(field(3, 1));
    EXPECT_EQ(cell(2, ColChord), "123"); // a pasted value is stored like a typed one

    start(false); // metric: Calculate Acres is hidden, and Ctrl+A still selects nothing
    click(field(0, 6));
    type("45");
    QTest::keyClick(field(0, 6), Qt::Key_A, Qt::ControlModifier);
    EXPECT_FALSE(field(0, 6)->hasSelectedText());
    EXPECT_EQ(field(0, 6)->text(), "45");
    auto *heading = child<QPlainTextEdit>("Headerbox");
    heading->setFocus();
    QTest::keyClicks(heading, "Lot 7");
    QTest::keyClick(heading, Qt::Key_A, Qt::ControlModifier);
    EXPECT_FALSE(heading->textCursor().hasSelection());
    EXPECT_EQ(w->engine().description(), "Lot 7");

    // The heading box is a field of the window too: the Edit menu works on it while it has the focus.
    heading->selectAll();
    emit child<QMenu>("Editmenu")->aboutToShow();
    EXPECT_TRUE(child<QAction>("Editcopy")->isEnabled());
    EXPECT_TRUE(child<QAction>("EditUndo")->isEnabled());
    child<QAction>("Editcopy")->trigger();
    EXPECT_EQ(clipboard(), "Lot 7");
    child<QAction>("Editcut")->trigger();
    EXPECT_EQ(heading->toPlainText(), "");
    child<QAction>("Editpaste")->trigger();
    child<QAction>("Editpaste")->trigger();
    EXPECT_EQ(w->engine().description(), "Lot 7Lot 7");
}
