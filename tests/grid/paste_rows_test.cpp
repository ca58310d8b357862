// Pasting course rows into the table: where they go, the question about rows
// that hold entries (each answer), the table's 202-row limit, and `highest`.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "paste_rows.h"
#include "scripted_dialogs.h"

using namespace quilmar;

namespace {

// Existing entries hold "E<row>" as distance; pasted rows "P<i>" and a tag.
std::vector<PastedRow> pasted(int n)
{
    std::vector<PastedRow> rows(std::size_t(n), PastedRow{});
    for (int i = 0; i < n; ++i) {
        rows[std::size_t(i)][0] = "N";
        rows[std::size_t(i)][ColDistance - 1] = "P" + std::to_string(i);
    }
    return rows;
}

std::string distance(const CourseTable &t, int row) { return t.at(row, ColDistance).text(); }

struct Case {
    const char *name;
    std::vector<int> existing; ///< table rows holding an entry
    int at;
    int count;
    std::optional<Answer> answer; ///< the answer to the question, when one is expected
    std::string box;              ///< the question or message shown, "" for none
    bool pasted;
    std::vector<std::pair<int, const char *>> after; ///< distance cells afterwards
};

const std::string kChoice = "Yes replaces them; No inserts the pasted rows before them; Cancel pastes nothing.";

TEST(PasteRows, IntoTheTable)
{
    const std::string ask24 = "Rows 3 to 4 already hold entries. " + kChoice;
    const Case cases[] = {
        {"empty table", {}, 0, 3, {}, "", true, {{0, "P0"}, {2, "P2"}, {3, ""}}},
        {"below the entries: nothing asked", {0, 1}, 2, 2, {}, "", true, {{1, "E1"}, {2, "P0"}, {3, "P1"}}},
        {"Yes replaces", {0, 1, 2, 3, 4}, 2, 2, Answer::Yes, ask24, true,
         {{1, "E1"}, {2, "P0"}, {3, "P1"}, {4, "E4"}, {5, ""}}},
        {"No inserts before", {0, 1, 2, 3, 4}, 2, 2, Answer::No, ask24, true,
         {{1, "E1"}, {2, "P0"}, {3, "P1"}, {4, "E2"}, {6, "E4"}, {7, ""}}},
        {"Cancel pastes nothing", {0, 1, 2, 3, 4}, 2, 2, Answer::Cancel, ask24, false,
         {{2, "E2"}, {3, "E3"}, {4, "E4"}}},
        {"one row in the way", {5}, 4, 3, Answer::Yes, "Row 6 already holds an entry. " + kChoice, true,
         {{4, "P0"}, {5, "P1"}, {6, "P2"}}},
        {"gap between entries counts from first to last", {3, 6, 9}, 2, 6, Answer::No,
         "Rows 4 to 7 already hold entries. " + kChoice, true, {{7, "P5"}, {9, "E3"}, {12, "E6"}, {15, "E9"}}},
        {"fits to the last row exactly", {}, 199, 3, {}, "", true, {{199, "P0"}, {201, "P2"}}},
        {"one row too many", {}, 200, 3, {},
         "The pasted text gives 3 rows, but the table holds 202 rows and only 2 fit from row 201 on. Nothing was pasted.",
         false, {{200, ""}, {201, ""}}},
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
        const std::vector<std::string> shown = dialogs.texts();
        if (c.box.empty()) {
            EXPECT_TRUE(shown.empty()) << shown.front();
        } else {
            // The question, then a message when No cannot make room.
            ASSERT_FALSE(shown.empty());
            EXPECT_EQ(shown.back(), c.box);
        }
        for (auto [row, text] : c.after)
            EXPECT_EQ(distance(table, row), text) << "row " << row;
        if (out.pasted) {
            EXPECT_EQ(out.firstRow, c.at);
            EXPECT_EQ(out.count, c.count);
            EXPECT_EQ(table.at(c.at, ColNS).text(), "N");
        }
    }
}

TEST(PasteRows, QuestionHasQuestionIconAndThreeButtons)
{
    CourseTable table;
    table.at(0, ColNS) = Cell("N");
    ScriptedDialogs dialogs;
    dialogs.answers.push_back(Answer::Cancel);
    pasteRows(table, dialogs, 0, pasted(1));
    ASSERT_EQ(dialogs.asked.size(), 1u);
    EXPECT_EQ(dialogs.asked[0].buttons, Buttons::YesNoCancel);
    EXPECT_EQ(dialogs.asked[0].icon, Icon::Question);
}

TEST(PasteRows, HighestReachesEveryRow)
{
    struct { int existing; int at; int count; Answer answer; int highest; } cases[] = {
        {-1, 0, 30, Answer::Yes, 30},  // grows past the default 10
        {-1, 0, 2, Answer::Yes, 10},   // never shrinks
        {40, 40, 5, Answer::No, 46},   // the moved entry counts
    };
    for (const auto &c : cases) {
        CourseTable table;
        if (c.existing >= 0)
            table.at(c.existing, ColTag) = Cell("C");
        ScriptedDialogs dialogs;
        dialogs.answers.push_back(c.answer);
        ASSERT_TRUE(pasteRows(table, dialogs, c.at, pasted(c.count)).pasted);
        EXPECT_EQ(table.highest, c.highest) << c.at << " " << c.count;
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
