#include "paste_deed_dialog.h"

#include <algorithm>

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTableWidget>
#include <QTextBlock>
#include <QToolTip>
#include <QVBoxLayout>

#include "entry_grid.h" // kHeaderCaptions
#include "utf16_offset.h"

namespace quilmar {

namespace {

const QColor kReadColour(0xC8, 0xF0, 0xC8);    // a call that gave its row
const QColor kWarningColour(0xFF, 0xE0, 0xA0); // a row written as the deed says, worth a look
const QColor kFlagColour(0xFF, 0xB8, 0xB8);    // a call that gave no row: enter it by hand

bool overlaps(deedtext::Span a, deedtext::Span b) { return a.begin < b.end && b.begin < a.end; }

QString count(std::size_t n, const char *one, const char *many)
{
    return QString("%1 %2").arg(n).arg(n == 1 ? one : many);
}

} // namespace

void CallMarks::setMarks(std::vector<Mark> marks)
{
    m_marks = std::move(marks);
    m_reach.resize(m_marks.size());
    int reach = 0;
    for (std::size_t i = 0; i < m_marks.size(); ++i)
        m_reach[i] = reach = std::max(reach, m_marks[i].end);
    rehighlight();
}

void CallMarks::highlightBlock(const QString &text)
{
    const int start = currentBlock().position();
    const int end = start + int(text.size());
    // Marks are in order of their start; m_reach finds the first that can
    // still reach this block. Flags last, so they show over a row's mark.
    const auto first = std::size_t(std::upper_bound(m_reach.begin(), m_reach.end(), start) - m_reach.begin());
    for (bool flags : {false, true}) {
        for (std::size_t i = first; i < m_marks.size() && m_marks[i].begin < end; ++i) {
            const Mark &m = m_marks[i];
            if (m.flag != flags || m.end <= start)
                continue;
            QTextCharFormat format;
            format.setBackground(m.colour);
            const int from = std::max(m.begin, start);
            setFormat(from - start, std::min(m.end, end) - from, format);
        }
    }
}

PasteDeedDialog::PasteDeedDialog(const QString &text, QWidget *parent) : QDialog(parent)
{
    setObjectName("PasteDeedDialog");
    setWindowTitle("Paste Deed Text");

    m_text = new QPlainTextEdit(this);
    m_text->setObjectName("DeedText");
    m_text->setAccessibleName("Deed text");
    // One line break, so that the widget's positions and the text read agree.
    QString plain = text;
    plain.replace("\r\n", "\n").replace('\r', '\n');
    m_text->setPlainText(plain);
    m_marks = new CallMarks(m_text->document());
    m_text->viewport()->installEventFilter(this);

    m_rows = new QTableWidget(0, CourseTable::kColumns, this);
    m_rows->setObjectName("DeedRows");
    m_rows->setAccessibleName("Course rows");
    QStringList headers;
    for (const char *caption : kHeaderCaptions)
        headers << caption;
    m_rows->setHorizontalHeaderLabels(headers);
    m_rows->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_rows->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_rows->setSelectionMode(QAbstractItemView::SingleSelection);
    m_rows->horizontalHeader()->setResizeContentsPrecision(100); // the first rows tell the widths
    connect(m_rows, &QTableWidget::cellClicked, this, [this](int row, int) { selectCall(row); });
    connect(m_rows, &QTableWidget::currentCellChanged, this, [this](int row, int) { selectCall(row); });

    auto *split = new QSplitter(Qt::Horizontal, this);
    split->addWidget(m_text);
    split->addWidget(m_rows);
    split->setStretchFactor(0, 1);
    split->setStretchFactor(1, 1);

    m_summary = new QLabel(this);
    m_summary->setObjectName("DeedSummary");
    m_summary->setWordWrap(true);

    auto *buttons = new QDialogButtonBox(this);
    m_insert = buttons->addButton("&Insert", QDialogButtonBox::AcceptRole);
    m_insert->setObjectName("Insert");
    buttons->addButton(QDialogButtonBox::Cancel)->setObjectName("Cancel");
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(split, 1);
    layout->addWidget(m_summary);
    layout->addWidget(buttons);

    m_timer.setSingleShot(true);
    m_timer.setInterval(kDelayMs);
    connect(&m_timer, &QTimer::timeout, this, &PasteDeedDialog::reread);
    connect(m_text, &QPlainTextEdit::textChanged, &m_timer, qOverload<>(&QTimer::start));

    const QFontMetrics fm(font());
    resize(fm.averageCharWidth() * 170, fm.lineSpacing() * 36);
    reread();
}

std::vector<PastedRow> PasteDeedDialog::rows() const
{
    std::vector<PastedRow> out;
    out.reserve(m_import.rows.size());
    for (const deedtext::DeedRow &r : m_import.rows) {
        PastedRow row;
        std::copy(r.cells.begin(), r.cells.end(), row.begin());
        out.push_back(row);
    }
    return out;
}

void PasteDeedDialog::reread()
{
    m_timer.stop();
    const std::string utf8 = m_text->toPlainText().toStdString();
    if (m_read && utf8 == m_lastRead)
        return;
    m_read = true;
    m_lastRead = utf8;
    m_import = deedtext::parseDeedText(utf8);
    const std::vector<std::size_t> positions = utf16Positions(utf8);
    auto units = [&](std::size_t byte) { return int(positions[std::min(byte, utf8.size())]); };

    // The rows and the flagged calls in text order; a warning goes on the rows
    // of its call, or on a line of its own when its call gave none. Both lists
    // are in text order, so one sweep pairs them.
    std::vector<const deedtext::DeedFlag *> warnings;
    for (const deedtext::DeedFlag &f : m_import.flags)
        if (f.severity == deedtext::Severity::Warning)
            warnings.push_back(&f);
    std::vector<bool> warningOnRow(warnings.size(), false);
    m_entries.clear();
    std::size_t w = 0;
    for (std::size_t i = 0; i < m_import.rows.size(); ++i) {
        const deedtext::Span s = m_import.rows[i].span;
        Entry e{int(i), units(s.begin), units(s.end), {}, false};
        while (w < warnings.size() && warnings[w]->span.end <= s.begin)
            ++w;
        for (std::size_t k = w; k < warnings.size() && warnings[k]->span.begin < s.end; ++k) {
            if (!overlaps(warnings[k]->span, s))
                continue;
            e.reason += (e.reason.isEmpty() ? "" : "\n") + QString::fromStdString(warnings[k]->reason);
            warningOnRow[k] = true;
        }
        m_entries.push_back(e);
    }
    for (std::size_t k = 0; k < warnings.size(); ++k)
        if (!warningOnRow[k])
            m_entries.push_back({-1, units(warnings[k]->span.begin), units(warnings[k]->span.end),
                                 QString::fromStdString(warnings[k]->reason), false});
    for (const deedtext::DeedFlag &f : m_import.flags)
        if (f.severity == deedtext::Severity::Flag)
            m_entries.push_back({-1, units(f.span.begin), units(f.span.end), QString::fromStdString(f.reason), true});
    std::stable_sort(m_entries.begin(), m_entries.end(),
                     [](const Entry &a, const Entry &b) { return a.begin < b.begin; });
    fillTable();
    markText();

    int flagged = 0, warned = 0;
    for (const Entry &e : m_entries) {
        flagged += e.flag;
        warned += !e.flag && !e.reason.isEmpty();
    }
    QString summary = count(m_import.rows.size(), "course row", "course rows") + " read";
    if (flagged)
        summary += "; " + count(std::size_t(flagged), "call", "calls") + " in red could not be read: enter " +
                   (flagged == 1 ? "it" : "them") + " by hand after inserting";
    if (warned)
        summary += "; " + count(std::size_t(warned), "line", "lines") + " in amber " + (warned == 1 ? "is" : "are") +
                   " read as the deed says but deserve" + (warned == 1 ? "s" : "") + " a look";
    summary += ".";
    if (m_import.metric)
        summary += " The distances are in metres: choose \"Meters\" for this map.";
    m_summary->setText(summary);
    m_insert->setEnabled(!m_import.rows.empty());
}

void PasteDeedDialog::fillTable()
{
    const QSignalBlocker block(m_rows);
    m_rows->setUpdatesEnabled(false);
    // Sized to their contents, columns would be measured again at every
    // item set: fixed while filling, measured once afterwards.
    QHeaderView *header = m_rows->horizontalHeader();
    header->setSectionResizeMode(QHeaderView::Fixed);
    m_rows->clearSpans();
    m_rows->setRowCount(int(m_entries.size()));
    QStringList numbers;
    for (int line = 0; line < int(m_entries.size()); ++line) {
        const Entry &e = m_entries[std::size_t(line)];
        const QColor colour = e.flag ? kFlagColour : (e.reason.isEmpty() ? kReadColour : kWarningColour);
        for (int c = 0; c < CourseTable::kColumns; ++c) {
            QString cell;
            if (e.row >= 0)
                cell = QString::fromStdString(m_import.rows[std::size_t(e.row)].cells[std::size_t(c)]);
            else if (c == 0)
                cell = (e.flag ? "Not read: " : "Check: ") + e.reason;
            auto *item = new QTableWidgetItem(cell);
            item->setBackground(colour);
            item->setToolTip(e.reason);
            m_rows->setItem(line, c, item);
        }
        if (e.row < 0)
            m_rows->setSpan(line, 0, 1, CourseTable::kColumns);
        numbers << (e.row >= 0 ? QString::number(e.row + 1) : QString("!"));
    }
    m_rows->setVerticalHeaderLabels(numbers);
    // Codes and angles take what they need; the lengths share the rest.
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    for (int c : {ColDistance, ColChord, ColRadius})
        header->setSectionResizeMode(c - 1, QHeaderView::Stretch);
    m_rows->setUpdatesEnabled(true);
}

void PasteDeedDialog::markText()
{
    std::vector<CallMarks::Mark> marks;
    marks.reserve(m_entries.size());
    for (const Entry &e : m_entries)
        marks.push_back({e.begin, e.end, e.flag ? kFlagColour : (e.reason.isEmpty() ? kReadColour : kWarningColour),
                         e.flag});
    m_marks->setMarks(std::move(marks));
}

void PasteDeedDialog::selectCall(int line)
{
    if (line < 0 || line >= int(m_entries.size()))
        return;
    const Entry &e = m_entries[std::size_t(line)];
    const int last = m_text->document()->characterCount() - 1;
    // Anchored at the call's end with the cursor at its start, so that the
    // start of a long call is what scrolls into view.
    QTextCursor cursor(m_text->document());
    cursor.setPosition(std::clamp(e.end, 0, last));
    cursor.setPosition(std::clamp(e.begin, 0, last), QTextCursor::KeepAnchor);
    m_text->setTextCursor(cursor);
    m_text->ensureCursorVisible();
}

QString PasteDeedDialog::reasonAt(int position) const
{
    // A flagged call's reason before a warning on a row around it.
    for (bool flags : {true, false})
        for (const Entry &e : m_entries)
            if (e.flag == flags && !e.reason.isEmpty() && position >= e.begin && position < e.end)
                return e.reason;
    return {};
}

bool PasteDeedDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_text->viewport() && event->type() == QEvent::ToolTip) {
        auto *help = static_cast<QHelpEvent *>(event);
        const QString reason = reasonAt(m_text->cursorForPosition(help->pos()).position());
        if (reason.isEmpty())
            QToolTip::hideText();
        else
            QToolTip::showText(help->globalPos(), reason, m_text->viewport());
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace quilmar
