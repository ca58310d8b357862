#pragma once
// The entry grid on the window: the frame "Enter Metes and Bounds here" with
// the header labels, ten rows of the fields Text1 to Text10, the scroll bar
// VScroll1 and the tag menu. The widgets only translate Qt events into calls
// of GridRules and apply what comes back; every rule lives there.

#include <array>

#include <QGroupBox>

#include "grid_rules.h"

class QKeyEvent;
class QLineEdit;
class QLabel;
class QMenu;
class QScrollBar;

namespace quilmar {

/// The window's shortcuts that a text box (a grid field, the scale box, the
/// heading) would otherwise keep for itself: Ctrl+A, Z, X, C, V, Y and
/// Shift+Del. The menu's command runs instead (Ctrl+A calculates acres, Ctrl+Y
/// copies the data, Shift+Del clears the current row; the Edit keys reach the
/// box through the Edit menu).
bool windowShortcut(const QKeyEvent &k);

class EntryGrid : public QGroupBox {
    Q_OBJECT
public:
    EntryGrid(CourseTable &table, Dialogs &dialogs, std::function<void()> mindraw, QWidget *parent = nullptr);

    GridRules &rules() { return m_rules; }
    QLineEdit *field(FieldRef f) const { return m_fields[f.row][f.column - 1]; }
    QScrollBar *scrollBar() const { return m_scroll; }
    QMenu *tagMenu() const { return m_tagMenu; }
    /// The grid field that has the focus, or had it when a menu opened; else null.
    QLineEdit *activeField() const { return m_active; }

    /// Applies an outcome of the rules: texts, colours, the tag menu, the focus.
    void apply(const GridOutcome &outcome);
    /// Copies the rules' field texts and colours into the widgets.
    void sync();
    /// Sets the scroll bar (0..191); moving it runs VScroll1_Change.
    void setScroll(int value);

signals:
    /// The help line's new text.
    void comment(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void VScroll1_Change(int value);
    /// Runs one rule with nested focus events held off, then applies its outcome.
    void run(const std::function<GridOutcome()> &call);
    bool fieldKey(FieldRef f, QKeyEvent *event);
    void updateAccessibleNames();
    std::optional<FieldRef> refOf(QObject *object) const;

    GridRules m_rules;
    std::array<std::array<QLineEdit *, CourseTable::kColumns>, GridRules::kVisibleRows> m_fields{};
    std::array<std::array<uint32_t, CourseTable::kColumns>, GridRules::kVisibleRows> m_colours{};
    QScrollBar *m_scroll = nullptr;
    QWidget *m_utility = nullptr;
    QMenu *m_tagMenu = nullptr;
    QLineEdit *m_active = nullptr;
    int m_namedScroll = -1;
    bool m_busy = false;
    int m_focusMoves = 0; ///< focus moves of apply() under way, nested
};

/// The header captions "NS", "Deg", ... "Tag", column 1 at index 0.
extern const std::array<const char *, 10> kHeaderCaptions;

} // namespace quilmar
