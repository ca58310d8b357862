#pragma once
// The entry grid's editing rules, without widgets: ten visible rows of ten
// fields over the course table, what each keystroke does in each column, what
// happens when a field gets or loses the focus, the row check `test_all`, the
// tag menu, and the row commands (insert, delete, clear the row, clear all).
//
// The window owns the widgets and translates their events into calls here; it
// then applies what comes back: the field texts and colours (read them after
// every call), the focus move and the tag menu asked for in a GridOutcome.
// Message boxes and questions go through Dialogs while a call runs, because
// their answers decide what happens next. The map is recomputed through the
// `mindraw` callback given at construction.
//
// Visible rows are 0 to 9 (top to bottom); columns are 1 to 10 as in the
// course table (ColNS ... ColTag). The table row of a field is its visible row
// plus the scroll value (0 to 191). Calls with a row or column out of range do
// nothing.

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "course_description.h" // cellText: a cell as the grid and the listings show it
#include "course_table.h"
#include "dialogs.h"

namespace quilmar {

/// One field of the grid: visible row 0..9, column 1..10.
struct FieldRef {
    int row = 0;
    int column = ColNS;
    bool operator==(const FieldRef &) const = default;
};

/// What the window applies after a call.
struct GridOutcome {
    std::optional<FieldRef> focus; ///< move the focus to this field afterwards
    bool showTagMenu = false;      ///< pop up the tag menu (at the mouse position)
};

/// What a keystroke does in a field, as a value the widget applies.
struct KeyOutcome {
    std::optional<std::string> newText; ///< replace the field's text with this
    bool swallow = false;               ///< the widget must not process the key
    bool beep = false;
    std::optional<FieldRef> focus;      ///< Tab and Enter: the field to move to
};

/// Background colours of the fields, as RGB.
inline constexpr uint32_t kFocusColour = 0xFFFF80; ///< light yellow (0x80FFFF in blue-green-red order)
inline constexpr uint32_t kFieldColour = 0xFFFFFF; ///< white
inline constexpr uint32_t kTagColour = 0xE0E0E0;   ///< light grey, tag fields without the focus

class GridRules {
public:
    static constexpr int kVisibleRows = 10;
    static constexpr int kMaxScroll = 191;

    /// @param mindraw  recomputes and redraws the map; called when a row check
    ///                 passes after the last field's value changed
    GridRules(CourseTable &table, Dialogs &dialogs, std::function<void()> mindraw);

    // --- field texts, as shown --------------------------------------------------
    const std::string &text(FieldRef f) const;
    /// The user edited a field (typing, paste, undo): keep its new text.
    void setText(FieldRef f, std::string text);
    /// Background of a field now (kFocusColour, kFieldColour or kTagColour).
    uint32_t colour(FieldRef f) const;

    // --- events -------------------------------------------------------------------
    /// A character typed into a field (Tab 9, Enter 13, Backspace 8, else the
    /// character). Keys without a character (arrows, Delete) never come here.
    KeyOutcome keyPress(FieldRef f, char32_t key);
    /// The Insert key in a field: inserts a row when the field is an N/S field.
    GridOutcome insertKey(FieldRef f);
    GridOutcome gotFocus(FieldRef f);
    /// Ignored for a field that is not the one that got the focus last.
    GridOutcome lostFocus(FieldRef f);
    /// The help line's text for the mouse over a field.
    std::string helpText(FieldRef f) const;

    /// The row check of visible row @p row; true when the row is valid. On a
    /// failure a message was shown and @p outcome.focus names the offending
    /// field (except for the plain box about minutes and seconds).
    bool test_all(int row, GridOutcome &outcome);

    // --- scrolling and refilling ----------------------------------------------------
    int scroll() const { return m_scroll; }
    /// The scroll bar moved to @p value (0..191): the window has already moved
    /// the focus away, so the edited field's text is in the table. Refills.
    /// When the window scrolls with a field still focused, that field then
    /// belongs to the row it shows (its text is stored there when left).
    void scrollTo(int value);
    /// Copies table rows scroll..scroll+9 into the fields.
    void populatefields();

    // --- tags and rows ---------------------------------------------------------------
    /// A tag menu item: 1 None, 2 POB, 3 Close, 4 New Lot, 5 Point of Origin.
    void tagMenu(int item);
    void insertrow();
    void deleterow();
    /// "Remove a Row": asks, then deleterow. @returns true when deleted.
    bool commandDelete();
    /// Toolbar button 1: asks, then clears the current row's fields and table
    /// row. @returns true when cleared (the window then empties Acresbox).
    bool clearRow(GridOutcome &outcome);
    /// Toolbar button 2: asks, then clears the table and the fields, sets the
    /// highest row used to 50 and the scroll to 0. @returns true when cleared
    /// (the window then empties the heading, result line, AutoScale and canvas).
    bool clearAll(GridOutcome &outcome);
    /// Toolbar button 0: checks the current row, then redraws whatever it says.
    GridOutcome redraw();

    // --- state ----------------------------------------------------------------------
    int currentRow() const { return m_currentRow; }
    int activeColumn() const { return m_activeColumn; }
    std::optional<FieldRef> focused() const { return m_focused; }
    const std::string &valueOnEntry() const { return m_valueOnEntry; }
    const std::string &valueOnLeaving() const { return m_valueOnLeaving; }
    /// Nothing in the top row's N/S field: closing asks nothing.
    bool topRowEmpty() const { return text({0, ColNS}).empty(); }
    /// Empties the visible fields only (opening a file does this).
    void clearFields();

private:
    std::string &field(FieldRef f) { return m_fields[f.row][f.column - 1]; }
    double number(FieldRef f) const;
    void fail(const std::string &text, std::optional<FieldRef> focus, GridOutcome &outcome, Icon icon = Icon::Exclamation);
    void enter(FieldRef f);
    bool checkLeaving(FieldRef f, GridOutcome &outcome);
    void followScroll();

    CourseTable &m_table;
    Dialogs &m_dialogs;
    std::function<void()> m_mindraw;
    std::array<std::array<std::string, CourseTable::kColumns>, kVisibleRows> m_fields{};
    std::optional<FieldRef> m_focused;
    int m_scroll = 0;
    int m_scrollAtFocus = 0;
    int m_currentRow = 0;
    int m_activeColumn = ColNS;
    std::string m_valueOnEntry;
    std::string m_valueOnLeaving;
};

} // namespace quilmar
