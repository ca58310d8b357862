#include "grid_rules.h"

#include <gtest/gtest.h>

#include "scripted_dialogs.h"
#include "table_builder.h"

using namespace quilmar;

namespace {

struct Grid : ::testing::Test {
    CourseTable table;
    ScriptedDialogs dialogs;
    int draws = 0;
    GridRules rules{table, dialogs, [this] { ++draws; }};

    // Focus a field, type into it as the widget would, and leave it.
    GridOutcome type(FieldRef f, const std::string &text)
    {
        rules.gotFocus(f);
        rules.setText(f, text);
        return rules.lostFocus(f);
    }
    void fillRow(int row, test::Row cells)
    {
        for (int c = ColNS; c <= ColTag; ++c)
            rules.setText({row, c}, cells[c - 1]);
    }
};

} // namespace

TEST_F(Grid, KeystrokeFiltersAndToggles)
{
    // text: the expected new text
    struct Key { int column; const char *current; char32_t key; std::optional<std::string> text; bool swallow, beep; };
    const Key cases[] = {
        {ColNS, "", 'x', "N", true, false},   {ColNS, "N", 'x', "S", true, false},  {ColNS, "S", 'x', "N", true, false},
        {ColNS, "S", 'w', "W", true, false},  {ColNS, "", '+', "+", true, false},   {ColNS, "N", 8, "S", true, false},
        {ColEW, "", 'q', "E", true, false},   {ColEW, "E", 'q', "W", true, false},  {ColEW, "", 'W', "W", true, false},
        {ColLR, "", 'q', "R", true, false},   {ColLR, "R", 'q', "L", true, false},  {ColLR, "R", 'L', "L", true, false},
        // E/W and L/R take their letters in capitals only: a small letter toggles.
        {ColEW, "", 'w', "E", true, false},   {ColEW, "W", 'w', "E", true, false},  {ColLR, "", 'l', "R", true, false},
        {ColTag, "B", 'c', "C", true, false}, {ColTag, "B", 'x', "", true, false},
        {ColDeg, "", '5', std::nullopt, false, false}, {ColDistance, "", '.', std::nullopt, false, false},
        {ColChord, "", ',', std::nullopt, false, false}, {ColRadius, "1", 8, std::nullopt, false, false},
        {ColMin, "", 'a', std::nullopt, true, true}, {ColSec, "", ' ', std::nullopt, true, true},
        {ColDistance, "", 0xE9, std::nullopt, true, true},
    };
    for (const auto &k : cases) {
        rules.setText({2, k.column}, k.current);
        const KeyOutcome out = rules.keyPress({2, k.column}, k.key);
        SCOPED_TRACE(std::to_string(k.column) + " '" + k.current + "' " + std::to_string(int(k.key)));
        EXPECT_EQ(out.newText, k.text);
        EXPECT_EQ(out.swallow, k.swallow);
        EXPECT_EQ(out.beep, k.beep);
        EXPECT_EQ(rules.text({2, k.column}), k.text.value_or(k.current));
    }
}

TEST_F(Grid, TabAndEnterMoveTheFocus)
{
    const struct { FieldRef from; const char *radius; std::optional<FieldRef> to; bool scrollMessage; } cases[] = {
        {{0, ColNS}, "", FieldRef{0, ColDeg}, false}, {{0, ColDistance}, "", FieldRef{1, ColNS}, false},
        {{0, ColDistance}, "50", FieldRef{0, ColChord}, false}, {{0, ColLR}, "50", FieldRef{1, ColNS}, false},
        {{3, ColTag}, "", FieldRef{4, ColNS}, false}, {{9, ColDistance}, "", std::nullopt, true},
        {{9, ColLR}, "", std::nullopt, true}, {{9, ColTag}, "", std::nullopt, false},
        {{9, ColDistance}, "50", FieldRef{9, ColChord}, false},
    };
    for (const auto &c : cases) {
        rules.setText({c.from.row, ColRadius}, c.radius);
        for (char32_t key : {U'\t', U'\r'}) {
            const KeyOutcome out = rules.keyPress(c.from, key);
            EXPECT_TRUE(out.swallow);
            EXPECT_EQ(out.focus, c.to) << c.from.row << "," << c.from.column;
            EXPECT_EQ(dialogs.texts(), c.scrollMessage ? std::vector<std::string>{"Please use scroll bar to add additional rows."}
                                                       : std::vector<std::string>{});
        }
    }
}

TEST_F(Grid, LeavingAFieldChecksAndStores)
{
    // message "" for none
    const struct { int column; const char *ns, *tag, *text, *message; bool stored; } cases[] = {
        {ColNS, "", "C", "N", "Entries cannot be made on a line with a 'C' or 'N' tag.", false},
        {ColDistance, "", "N", "12", "Entries cannot be made on a line with a 'C' or 'N' tag.", false},
        // Angle fields store what they refuse; a chord of "abc" reads as 0: no message.
        {ColDistance, "", "N", "abc", "", true},      {ColDeg, "N", "", "95", "Invalid entry.", true},
        {ColDeg, "+", "", "95", "", true},            {ColDeg, "N", "", "4x", "Invalid entry.", true},
        {ColMin, "N", "", "60", "Invalid entry.", true}, {ColSec, "N", "", "59.999", "", true},
        {ColChord, "N", "", "abc", "", true},         {ColChord, "N", "", "5a", "Invalid entry.", false},
        {ColRadius, "N", "", " 40 ", "", true},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(std::to_string(c.column) + " " + c.text);
        table.erase();
        rules.setText({1, ColNS}, c.ns);
        rules.setText({1, ColTag}, c.tag);
        const GridOutcome out = type({1, c.column}, c.text);
        EXPECT_EQ(dialogs.texts(), *c.message ? std::vector<std::string>{c.message} : std::vector<std::string>{});
        EXPECT_EQ(out.focus, *c.message ? std::optional<FieldRef>(FieldRef{1, c.column}) : std::nullopt);
        EXPECT_EQ(table.at(1, c.column).text(), c.stored ? c.text : "");
    }
}

TEST_F(Grid, RowCheckMessagesIconsAndFocus)
{
    struct Check { test::Row row; bool valid; const char *message; Icon icon; std::optional<FieldRef> focus; };
    const Check cases[] = {
        {{"N", "95", "", "", "E", "10", "", "", "", ""}, false, "Invalid value in angle fields.", Icon::Exclamation, FieldRef{4, ColDeg}},
        {{"+", "95", "", "", "", "10", "", "", "", ""}, true, "", Icon::None, std::nullopt},
        {{"", "45", "", "", "E", "10", "", "", "", ""}, false, "Please specify the North-South direction.", Icon::Exclamation, FieldRef{4, ColNS}},
        {{"N", "45", "", "", "", "10", "", "", "", ""}, false, "Please specify the East-West direction.", Icon::Exclamation, FieldRef{4, ColEW}},
        {{"-", "45", "", "", "", "10", "", "", "", ""}, true, "", Icon::None, std::nullopt},
        // a code read from a file with a blank before the sign is no incremental angle
        {{" +", "95", "", "", "", "10", "", "", "", ""}, false, "Invalid value in angle fields.", Icon::Exclamation, FieldRef{4, ColDeg}},
        {{" -", "45", "", "", "", "10", "", "", "", ""}, false, "Please specify the East-West direction.", Icon::Exclamation, FieldRef{4, ColEW}},
        {{"N", "1", "59.999", "", "E", "10", "", "", "", ""}, true, "", Icon::None, std::nullopt},
        {{"N", "1", "59.9995", "", "E", "10", "", "", "", ""}, false, "Invalid value in angle fields.", Icon::None, std::nullopt},
        {{"N", "1", "", "59.99995", "E", "10", "", "", "", ""}, false, "Invalid value in angle fields.", Icon::None, std::nullopt},
        {{"N", "1", "", "", "E", "10", "", "", "R", ""}, false, "Radius must be specified.", Icon::Exclamation, FieldRef{4, ColRadius}},
        {{"N", "1", "", "", "E", "10", "", "50", "", ""}, false, "Left/Right direction of curve must be specified.", Icon::Exclamation, FieldRef{4, ColLR}},
        {{"N", "1", "", "", "E", "", "", "50", "R", ""}, false, "For curves either the distance or the chord must be specified.", Icon::Exclamation, FieldRef{4, ColDistance}},
        {{"", "", "", "", "", "", "", "50", "R", "C"}, true, "", Icon::None, std::nullopt},
        {{"", "", "", "", "", "", "", "50", "R", " C"}, false, "For curves either the distance or the chord must be specified.", Icon::Exclamation, FieldRef{4, ColDistance}},
        {{"", "", "", "", "", "", "20", "50", "R", ""}, false, "If you use chords you must specify the angle.", Icon::Exclamation, FieldRef{4, ColNS}},
        // a blank N/S code counts as none, but the focus goes to the degrees
        {{" ", "", "", "", "", "", "20", "50", "R", ""}, false, "If you use chords you must specify the angle.", Icon::Exclamation, FieldRef{4, ColDeg}},
        {{"N", "1", "", "", "E", "314.2", "", "100", "R", ""}, false, "Distance is too long for given radius.", Icon::Exclamation, FieldRef{4, ColRadius}},
        {{"N", "1", "", "", "E", "314.1", "", "100", "R", ""}, true, "", Icon::None, std::nullopt},
        {{"N", "1", "", "", "E", "", "201", "100", "R", ""}, false, " Chord is too long for given radius", Icon::Exclamation, FieldRef{4, ColChord}},
        // arc 100 on radius 100: chord 95.885; within 0.1 % passes unchanged
        {{"N", "1", "", "", "E", "100", "95.9", "100", "R", ""}, true, "", Icon::None, std::nullopt},
        // arc 50 on radius 5730: the true chord 49.9998 is no error to correct
        {{"N", "1", "", "", "E", "50", "49.9998", "5730", "R", ""}, true, "", Icon::None, std::nullopt},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(std::string(c.row[0]) + "|" + c.row[1] + "|" + c.row[2] + "|" + c.row[3] + "|" + c.row[5] + "|" + c.row[6] + "|" + c.row[7]);
        fillRow(4, c.row);
        GridOutcome out;
        EXPECT_EQ(rules.test_all(4, out), c.valid);
        if (*c.message) {
            ASSERT_EQ(dialogs.asked.size(), 1u);
            EXPECT_EQ(dialogs.asked[0].icon, c.icon);
        }
        EXPECT_EQ(dialogs.texts(), *c.message ? std::vector<std::string>{c.message} : std::vector<std::string>{});
        EXPECT_EQ(out.focus, c.focus);
    }
}

TEST_F(Grid, ChordCorrectionQuestion)
{
    for (Answer a : {Answer::Yes, Answer::No}) {
        fillRow(0, {"N", "10", "", "", "E", "100", "90", "100", "R", ""});
        dialogs.answers = {a};
        GridOutcome out;
        EXPECT_TRUE(rules.test_all(0, out));
        ASSERT_EQ(dialogs.asked.size(), 1u);
        EXPECT_EQ(dialogs.asked[0].buttons, Buttons::YesNo);
        EXPECT_EQ(dialogs.texts()[0], "Chord is incorrect based on radius and distance given.  Correct chord is 95.89.  If "
                                      "you press 'Yes' then your input will be substituted with correct value, otherwise "
                                      "the chord value will be deleted.");
        EXPECT_EQ(rules.text({0, ColChord}), a == Answer::Yes ? "95.89" : "");
    }
}

TEST_F(Grid, RedrawsOnlyWhenTheLastFieldLeftChanged)
{
    fillRow(0, {"N", "10", "", "", "E", "100", "", "", "", ""});
    type({0, ColDistance}, "120");
    type({1, ColNS}, ""); // click into another row, and on
    EXPECT_EQ(draws, 1);
    EXPECT_EQ(rules.currentRow(), 1);

    // Changing the distance, tabbing on to the chord unchanged, then leaving the row: no redraw.
    rules.setText({1, ColRadius}, "");
    fillRow(2, {"N", "10", "", "", "E", "100", "", "", "", ""});
    type({2, ColDistance}, "150");
    type({2, ColChord}, "");
    rules.gotFocus({3, ColNS});
    EXPECT_EQ(draws, 1);
}

TEST_F(Grid, FailingRowCheckKeepsTheCurrentRowExceptForTags)
{
    fillRow(0, {"", "45", "", "", "E", "10", "", "", "", ""});
    GridOutcome out = rules.gotFocus({5, ColDeg});
    EXPECT_EQ(rules.currentRow(), 0);
    EXPECT_EQ(out.focus, (FieldRef{0, ColNS}));
    out = rules.gotFocus({5, ColTag});
    EXPECT_EQ(rules.currentRow(), 5);
    EXPECT_TRUE(out.showTagMenu);
}

TEST_F(Grid, HelpTextFollowsTheScroll)
{
    rules.scrollTo(5);
    EXPECT_EQ(rules.helpText({0, ColNS}), "Row 6"); // only the N/S column's help needs an unscrolled grid
    EXPECT_EQ(rules.helpText({0, ColDeg}), "Enter the degrees (0 to 90) of the angle, or leave blank.");
    rules.scrollTo(0);
    EXPECT_EQ(rules.helpText({3, ColMin}), "Enter the minutes (0 to 59.999) of the angle, or leave blank.");
    EXPECT_EQ(rules.helpText({4, ColMin}), "Row 5");
    EXPECT_EQ(rules.helpText({4, ColTag}), "");
}

TEST_F(Grid, TagMenuNewLineRule)
{
    rules.gotFocus({2, ColTag});
    rules.setText({2, ColTag}, "B");
    rules.setText({2, ColDistance}, "100");
    rules.tagMenu(3);
    EXPECT_EQ(dialogs.texts(), std::vector<std::string>{"The Close tag must be placed on a new line."});
    EXPECT_EQ(rules.text({2, ColTag}), "B");
    rules.tagMenu(4);
    EXPECT_EQ(dialogs.texts(), std::vector<std::string>{"The New Lot tag must be placed on a new line."});
    rules.setText({2, ColDistance}, "");
    rules.tagMenu(3);
    EXPECT_EQ(rules.text({2, ColTag}), "C");
    rules.tagMenu(5);
    EXPECT_EQ(rules.text({2, ColTag}), "O");
    rules.tagMenu(1);
    EXPECT_EQ(rules.text({2, ColTag}), "");
    rules.lostFocus({2, ColTag});
    EXPECT_EQ(table.at(2, ColTag).text(), "");
}

TEST_F(Grid, InsertAndDeleteShiftTheTable)
{
    for (int r = 0; r < CourseTable::kRows; ++r)
        table.at(r, ColDistance) = Cell(std::to_string(r));
    rules.scrollTo(45);
    rules.gotFocus({5, ColNS}); // table row 50
    rules.insertKey({5, ColNS});
    EXPECT_EQ(table.at(50, ColDistance).text(), "");
    EXPECT_EQ(table.at(51, ColDistance).text(), "50");
    EXPECT_EQ(table.at(200, ColDistance).text(), "199");
    EXPECT_EQ(table.at(201, ColDistance).text(), "201");
    EXPECT_EQ(rules.text({6, ColDistance}), "50");
    rules.insertKey({5, ColDeg}); // Insert in another column does nothing
    EXPECT_EQ(table.at(51, ColDistance).text(), "50");

    dialogs.answers = {Answer::Cancel, Answer::Ok};
    EXPECT_FALSE(rules.commandDelete());
    EXPECT_EQ(table.at(50, ColDistance).text(), "");
    EXPECT_TRUE(rules.commandDelete());
    EXPECT_EQ(table.at(50, ColDistance).text(), "50");

    for (int r = 0; r < CourseTable::kRows; ++r)
        table.at(r, ColDistance) = Cell(std::to_string(r));
    rules.scrollTo(191);
    rules.gotFocus({8, ColDeg}); // table row 199
    rules.deleterow();
    EXPECT_EQ(table.at(199, ColDistance).text(), "200");
    EXPECT_EQ(table.at(200, ColDistance).text(), "201");
    EXPECT_EQ(table.at(201, ColDistance).text(), "201");

    rules.scrollTo(0);
    rules.gotFocus({0, ColNS});
    rules.insertrow(); // at row 0 the copy from row -1 is skipped
    EXPECT_EQ(table.at(0, ColDistance).text(), "");
    EXPECT_EQ(table.at(1, ColDistance).text(), "0");
}

TEST_F(Grid, ClearRowAndClearAll)
{
    fillRow(3, {"N", "10", "", "", "E", "100", "", "", "", ""});
    table.at(3, ColNS) = Cell("N");
    table.at(4, ColNS) = Cell("S");
    rules.gotFocus({3, ColDeg});
    GridOutcome out;
    dialogs.answers = {Answer::Cancel};
    EXPECT_FALSE(rules.clearRow(out));
    EXPECT_EQ(rules.text({3, ColNS}), "N");
    EXPECT_TRUE(rules.clearRow(out));
    EXPECT_EQ(dialogs.texts().back(), "Are you sure you want to clear the entries of the current line?");
    EXPECT_EQ(rules.text({3, ColNS}), "");
    EXPECT_EQ(table.at(3, ColNS).text(), "");
    EXPECT_EQ(table.at(4, ColNS).text(), "S");
    EXPECT_EQ(out.focus, (FieldRef{3, ColNS}));

    rules.scrollTo(20);
    GridOutcome all;
    EXPECT_TRUE(rules.clearAll(all));
    EXPECT_EQ(dialogs.texts().back(), "Are you sure you want to clear all entries?");
    EXPECT_EQ(table.at(4, ColNS).text(), "");
    EXPECT_EQ(table.highest, 50);
    EXPECT_EQ(rules.scroll(), 0);
    EXPECT_EQ(all.focus, (FieldRef{0, ColNS}));
}

// The window scrolls by itself (clearing all, opening a file or a sample)
// while a field keeps the focus: what is typed there afterwards belongs to the
// row the field now shows, not to the row it showed when it got the focus.
TEST_F(Grid, FieldStillFocusedAfterTheWindowScrollsStoresIntoTheRowItShows)
{
    // row: the table row the typed text must reach
    struct Scroll { const char *how; int before; FieldRef focused; std::function<void(GridRules &)> scroll; int row; };
    const Scroll cases[] = {
        {"clear all", 136, {1, ColMin}, [](GridRules &g) { GridOutcome o; g.clearAll(o); }, 1},
        {"clear all at the top", 0, {4, ColNS}, [](GridRules &g) { GridOutcome o; g.clearAll(o); }, 4},
        {"scroll to the top", 40, {0, ColNS}, [](GridRules &g) { g.scrollTo(0); }, 0},
        {"scroll down", 3, {9, ColTag}, [](GridRules &g) { g.scrollTo(30); }, 39},
    };
    for (const auto &c : cases) {
        CourseTable t;
        ScriptedDialogs d;
        GridRules g(t, d, [] {});
        g.scrollTo(c.before);
        g.gotFocus(c.focused);
        c.scroll(g);
        g.setText(c.focused, "7");
        g.lostFocus(c.focused);
        EXPECT_EQ(t.at(c.row, c.focused.column).text(), "7") << c.how;
        if (c.row != c.before + c.focused.row) {
            EXPECT_EQ(t.at(c.before + c.focused.row, c.focused.column).text(), "") << c.how;
        }
        EXPECT_EQ(g.valueOnEntry(), "") << c.how; // the refilled text, so an unchanged field does not redraw
    }
}
