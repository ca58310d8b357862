// The monkey: a seeded run of random keys, clicks, scrolls, menu commands and
// dialog answers on the real window (offscreen platform). Nothing may crash,
// hang or assert; after every event Qt's focus and the grid rules' focus are
// on the same field, and each field shows exactly what the course table holds
// unless the rules deliberately keep its text until it is left.
//
// QUILMAR_MONKEY_EVENTS sets the length (60000 by default, about 12 s in
// the plain build; the README documents the long runs), QUILMAR_MONKEY_SEED
// the seed.

#include <cstdlib>
#include <map>
#include <random>
#include <string_view>

#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>

#include "window_fixture.h"

using namespace quilmar;
namespace fs = std::filesystem;

namespace {

class Monkey : public test::WindowTest {};

long envNumber(const char *name, long fallback)
{
    const char *text = std::getenv(name);
    return text && *text ? std::strtol(text, nullptr, 10) : fallback;
}

// Commands a user reaches from the menus and buttons that keep the window
// open; every question they ask is answered by the script.
const char *const kCommands[] = {
    "mnuRedraw", "mnuAcres", "mnuHectares", "mnuGap", "mnuPeri", "EditUndo", "Editcut", "Editcopy", "Editpaste",
    "mnuDeleteEntry", "mnuDeleteAll", "mnuNew", "Filesave", "mnuBackup", "fileopen", "Toolbar_0", "Toolbar_1",
    "Toolbar_2", "Toolbar_4", "Toolbar_5", "Toolbar_6", "mnuConvChains", "mnuFeet2Meters", "mnuConvArc",
    "mnuReciprocal", "mnuConv", "mnuConv2", "mnuConv3", "demosample1", "demosample4",
};

const char kTyped[] = "NSEWLRBCOnsewlrbco0123456789.+- ";

std::string history(const std::vector<std::string> &log)
{
    std::string text;
    for (const std::string &line : log)
        text += line + "\n";
    return text;
}

} // namespace

TEST_F(Monkey, RandomSessionKeepsTheGridAndTheTableTogether)
{
    const long events = envNumber("QUILMAR_MONKEY_EVENTS", 60000);
    const auto seed = static_cast<unsigned>(envNumber("QUILMAR_MONKEY_SEED", 20261123));
    std::mt19937 random(seed);
    auto pick = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    EntryGrid &grid = w->grid();

    std::vector<std::string> log; // the last events, to say how a failure came about
    // Fields whose text the rules changed without storing it: it reaches the
    // table only when the field is next left. (visible row, column) -> text.
    std::map<std::pair<int, int>, std::string> waiting;
    for (long n = 0; n < events; ++n) {
        // Answers for whatever the next event asks; files stay in the temporary folder.
        static constexpr Answer kAnswers[] = {Answer::Ok, Answer::Cancel, Answer::Yes, Answer::No};
        dialogs.answers.assign({kAnswers[pick(4)], kAnswers[pick(4)], kAnswers[pick(4)]});
        dialogs.inputs.assign({pick(3) ? std::optional<std::string>(std::to_string(pick(500)) + "." + std::to_string(pick(99)))
                                       : std::nullopt});
        dialogs.files.assign({pick(4) ? std::optional<std::string>((dir / ("m" + std::to_string(pick(3)))).string())
                                      : std::nullopt});

        const int kind = pick(100);
        QWidget *focus = QApplication::focusWidget();
        log.push_back(std::to_string(n) + ": kind " + std::to_string(kind) + " in "
                      + (focus ? focus->objectName().toStdString() : "-"));
        while (log.size() > 16)
            log.erase(log.begin());
        if (kind < 45 && focus) {
            static const Qt::Key kKeys[] = {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Delete,
                                            Qt::Key_Insert, Qt::Key_Left, Qt::Key_Right};
            if (pick(5))
                QTest::keyClick(focus, kTyped[pick(sizeof kTyped - 1)]);
            else
                QTest::keyClick(focus, kKeys[pick(7)]);
        } else if (kind < 70) {
            QLineEdit *target = grid.field({pick(10), 1 + pick(10)});
            log.back() += " click " + target->objectName().toStdString();
            QTest::mouseClick(target, Qt::LeftButton);
        } else if (kind < 78) {
            grid.scrollBar()->setValue(pick(192));
        } else if (kind < 90) {
            const char *name = kCommands[pick(std::size(kCommands))];
            log.back() += std::string(" command ") + name;
            if (std::string_view(name) == "fileopen") {
                // Only files that exist: a failed open empties the visible fields
                // and leaves the table as it was, deliberately, which this check
                // cannot tell from a fault (the window's tests cover that case).
                const fs::path chosen = dir / ("m" + std::to_string(pick(3)));
                const auto open = fs::exists(chosen) ? std::optional<std::string>(chosen.string()) : std::nullopt;
                dialogs.files.assign({open, open}); // the save question's Save As may take the first
            }
            if (auto *a = w->findChild<QAction *>(name); a && a->isVisible() && a->isEnabled())
                a->trigger();
        } else if (kind < 94) {
            if (auto *b = w->findChild<QPushButton *>(pick(2) ? "CommandInsert" : "CommandDelete"))
                QTest::mouseClick(b, Qt::LeftButton);
        } else if (kind < 97) {
            if (auto *r = w->findChild<QRadioButton *>(QString("metrix_%1").arg(pick(3))))
                QTest::mouseClick(r, Qt::LeftButton);
        } else {
            if (auto *s = w->findChild<QComboBox *>("Scalebox"); s && s->count() > 1)
                s->setCurrentIndex(pick(s->count() - 1)); // not "Custom": it asks through an input box
        }
        if (QMenu *tags = grid.tagMenu(); tags && tags->isVisible()) {
            if (pick(2)) {
                QAction *item = tags->actions().at(pick(static_cast<int>(tags->actions().size())));
                log.push_back("  tag menu " + item->text().toStdString());
                item->trigger();
                // The letter goes into the current row's tag field; when a failed
                // row check took the focus elsewhere, it waits there unstored.
                const int row = grid.rules().currentRow();
                if (grid.rules().focused() != FieldRef{row, ColTag})
                    waiting[{row, ColTag}] = grid.field({row, ColTag})->text().toStdString();
            }
            tags->hide();
        }

        bool chordCorrected = false; // the row check rewrote a chord field
        for (const std::string &box : dialogs.texts()) {
            log.back() += " [" + box + "]";
            chordCorrected = chordCorrected || box.rfind("Chord is incorrect", 0) == 0;
        }
        const int scroll = grid.scrollBar()->value();
        // The field the rules count as focused: its text reaches the table when
        // it is left. Qt's focus must be on that very field unless a menu holds it.
        const std::optional<FieldRef> editing = grid.rules().focused();
        QWidget *qtFocus = QApplication::focusWidget();
        const bool qtOnField = qobject_cast<QLineEdit *>(qtFocus) && grid.isAncestorOf(qtFocus);
        if (!QApplication::activePopupWidget() && (editing || qtOnField)) {
            ASSERT_EQ(qtFocus, editing ? grid.field(*editing) : nullptr)
                << "event " << n << " (seed " << seed << "): the rules' focus is not Qt's, which is on "
                << (qtFocus ? qtFocus->objectName().toStdString() : "nothing") << "\n" << history(log);
        }
        for (int r = 0; r < GridRules::kVisibleRows; ++r) {
            for (int c = 1; c <= CourseTable::kColumns; ++c) {
                QLineEdit *field = grid.field({r, c});
                const std::string shown = field->text().toStdString();
                const std::string held = cellText(w->engine().table().at(scroll + r, c));
                if (editing == FieldRef{r, c})
                    continue;
                if (chordCorrected && c == ColChord && shown != held)
                    waiting[{r, c}] = shown;
                if (const auto it = waiting.find({r, c}); it != waiting.end()) {
                    if (shown == it->second && shown != held)
                        continue;
                    waiting.erase(it); // stored, or the grid was refilled
                }
                ASSERT_EQ(shown, held)
                    << "event " << n << " (seed " << seed << "), row " << scroll + r << " column " << c
                    << " focused " << (editing ? std::to_string(editing->row) + "," + std::to_string(editing->column) : "none")
                    << " current row " << grid.rules().currentRow() << "\n" << history(log);
            }
        }
    }
}

// A click into another row while the current row fails its row check and the
// field reached fails its own check when the focus is sent away again: the two
// checks once sent the focus to and fro until the stack ran out. The focus now
// settles, on a field the rules count as focused.
TEST_F(Monkey, TwoFailingChecksDoNotSendTheFocusToAndFro)
{
    // invalid: the text of the clicked field in row 3, which fails when left
    const struct { const char *invalid; int column; } cases[] = {
        {"3+927", ColMin}, {"5x", ColDistance}, {"95", ColDeg}};
    for (const auto &c : cases) {
        start(true);
        EntryGrid &grid = w->grid();
        QTest::mouseClick(grid.field({2, ColEW}), Qt::LeftButton);
        // Row 2: a curve whose chord is longer than its diameter.
        for (auto [column, text] : {std::pair{ColNS, "N"}, {ColMin, "2"}, {ColEW, "W"}, {ColChord, "8"},
                                    {ColRadius, "2"}, {ColLR, "R"}})
            grid.rules().setText({2, column}, text);
        grid.rules().setText({3, c.column}, c.invalid);
        grid.sync();
        QTest::mouseClick(grid.field({3, c.column}), Qt::LeftButton);

        const auto focused = grid.rules().focused();
        ASSERT_TRUE(focused) << c.invalid;
        EXPECT_EQ(QApplication::focusWidget(), grid.field(*focused)) << c.invalid;
        EXPECT_EQ(grid.rules().currentRow(), 2) << c.invalid; // the failed row stays current
        const std::vector<std::string> boxes = dialogs.texts();
        EXPECT_LE(boxes.size(), 3u) << c.invalid;
        EXPECT_EQ(boxes.front(), " Chord is too long for given radius") << c.invalid;
    }
}
