#include "entry_grid.h"

#include <QApplication>
#include <QCursor>
#include <QFocusEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QSignalBlocker>

namespace quilmar {

const std::array<const char *, 10> kHeaderCaptions = {"NS",       "Deg",   "Min",    "Sec", "EW",
                                                      "Distance", "Chord", "Radius", "LR",  "Tag"};

namespace {

const std::array<const char *, 10> kHeaderTips = {
    "N or S (North-South) or E or W", "Degrees (1-90)", "Minutes (1-60)", "Seconds (1-60)", "E or W (East-West)",
    "Distance (straight line or curve)", "Chord (curves)", "Radius (curves)", "L or R (Left-Right of curve)",
    "Options (B, C, N or O)"};

// Widths in digits: room for what each column holds at most in a typical deed.
const std::array<int, 10> kFieldDigits = {2, 3, 3, 5, 2, 9, 8, 8, 2, 2};

QColor rgb(uint32_t c) { return QColor((c >> 16) & 0xFF, (c >> 8) & 0xFF, c & 0xFF); }

} // namespace

bool windowShortcut(const QKeyEvent &k)
{
    if (k.modifiers() == Qt::ShiftModifier)
        return k.key() == Qt::Key_Delete;
    if (k.modifiers() != Qt::ControlModifier)
        return false;
    switch (k.key()) {
    case Qt::Key_A:
    case Qt::Key_Z:
    case Qt::Key_X:
    case Qt::Key_C:
    case Qt::Key_V:
    case Qt::Key_Y:
        return true;
    default:
        return false;
    }
}

EntryGrid::EntryGrid(CourseTable &table, Dialogs &dialogs, std::function<void()> mindraw, QWidget *parent)
    : QGroupBox("Enter Metes and Bounds here", parent), m_rules(table, dialogs, std::move(mindraw))
{
    setObjectName("IrrFrame");
    setAccessibleName(title());
    auto *layout = new QGridLayout(this);
    layout->setHorizontalSpacing(0);
    layout->setVerticalSpacing(0);
    const QFontMetrics fm(font());
    const int pad = fm.averageCharWidth() * 2;

    std::array<int, 10> widths{};
    for (int c = 0; c < 10; ++c) {
        auto *label = new QLabel(kHeaderCaptions[c], this);
        label->setObjectName(QString("LabelHeader_%1").arg(c));
        label->setToolTip(kHeaderTips[c]);
        label->setAccessibleName(kHeaderCaptions[c]);
        label->setAlignment(Qt::AlignCenter);
        layout->addWidget(label, 0, c);
        widths[c] = std::max(fm.horizontalAdvance(QString(kHeaderCaptions[c])) + pad,
                             fm.horizontalAdvance(QString(kFieldDigits[c], '0')) + pad);
    }

    m_tagMenu = new QMenu("Popup", this);
    m_tagMenu->setObjectName("mnuPopUp");
    const char *tagCaptions[] = {"&None (Clear)", "Point of &Beginning (POB)", "Back to POB (&Close)", "&New Lot",
                                 "Point of &Origin"};
    const char *tagNames[] = {"mnuPopup1", "mnuPopup2", "mnuPopup3", "mnuPopup4", "mnuPopUp5"};
    for (int i = 0; i < 5; ++i) {
        QAction *a = m_tagMenu->addAction(tagCaptions[i]);
        a->setObjectName(tagNames[i]);
        connect(a, &QAction::triggered, this, [this, i] {
            m_rules.tagMenu(i + 1);
            sync();
        });
    }

    QWidget *previous = nullptr;
    for (int r = 0; r < GridRules::kVisibleRows; ++r) {
        for (int c = 0; c < 10; ++c) {
            auto *edit = new QLineEdit(this);
            edit->setObjectName(QString("Text%1_%2").arg(c + 1).arg(r));
            // Widths follow the font, so a larger font or scaling widens the grid.
            edit->setFixedWidth(widths[c]);
            edit->setAlignment(c == ColNS - 1 || c == ColEW - 1 || c == ColLR - 1 || c == ColTag - 1 ? Qt::AlignCenter
                                                                                                     : Qt::AlignLeft);
            if (c == 0)
                edit->setToolTip("N, S, E or W");
            edit->installEventFilter(this);
            edit->setAttribute(Qt::WA_Hover);
            const FieldRef f{r, c + 1};
            connect(edit, &QLineEdit::textEdited, this, [this, f](const QString &t) { m_rules.setText(f, t.toStdString()); });
            layout->addWidget(edit, r + 1, c);
            m_fields[r][c] = edit;
            if (previous)
                setTabOrder(previous, edit);
            previous = edit;
        }
    }

    m_scroll = new QScrollBar(Qt::Vertical, this);
    m_scroll->setObjectName("VScroll1");
    m_scroll->setAccessibleName("VScroll1");
    m_scroll->setRange(0, GridRules::kMaxScroll);
    m_scroll->setPageStep(GridRules::kVisibleRows);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    layout->addWidget(m_scroll, 1, 10, GridRules::kVisibleRows, 1);
    connect(m_scroll, &QScrollBar::valueChanged, this, &EntryGrid::VScroll1_Change);

    // Takes the focus while the grid is refilled, so that the edited field is stored first.
    m_utility = new QWidget(this);
    m_utility->setObjectName("utility");
    m_utility->setFocusPolicy(Qt::ClickFocus);
    m_utility->setFixedSize(0, 0);
    layout->addWidget(m_utility, 0, 10);

    // Where the style's own base colour is the white of the fields, only the
    // tag column and the focused field need a palette of their own (faster start).
    const bool styleWhite = palette().color(QPalette::Base) == rgb(kFieldColour);
    for (auto &row : m_colours)
        row.fill(styleWhite ? kFieldColour : 0);
    sync();
}

std::optional<FieldRef> EntryGrid::refOf(QObject *object) const
{
    for (int r = 0; r < GridRules::kVisibleRows; ++r)
        for (int c = 0; c < 10; ++c)
            if (m_fields[r][c] == object)
                return FieldRef{r, c + 1};
    return std::nullopt;
}

void EntryGrid::sync()
{
    for (int r = 0; r < GridRules::kVisibleRows; ++r) {
        for (int c = 0; c < 10; ++c) {
            QLineEdit *edit = m_fields[r][c];
            const FieldRef f{r, c + 1};
            const QString text = QString::fromStdString(m_rules.text(f));
            if (edit->text() != text)
                edit->setText(text);
            const uint32_t colour = m_rules.colour(f);
            if (m_colours[r][c] != colour) {
                QPalette p = edit->palette();
                p.setColor(QPalette::Base, rgb(colour));
                p.setColor(QPalette::Text, Qt::black);
                edit->setPalette(p);
                m_colours[r][c] = colour;
            }
        }
    }
    updateAccessibleNames();
}

void EntryGrid::updateAccessibleNames()
{
    if (m_namedScroll == m_rules.scroll())
        return;
    m_namedScroll = m_rules.scroll();
    for (int r = 0; r < GridRules::kVisibleRows; ++r)
        for (int c = 0; c < 10; ++c)
            m_fields[r][c]->setAccessibleName(QString("Row %1 %2").arg(r + m_namedScroll + 1).arg(kHeaderCaptions[c]));
}

void EntryGrid::apply(const GridOutcome &outcome)
{
    sync();
    if (outcome.showTagMenu)
        m_tagMenu->popup(QCursor::pos());
    if (outcome.focus && m_focusMoves < 2) {
        // Moving the focus runs the rules of the field left and of the field
        // reached, and either may ask for another move: a field whose check
        // fails takes the focus back, a failed row check sends it to the
        // offending field. One move back is the rules' own; a further one would
        // let the two checks send the focus to and fro for ever.
        ++m_focusMoves;
        field(*outcome.focus)->setFocus(Qt::OtherFocusReason);
        --m_focusMoves;
    }
}

void EntryGrid::run(const std::function<GridOutcome()> &call)
{
    // While a rule runs, its message boxes move the focus about; those moves
    // are the dialog's, not the user's, and are not passed on.
    m_busy = true;
    const GridOutcome out = call();
    m_busy = false;
    apply(out);
}

void EntryGrid::setScroll(int value) { m_scroll->setValue(value); }

void EntryGrid::VScroll1_Change(int value)
{
    // The field being edited loses the focus first, so its text reaches the
    // table row it was typed into before the grid is refilled.
    if (refOf(QApplication::focusWidget()))
        m_utility->setFocus(Qt::OtherFocusReason);
    if (m_rules.focused()) {
        // The field refused to be left (its check failed and took the focus
        // back): scrolling now would show another row in the field while what
        // is typed there still belongs to the row it was entered in. The bar
        // stays until the entry is fixed.
        const QSignalBlocker block(m_scroll);
        m_scroll->setValue(m_rules.scroll());
        return;
    }
    m_rules.scrollTo(value);
    sync();
}

void EntryGrid::wheelEvent(QWheelEvent *event) { QApplication::sendEvent(m_scroll, event); }

bool EntryGrid::fieldKey(FieldRef f, QKeyEvent *event)
{
    const int key = event->key();
    const auto mods = event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
    char32_t code = 0;
    if ((key == Qt::Key_Tab && mods == Qt::NoModifier) || key == Qt::Key_Return || key == Qt::Key_Enter) {
        if (key == Qt::Key_Tab && (event->modifiers() & Qt::ShiftModifier))
            return false; // Shift+Tab goes back through the tab order
        code = key == Qt::Key_Tab ? 9 : 13;
    } else if (key == Qt::Key_Insert && mods == Qt::NoModifier) {
        run([&] { return m_rules.insertKey(f); });
        return false;
    } else if (key == Qt::Key_Backspace && mods == Qt::NoModifier) {
        code = 8;
    } else if (key == Qt::Key_Delete) {
        // No typed character, though X11 gives it the text DEL: the field deletes as usual.
        return false;
    } else if (!(mods & (Qt::AltModifier | Qt::MetaModifier)) && !event->text().isEmpty() &&
               event->text()[0].unicode() != 0) {
        // Every character reaches the filter, control characters (Ctrl+letter,
        // Escape) included, as each column's rule decides about them.
        code = event->text().toUcs4().value(0);
    } else {
        return false;
    }
    KeyOutcome out;
    run([&] {
        out = m_rules.keyPress(f, code);
        GridOutcome applied;
        applied.focus = out.focus;
        return applied;
    });
    if (out.beep)
        QApplication::beep();
    return out.swallow;
}

bool EntryGrid::eventFilter(QObject *watched, QEvent *event)
{
    const std::optional<FieldRef> f = refOf(watched);
    if (!f)
        return QGroupBox::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::ShortcutOverride: {
        // The window's File, Edit and Map shortcuts win over the field's own
        // (Ctrl+A calculates acres, it never selects text; Ctrl+Y copies the
        // data, it never redoes).
        if (windowShortcut(*static_cast<QKeyEvent *>(event))) {
            event->ignore();
            return true;
        }
        return false;
    }
    case QEvent::KeyPress: {
        auto *k = static_cast<QKeyEvent *>(event);
        if (k->modifiers() == Qt::ControlModifier && k->key() == Qt::Key_A)
            return true;
        return fieldKey(*f, k);
    }
    case QEvent::FocusIn:
        m_active = static_cast<QLineEdit *>(watched);
        // The window coming back, or a menu closing, over the field that has the
        // focus already is no focus change of the grid.
        if (!m_busy && m_rules.focused() != f)
            run([&] { return m_rules.gotFocus(*f); });
        return false;
    case QEvent::FocusOut: {
        // A message box or a menu opening is no focus change of the grid.
        const auto reason = static_cast<QFocusEvent *>(event)->reason();
        if (!m_busy && reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
            m_active = nullptr;
            run([&] { return m_rules.lostFocus(*f); });
        }
        return false;
    }
    case QEvent::MouseButtonDblClick:
        if (f->column == ColTag)
            m_tagMenu->popup(QCursor::pos());
        return false;
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
        emit comment(QString::fromStdString(m_rules.helpText(*f)));
        return false;
    default:
        return false;
    }
}

} // namespace quilmar
