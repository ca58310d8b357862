// Fuzz target: the bytes are a script of what a user does in the entry grid:
// keystrokes into fields, focus moves, scrolling, the tag menu, inserting,
// deleting and clearing rows, with every question answered from the script.
// Nothing may crash or hang, and after each scroll the fields show the table.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "course_table.h"
#include "grid_rules.h"

using namespace quilmar;

namespace {

struct Script {
    const uint8_t *data;
    size_t size;
    size_t pos = 0;
    bool done() const { return pos >= size; }
    uint8_t next() { return pos < size ? data[pos++] : 0; }
};

class ScriptDialogs : public Dialogs {
public:
    explicit ScriptDialogs(Script &script) : m_script(script) {}
    Answer ask(const std::string &, const std::string &, Buttons, Icon) override
    {
        static constexpr Answer kAnswers[] = {Answer::Ok, Answer::Cancel, Answer::Yes, Answer::No};
        return kAnswers[m_script.next() % 4];
    }
    std::optional<std::string> inputBox(const std::string &, const std::string &, const std::string &) override
    {
        return std::nullopt;
    }
    std::optional<std::string> fileName(FileMode, const std::string &, const std::string &) override
    {
        return std::nullopt;
    }
    bool print(const std::string &, const Printout &) override { return false; }
    void preview(const std::string &, const Printout &) override {}

private:
    Script &m_script;
};

// Characters a user types into the grid, biased towards what the fields take.
constexpr int kWholeTableOps = 8;

constexpr char kKeys[] = "NSEWLRBCNOnsewlrbco0123456789.+-  \t\r\b/xX";

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Script script{data, size};
    ScriptDialogs dialogs(script);
    CourseTable table;
    int draws = 0;
    GridRules grid(table, dialogs, [&] { ++draws; });
    // Inserting, deleting, clearing and checking the whole grid each touch
    // every row of the table; past a handful of them an input only repeats
    // what a shorter one reached, and every execution slows.
    int wholeTableOps = 0;
    for (int steps = 0; !script.done() && steps < 4096; ++steps) {
        uint8_t op = script.next();
        if (op % 12 >= 6 && op % 12 != 7 && op % 12 != 10 && ++wholeTableOps > kWholeTableOps)
            op = 0; // type a key instead

        const FieldRef field{script.next() % 10, 1 + script.next() % 10};
        GridOutcome outcome;
        switch (op % 12) {
        case 0: case 1: case 2: case 3:
            grid.keyPress(field, static_cast<unsigned char>(kKeys[script.next() % (sizeof kKeys - 1)]));
            break;
        case 4: grid.gotFocus(field); break;
        case 5: if (grid.focused()) grid.lostFocus(*grid.focused()); break;
        case 6:
            if (grid.focused()) grid.lostFocus(*grid.focused());
            grid.scrollTo(script.next() % (GridRules::kMaxScroll + 1));
            for (int r = 0; r < GridRules::kVisibleRows; ++r)
                for (int c = 1; c <= CourseTable::kColumns; ++c)
                    if (grid.text({r, c}) != cellText(table.at(grid.scroll() + r, c)))
                        std::abort(); // the grid must show what the table holds
            break;
        case 7: grid.tagMenu(1 + script.next() % 5); break;
        case 8: grid.insertKey(field); break;
        case 9: grid.commandDelete(); break;
        case 10: grid.test_all(field.row, outcome); break;
        case 11:
            switch (script.next() % 3) {
            case 0: grid.clearRow(outcome); break;
            case 1: grid.clearAll(outcome); break;
            default: grid.redraw(); break;
            }
            break;
        }
    }
    return 0;
}
