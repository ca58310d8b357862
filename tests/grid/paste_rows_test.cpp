// Pasting course rows into the table: where they go, the question about rows
// that hold entries (each answer), the table's 202-row limit, and `highest`.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "paste_rows.h"
#include "scripted_dialogs.h"

using namespace quilmar;

namespace {

// Entries already there hold "E<row>" as distance; pasted rows "N" and "P<i>".
std::vector<PastedRow> pasted(int n)
{
    std::vector<PastedRow> rows(static_cast<std::size_t>(n));
    for (int i = 0; i < n; ++i)
        rows[std::size_t(i)] = {"N", "", "", "", "", "P" + std::to_string(i)};
    return rows;
}

const std::string kChoice = " Yes replaces them; No inserts the pasted rows before them; Cancel pastes nothing.";
const std::string kAsk24 = "Rows 3 to 4 already hold entries." + kChoice;

// answer: when a question is expected; box: the last box shown, "" for none; after: distance cells afterwards.
struct Case {
    const char *name; std::vector<int> existing; int at, count; std::optional<Answer> answer; std::string box;
    bool pasted; std::vector<std::pair<int, const char *>> after; int highest = 10;
};

TEST(PasteRows, IntoTheTable)
{
    const Case cases[] = {
        {"empty table", {}, 0, 3, {}, "", true, {{0, "P0"}, {2, "P2"}, {3, ""}}},
        {"many rows raise highest", {}, 0, 30, {}, "", true, {{29, "P29"}}, 30},
        {"below the entries: nothing asked", {0, 1}, 2, 2, {}, "", true, {{1, "E1"}, {2, "P0"}, {3, "P1"}}},
        {"Yes replaces", {0, 1, 2, 3, 4}, 2, 2, Answer::Yes, kAsk24, true, {{2, "P0"}, {3, "P1"}, {4, "E4"}, {5, ""}}},
        {"No inserts before", {0, 1, 2, 3, 4}, 2, 2, Answer::No, kAsk24, true,
         {{1, "E1"}, {2, "P0"}, {3, "P1"}, {4, "E2"}, {6, "E4"}, {7, ""}}},
        {"Cancel pastes nothing", {0, 1, 2, 3, 4}, 2, 2, Answer::Cancel, kAsk24, false, {{2, "E2"}, {3, "E3"}}},
        {"one row in the way", {5}, 4, 3, Answer::Yes, "Row 6 already holds an entry." + kChoice, true, {{5, "P1"}}},
        {"No moves every later entry", {3, 6, 40}, 2, 6, Answer::No, "Rows 4 to 7 already hold entries." + kChoice,
         true, {{7, "P5"}, {9, "E3"}, {12, "E6"}, {46, "E40"}}, 47},
        {"fits to the last row exactly", {}, 199, 3, {}, "", true, {{199, "P0"}, {201, "P2"}}, 202},
        {"one row too many", {}, 200, 3, {},
         "The pasted text gives 3 rows; only 2 fit from row 201 to the end of the table (202 rows). Nothing was pasted.",
         false, {{200, ""}, {201, ""}}},
        {"more than the table holds", {}, 0, 203, {},
         "The pasted text gives 203 rows; the table holds only 202. Nothing was pasted.", false, {{0, ""}}},
        {"No would push entries off the end", {195, 199}, 195, 5, Answer::No,
         "Inserting 5 rows would push entries past the table's last row (row 202). Nothing was pasted.", false,
         {{195, "E195"}, {199, "E199"}}},
        {"nothing to paste", {0}, 0, 0, {}, "", false, {{0, "E0"}}},
        {"row out of range", {}, 202, 1, {}, "", false, {}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        CourseTable table;
        for (int r : c.existing)
            table.at(r, ColDistance) = Cell("E" + std::to_string(r));
        ScriptedDialogs dialogs;
        if (c.answer)
            dialogs.answers.push_back(*c.answer);
        const PasteOutcome out = pasteRows(table, dialogs, c.at, pasted(c.count));
        EXPECT_EQ(out.pasted, c.pasted);
        if (c.answer) {
            ASSERT_FALSE(dialogs.asked.empty());
            EXPECT_EQ(dialogs.asked[0].buttons, Buttons::YesNoCancel);
            EXPECT_EQ(dialogs.asked[0].icon, Icon::Question);
        }
        const std::vector<std::string> shown = dialogs.texts();
        EXPECT_EQ(shown.empty() ? "" : shown.back(), c.box);
        for (auto [row, text] : c.after)
            EXPECT_EQ(table.at(row, ColDistance).text(), text) << "row " << row;
        EXPECT_EQ(table.highest, c.highest);
        if (out.pasted) {
            EXPECT_EQ(table.at(c.at, ColNS).text(), "N");
        }
    }
}

TEST(PasteRows, TargetIsTheFocusedRowElseTheTopVisibleRow)
{
    CourseTable table;
    ScriptedDialogs dialogs;
    GridRules rules(table, dialogs, {});
    rules.scrollTo(20);
    EXPECT_EQ(pasteTargetRow(rules), 20);
    rules.gotFocus({3, ColDeg});
    EXPECT_EQ(pasteTargetRow(rules), 23);
    rules.lostFocus({3, ColDeg});
    EXPECT_EQ(pasteTargetRow(rules), 20);
}

} // namespace
