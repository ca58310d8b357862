// The paste dialog of the deed-text import and Edit > "Paste Deed Text...":
// byte offsets turned into Qt's positions, the rows and flags the dialog
// shows, selecting a row's call, Insert and Cancel, and the rows in the grid.

#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTextBlock>
#include <QTextLayout>
#include <QTimer>

#include "map_canvas.h"
#include "paste_deed_dialog.h"
#include "qt_dialogs.h"
#include "utf16_offset.h"
#include "window_fixture.h"

using namespace quilmar;

namespace {

// Curly quotes, a prime, a half and degree signs before and inside the calls.
const QString kDeed = QString::fromUtf8("Beginning at a “stone” 3′ high; thence N 30½° W 100 feet; "
                                        "thence S 48°72′ E 150.00 feet; thence S 60° E 50 feet to the beginning.");

TEST(Utf16Offset, CountsUnitsNotBytes)
{
    const struct { const char *text; std::size_t byte, units; } cases[] = {
        // ½ and ° are two bytes each, curly quotes three; beyond the BMP four bytes make two units
        {"N 30 W", 4, 4}, {"30½° W", 6, 4}, {"“a” b", 8, 4}, {"\xF0\x9D\x84\x9E x", 5, 3},
        // past the end: the whole text; inside a character: that character counts
        {"ab", 99, 2}, {"°x", 1, 1},
        // stray bytes: one unit each; a cut sequence
        {"\x80\xFFx", 3, 3}, {"\xE2\x82", 2, 2}, {"", 0, 0},
    };
    for (const auto &c : cases)
        EXPECT_EQ(utf16Offset(c.text, c.byte), c.units) << c.text;
}

TEST(PasteDeedDialog, RowsFlagsAndSelection)
{
    PasteDeedDialog d(kDeed);
    d.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&d));
    QTableWidget *t = d.rowTable();
    // N 30½ W; the flagged call (minutes over 59) on a line of its own; S 60 E; the C row.
    ASSERT_EQ(t->rowCount(), 4);
    const char *expected[] = {"N|30|30|0|W|100||||", "Not read: minutes over 59|||||||||",
                              "S|60|0|0|E|50||||", "|||||||||C"};
    for (int r = 0; r < 4; ++r) {
        QStringList cells;
        for (int c = 0; c < 10; ++c)
            cells << t->item(r, c)->text();
        EXPECT_EQ(cells.join('|').toStdString(), expected[r]);
    }
    EXPECT_EQ(t->item(1, 3)->toolTip(), "minutes over 59");
    EXPECT_TRUE(t->item(0, 0)->toolTip().isEmpty());
    EXPECT_EQ(d.rows().size(), 3u); // the flag is not inserted
    EXPECT_EQ(d.findChild<QLabel *>("DeedSummary")->text(),
              "3 course rows read; 1 call in red could not be read: enter it by hand after inserting.");

    // The flagged call starts after 58 characters (66 bytes), ends 30 later.
    const struct { int line; const char *selected; int start; } picks[] = {
        {0, "thence N 30½° W 100 feet;", 32}, {1, "thence S 48°72′ E 150.00 feet;", 58},
        {2, "thence S 60° E 50 feet to the beginning.", 89}};
    for (const auto &p : picks) {
        QTest::mouseClick(t->viewport(), Qt::LeftButton, {}, t->visualItemRect(t->item(p.line, 5)).center());
        const QTextCursor cursor = d.textEdit()->textCursor();
        EXPECT_EQ(cursor.selectedText(), QString::fromUtf8(p.selected)) << p.line;
        EXPECT_EQ(cursor.selectionStart(), p.start) << p.line;
    }
    // The marks in the text: green from 32, red over the flagged call.
    QStringList marks;
    for (const QTextLayout::FormatRange &r : d.textEdit()->document()->firstBlock().layout()->formats())
        marks << QString("%1+%2 %3").arg(r.start).arg(r.length).arg(r.format.background().color().name());
    EXPECT_EQ(marks.join(", ").toStdString(), "32+25 #c8f0c8, 58+30 #ffb8b8, 89+40 #c8f0c8");
    EXPECT_EQ(d.reasonAt(60), "minutes over 59");
    EXPECT_TRUE(d.reasonAt(40).isEmpty());
}

TEST(PasteDeedDialog, RereadsShortlyAfterTyping)
{
    PasteDeedDialog d("thence N 10 E 100 feet;");
    ASSERT_EQ(d.rowTable()->rowCount(), 1);
    d.textEdit()->moveCursor(QTextCursor::End);
    QTest::keyClicks(d.textEdit(), " thence S 5 W 20 feet;");
    EXPECT_EQ(d.rowTable()->rowCount(), 1); // not yet: typing stays smooth
    EXPECT_TRUE(QTest::qWaitFor([&] { return d.rowTable()->rowCount() == 2; }, 2000));
    d.textEdit()->setPlainText("no calls here");
    d.reread();
    EXPECT_EQ(d.rowTable()->rowCount(), 0);
    EXPECT_FALSE(d.insertButton()->isEnabled());
}

TEST(PasteDeedDialog, WarningGoesOnItsRow)
{
    PasteDeedDialog d("Beginning at a beech; thence N 10 E about 75 poles; thence S 5 W 20 feet;");
    ASSERT_EQ(d.rowTable()->rowCount(), 2);
    EXPECT_EQ(d.rowTable()->item(0, 5)->text(), "1237.5");
    EXPECT_EQ(d.rowTable()->item(0, 5)->toolTip(), "distance given as about");
    EXPECT_TRUE(d.rowTable()->item(1, 5)->toolTip().isEmpty());
    EXPECT_EQ(d.reasonAt(30), "distance given as about");
    EXPECT_EQ(d.findChild<QLabel *>("DeedSummary")->text(),
              "2 course rows read; 1 line in amber is read as the deed says but deserves a look.");
}

TEST(PasteDeedDialog, InsertReturnsRowsCancelReturnsNothing)
{
    for (const char *button : {"Insert", "Cancel"}) {
        QtDialogs dialogs;
        QTimer::singleShot(0, [button] {
            if (auto *d = qobject_cast<PasteDeedDialog *>(QApplication::activeModalWidget()))
                d->findChild<QPushButton *>(button)->click();
        });
        const auto rows = dialogs.pasteDeedText(kDeed.toStdString());
        EXPECT_EQ(rows.has_value(), std::string(button) == "Insert");
        if (rows) {
            EXPECT_EQ(rows->size(), 3u); // N 30 30 W, S 60 E, C
        }
    }
}

class PasteCommand : public test::WindowTest {};

// The command opens the dialog on the clipboard's text and pastes what it returns.
TEST_F(PasteCommand, IntoTheGridAtTheFocusedRowWithEachAnswer)
{
    // answer none: row 2 is empty, nothing asked; row7NS: where the old row 2 went on No.
    struct Case { bool dialogCancels; std::optional<Answer> answer; const char *row2NS, *row7NS; bool drawn; };
    const std::vector<PastedRow> square{{"N", "0", "0", "0", "E", "100"}, {"E", "", "", "", "", "100"},
                                        {"S", "0", "0", "0", "E", "100"}, {"W", "", "", "", "", "100"},
                                        {"", "", "", "", "", "", "", "", "", "C"}};
    const Case cases[] = {
        {true, {}, "", "", false},           {false, {}, "N", "", true},         {false, Answer::Yes, "N", "", true},
        {false, Answer::No, "N", "S", true}, {false, Answer::Cancel, "S", "", false},
    };
    for (const auto &c : cases) {
        start(true);
        CourseTable table = w->engine().table();
        if (c.answer) {
            table.at(2, ColNS) = Cell("S");
            table.at(2, ColDistance) = Cell("5");
            dialogs.answers.push_back(*c.answer);
        }
        load(table);
        field(2, ColDeg)->setFocus();
        QApplication::processEvents();
        if (!c.dialogCancels)
            dialogs.pastes.push_back(square);
        QApplication::clipboard()->setText(kDeed);
        trigger("mnuPasteDeed");
        EXPECT_EQ(dialogs.pasteTexts.back(), kDeed.toStdString());
        EXPECT_EQ(dialogs.texts().size(), c.answer ? 1u : 0u);
        EXPECT_EQ(cell(2, ColNS), c.row2NS);
        EXPECT_EQ(cell(7, ColNS), c.row7NS);
        EXPECT_EQ(w->engine().mapComputed(), c.drawn);
        EXPECT_EQ(!w->findChild<MapCanvas *>()->isBlank(), c.drawn);
        expectGridShowsTable();
        if (c.drawn) {
            EXPECT_EQ(cell(6, ColTag), "C");
        }
    }
}

} // namespace
