#include "grid_rules.h"

#include <cmath>

#include "curves.h"
#include "number_format.h"
#include "number_read.h"
#include "typed_number.h"
#include "vb_math.h"

namespace quilmar {

namespace {

constexpr const char *kScrollMessage = "Please use scroll bar to add additional rows.";
constexpr const char *kInvalidEntry = "Invalid entry.";
constexpr const char *kTagLineMessage = "Entries cannot be made on a line with a 'C' or 'N' tag.";
constexpr const char *kAngleMessage = "Invalid value in angle fields.";

bool inRange(FieldRef f)
{
    return f.row >= 0 && f.row < GridRules::kVisibleRows && f.column >= ColNS && f.column <= ColTag;
}

char upper(char32_t key) { return key < 128 ? char(std::toupper(int(key))) : '\0'; }

// The code columns take one letter of their set as typed, and any other key
// toggles between the two main letters (the help texts say "Press any key").
// The N/S column takes its letters in either case; E/W and L/R in capitals
// only, so a small letter there toggles like any other key.
std::string codeKey(char32_t key, const std::string &current, std::string_view accepted, char first, char second,
                    bool eitherCase)
{
    const char c = eitherCase ? upper(key) : (key < 128 ? char(key) : '\0');
    if (c != '\0' && accepted.find(c) != std::string_view::npos)
        return std::string(1, c);
    if (current == std::string(1, first))
        return std::string(1, second);
    if (current == std::string(1, second))
        return std::string(1, first);
    return std::string(1, first == 'S' ? 'N' : first);
}

bool isNumber(const std::string &text)
{
    try {
        return typedNumber(text).has_value();
    } catch (const VbError &) {
        return false; // beyond range is no number a field can hold
    }
}

double readNumber(const std::string &text)
{
    try {
        return leadingNumber(text);
    } catch (const VbError &) {
        return 0.0; // the window's handlers pass over run-time faults
    }
}

bool isTagCN(const std::string &tag) { return tag == "C" || tag == "N"; }

const std::string kEmpty;

} // namespace

GridRules::GridRules(CourseTable &table, Dialogs &dialogs, std::function<void()> mindraw)
    : m_table(table), m_dialogs(dialogs), m_mindraw(std::move(mindraw))
{
}

const std::string &GridRules::text(FieldRef f) const
{
    return inRange(f) ? m_fields[f.row][f.column - 1] : kEmpty;
}

void GridRules::setText(FieldRef f, std::string text)
{
    if (inRange(f))
        field(f) = std::move(text);
}

uint32_t GridRules::colour(FieldRef f) const
{
    if (m_focused == f)
        return kFocusColour;
    return f.column == ColTag ? kTagColour : kFieldColour;
}

double GridRules::number(FieldRef f) const { return readNumber(text(f)); }

KeyOutcome GridRules::keyPress(FieldRef f, char32_t key)
{
    KeyOutcome out;
    if (!inRange(f))
        return out;
    if (key == 9 || key == 13) {
        out.swallow = true;
        FieldRef next{f.row, f.column + 1};
        if (f.column == ColDistance && number({f.row, ColRadius}) <= 0.0)
            next = {f.row + 1, ColNS};
        else if (f.column >= ColLR)
            next = {f.row + 1, ColNS};
        if (next.row >= kVisibleRows) {
            // The grid never scrolls by itself: only the scroll bar reaches further rows.
            if (f.column == ColDistance || f.column == ColLR)
                m_dialogs.message(kScrollMessage, Icon::Exclamation);
            return out;
        }
        out.focus = next;
        return out;
    }
    const std::string &current = text(f);
    switch (f.column) {
    case ColNS:
        out.newText = codeKey(key, current, "NSEW+-", 'S', 'N', true);
        break;
    case ColEW:
        out.newText = codeKey(key, current, "EW", 'E', 'W', false);
        break;
    case ColLR:
        out.newText = codeKey(key, current, "LR", 'R', 'L', false);
        break;
    case ColTag: {
        // Typing a tag skips the new-line rule of the tag menu, deliberately.
        const char c = upper(key);
        out.newText = (c == 'N' || c == 'C' || c == 'B' || c == 'O') ? std::string(1, c) : std::string();
        break;
    }
    default:
        if (key == 8 || (key >= 43 && key <= 57))
            return out;
        out.beep = true;
        break;
    }
    out.swallow = true;
    if (out.newText)
        field(f) = *out.newText;
    return out;
}

GridOutcome GridRules::insertKey(FieldRef f)
{
    if (inRange(f) && f.column == ColNS)
        insertrow();
    return {};
}

void GridRules::enter(FieldRef f)
{
    m_valueOnEntry = text(f);
    m_scrollAtFocus = m_scroll;
    const int tableRow = f.row + m_scroll;
    if (tableRow > m_table.highest)
        m_table.highest = int16_t(tableRow);
}

GridOutcome GridRules::gotFocus(FieldRef f)
{
    GridOutcome out;
    if (!inRange(f))
        return out;
    m_focused = f;
    m_activeColumn = f.column;
    if (m_currentRow != f.row) {
        const bool valid = test_all(m_currentRow, out);
        // The tag column takes the row even when the row left behind is not valid.
        if (valid || f.column == ColTag)
            m_currentRow = f.row;
    }
    out.showTagMenu = f.column == ColTag;
    enter(f);
    return out;
}

bool GridRules::checkLeaving(FieldRef f, GridOutcome &out)
{
    const std::string &t = text(f);
    const std::string &tag = text({f.row, ColTag});
    if ((f.column == ColNS && !t.empty() && isTagCN(tag)) ||
        (f.column == ColDistance && number(f) != 0.0 && isTagCN(tag))) {
        fail(kTagLineMessage, f, out);
        return false;
    }
    const bool blank = trimBlanks(t).empty();
    switch (f.column) {
    case ColDeg: {
        const std::string &ns = text({f.row, ColNS});
        // Deliberate: a rejected angle is still stored; only lengths stop here.
        if (!blank && (!isNumber(t) || (number(f) > 90.0 && ns != "+" && ns != "-")))
            fail(kInvalidEntry, f, out);
        break;
    }
    case ColMin:
    case ColSec:
        if (!blank && (!isNumber(t) || number(f) >= 60.0))
            fail(kInvalidEntry, f, out);
        break;
    case ColDistance:
    case ColChord:
    case ColRadius:
        // A text that reads as 0 (letters) passes and counts as 0.
        if (number(f) != 0.0 && !isNumber(t)) {
            fail(kInvalidEntry, f, out);
            return false;
        }
        break;
    default:
        break;
    }
    return true;
}

GridOutcome GridRules::lostFocus(FieldRef f)
{
    GridOutcome out;
    if (!inRange(f) || m_focused != f)
        return out;
    m_focused.reset();
    if (!checkLeaving(f, out))
        return out;
    m_table.at(f.row + m_scrollAtFocus, f.column) = Cell(text(f));
    m_valueOnLeaving = text(f);
    return out;
}

void GridRules::fail(const std::string &message, std::optional<FieldRef> focus, GridOutcome &out, Icon icon)
{
    m_dialogs.message(message, icon);
    if (focus)
        out.focus = focus;
}

bool GridRules::test_all(int row, GridOutcome &out)
{
    if (row < 0 || row >= kVisibleRows)
        return false;
    auto num = [&](int column) { return number({row, column}); };
    auto trimmed = [&](int column) { return std::string(trimBlanks(text({row, column}))); };
    const std::string ns = trimmed(ColNS);
    // Only the emptiness checks trim the code; " +" is no incremental angle, as on leaving the degrees.
    const bool incremental = text({row, ColNS}) == "+" || text({row, ColNS}) == "-";

    const double angle = num(ColDeg) + num(ColMin) / 60.0 + num(ColSec) / 3600.0;
    if (angle > 90.0) {
        if (!incremental) {
            fail(kAngleMessage, FieldRef{row, ColDeg}, out);
            return false;
        }
    } else if (angle > 0.0) {
        if (ns.empty()) {
            fail("Please specify the North-South direction.", FieldRef{row, ColNS}, out);
            return false;
        }
        if (trimmed(ColEW).empty() && !incremental) {
            fail("Please specify the East-West direction.", FieldRef{row, ColEW}, out);
            return false;
        }
    }
    // Deliberately a plain box that leaves the focus where it is.
    if (num(ColMin) > 59.999 || num(ColSec) > 59.9999) {
        fail(kAngleMessage, std::nullopt, out, Icon::None);
        return false;
    }

    const double chord = num(ColChord), radius = num(ColRadius), distance = num(ColDistance);
    if (chord > 0.0 || radius > 0.0 || !trimmed(ColLR).empty()) {
        if (radius == 0.0) {
            fail("Radius must be specified.", FieldRef{row, ColRadius}, out);
            return false;
        }
        if (trimmed(ColLR).empty()) {
            fail("Left/Right direction of curve must be specified.", FieldRef{row, ColLR}, out);
            return false;
        }
        // The tag as it stands: " C" is no close here, unlike in the walk.
        if (distance == 0.0 && chord == 0.0 && text({row, ColTag}) != "C") {
            fail("For curves either the distance or the chord must be specified.", FieldRef{row, ColDistance}, out);
            return false;
        }
        if (chord > 0.0 && ns.empty()) {
            // A code of blanks counts as none, yet the focus goes on to the degrees.
            fail("If you use chords you must specify the angle.",
                 FieldRef{row, text({row, ColNS}).empty() ? ColNS : ColDeg}, out);
            return false;
        }
    }
    if (radius > 0.0) {
        if (distance > radius * kPi) {
            fail("Distance is too long for given radius.", FieldRef{row, ColRadius}, out);
            return false;
        }
        if (chord > 0.0 && chord > 2.0 * radius) {
            fail(" Chord is too long for given radius", FieldRef{row, ColChord}, out);
            return false;
        }
        if (chord > 0.0 && distance > 0.0) {
            try {
                const double correct = chordFromArc(float(radius), float(distance));
                if (std::fabs(chord - correct) > correct / 1000.0) {
                    const Answer a = m_dialogs.question(
                        "Chord is incorrect based on radius and distance given.  Correct chord is " +
                            formatNumber(correct, "Standard") +
                            ".  If you press 'Yes' then your input will be substituted with correct value, "
                            "otherwise the chord value will be deleted.",
                        Buttons::YesNo, Icon::Exclamation);
                    // Only the field changes; the table takes it when the field is next left.
                    field({row, ColChord}) = a == Answer::Yes ? formatNumber(correct, "#.##") : std::string();
                }
            } catch (const VbError &) {
                // passed over, as every fault in the window's handlers
            }
        }
    }
    // Only the last field left takes part: an earlier edit in the row does not redraw.
    if (m_valueOnLeaving != m_valueOnEntry && m_mindraw)
        m_mindraw();
    return true;
}

void GridRules::scrollTo(int value)
{
    m_scroll = value < 0 ? 0 : (value > kMaxScroll ? kMaxScroll : value);
    populatefields();
    followScroll();
}

void GridRules::followScroll()
{
    // The window scrolls by itself (opening a file, a sample, clearing all)
    // without taking the focus from the field: the field now shows, and so
    // edits, the row at the new scroll value; what it showed before is gone.
    if (m_focused && m_scrollAtFocus != m_scroll) {
        m_scrollAtFocus = m_scroll;
        m_valueOnEntry = text(*m_focused);
    }
}

void GridRules::populatefields()
{
    for (int r = 0; r < kVisibleRows; ++r)
        for (int c = ColNS; c <= ColTag; ++c)
            m_fields[r][c - 1] = cellText(m_table.at(m_scroll + r, c));
}

void GridRules::clearFields()
{
    for (auto &row : m_fields)
        for (auto &f : row)
            f.clear();
}

void GridRules::tagMenu(int item)
{
    std::string &tag = field({m_currentRow, ColTag});
    const bool newLine = text({m_currentRow, ColNS}).empty() && text({m_currentRow, ColDistance}).empty();
    switch (item) {
    case 1: tag.clear(); break;
    case 2: tag = "B"; break;
    case 3:
        if (newLine)
            tag = "C";
        else
            m_dialogs.message("The Close tag must be placed on a new line.", Icon::Exclamation);
        break;
    case 4:
        if (newLine)
            tag = "N";
        else
            m_dialogs.message("The New Lot tag must be placed on a new line.", Icon::Exclamation);
        break;
    case 5: tag = "O"; break;
    default: break;
    }
}

void GridRules::insertrow()
{
    const int r = m_scroll + m_currentRow;
    // Row 200's content is lost; row 201 is never touched. At r = 0 the copy from
    // row -1 is the fault the system skips.
    for (int i = 200; i >= r && i >= 1; --i)
        for (int c = ColNS; c <= ColTag; ++c)
            m_table.at(i, c) = m_table.at(i - 1, c);
    for (int c = ColNS; c <= ColTag; ++c)
        m_table.at(r, c) = Cell();
    populatefields();
}

void GridRules::deleterow()
{
    // Row 201 is copied up, not cleared: rows 200 and 201 end up alike.
    for (int i = m_scroll + m_currentRow; i <= 200; ++i)
        for (int c = ColNS; c <= ColTag; ++c)
            m_table.at(i, c) = m_table.at(i + 1, c);
    populatefields();
}

bool GridRules::commandDelete()
{
    if (m_dialogs.question("Are you sure you want to delete the current row?", Buttons::OkCancel, Icon::Question) !=
        Answer::Ok)
        return false;
    deleterow();
    return true;
}

bool GridRules::clearRow(GridOutcome &out)
{
    if (m_dialogs.question("Are you sure you want to clear the entries of the current line?", Buttons::OkCancel,
                           Icon::Question) != Answer::Ok)
        return false;
    for (auto &f : m_fields[m_currentRow])
        f.clear();
    out.focus = FieldRef{m_currentRow, ColNS};
    for (int c = ColNS; c <= ColTag; ++c)
        m_table.at(m_scroll + m_currentRow, c) = Cell();
    return true;
}

bool GridRules::clearAll(GridOutcome &out)
{
    if (m_dialogs.question("Are you sure you want to clear all entries?", Buttons::OkCancel, Icon::Question) !=
        Answer::Ok)
        return false;
    m_table.erase();
    // Deliberate: 50, not 0, so later computations look at least at 50 rows.
    m_table.highest = 50;
    out.focus = FieldRef{0, ColNS};
    m_scroll = 0;
    populatefields();
    followScroll();
    return true;
}

GridOutcome GridRules::redraw()
{
    GridOutcome out;
    test_all(m_currentRow, out);
    if (m_mindraw)
        m_mindraw();
    return out;
}

std::string GridRules::helpText(FieldRef f) const
{
    static const std::array<const char *, 10> kHelp = {
        "Enter main direction code: N = North; S = South (or E or W). Press any key to toggle between N and S.  For "
        "incremental values press + or -. ",
        "Enter the degrees (0 to 90) of the angle, or leave blank.",
        "Enter the minutes (0 to 59.999) of the angle, or leave blank.",
        "Enter the seconds (0 to 59.999) of the angle, or leave blank.  Decimals are allowed.",
        "Enter secondary direction code: E = East; W = West. Press any key.",
        "Enter distance (or arc length for curve). Mandatory if chord is not entered.",
        "Optional entry of the chord of a curve.  Mandatory if distance is not entered.",
        "For curves, enter radius of a circle. Input is mandatory for a curve.",
        "Indicate orientation of curve.  L = Left; R = Right (default).  Press any key to toggle.",
        "Select special option flags, e.g. Point-of-Beginning, Close, etc.",
    };
    if (!inRange(f))
        return {};
    const bool help = f.row < 4 && (f.column != ColNS || m_scroll == 0);
    if (help)
        return kHelp[f.column - 1];
    if (f.column == ColTag)
        return {};
    return "Row " + std::to_string(f.row + m_scroll + 1);
}

} // namespace quilmar
