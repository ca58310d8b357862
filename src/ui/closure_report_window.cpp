#include "closure_report_window.h"

#include <algorithm>
#include <cmath>

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

namespace quilmar {

namespace {

using namespace analysis;

QString qs(const std::string &s) { return QString::fromStdString(s); }


QLabel *valueLabel(const QString &text, const QString &name, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    return label;
}

QTableWidget *makeTable(const QStringList &headers, int rows, const QString &name, QWidget *parent)
{
    auto *t = new QTableWidget(rows, int(headers.size()), parent);
    t->setObjectName(name);
    t->setHorizontalHeaderLabels(headers);
    t->verticalHeader()->hide();
    t->setEditTriggers(QAbstractItemView::NoEditTriggers);
    t->setSelectionMode(QAbstractItemView::NoSelection);
    t->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    t->horizontalHeader()->setStretchLastSection(true);
    return t;
}

void setCell(QTableWidget *t, int row, int column, const std::string &text, bool number = true)
{
    auto *item = new QTableWidgetItem(qs(text));
    item->setTextAlignment(Qt::AlignVCenter | (number ? Qt::AlignRight : Qt::AlignLeft));
    t->setItem(row, column, item);
}

// The table's height for all its rows, so that the page scrolls as one.
void fitHeight(QTableWidget *t)
{
    int h = t->horizontalHeader()->sizeHint().height() + 2 * t->frameWidth();
    for (int r = 0; r < t->rowCount(); ++r)
        h += t->rowHeight(r);
    t->setMinimumHeight(h);
    t->setMaximumHeight(h);
}

QWidget *adjustmentPage(const Adjustment &a, Units units, const QString &name, QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(valueLabel("Adjusted area: " + qs(areaText(a.area, units)), name + "Area", page));
    QTableWidget *t = makeTable({"Row", "North", "East", "Bearing", "Distance", "Bearing change", "Distance change"},
                                int(a.calls.size()), name + "Table", page);
    for (int i = 0; i < int(a.calls.size()); ++i) {
        const AdjustedCall &c = a.calls[size_t(i)];
        setCell(t, i, 0, std::to_string(c.row + 1));
        setCell(t, i, 1, groupedNumber(c.north, 3));
        setCell(t, i, 2, groupedNumber(c.east, 3));
        setCell(t, i, 3, c.bearing, false);
        setCell(t, i, 4, groupedNumber(c.distance, 3) + (c.curve ? " (chord)" : ""));
        setCell(t, i, 5, signedNumber(c.bearingChange, 0) + "\"");
        setCell(t, i, 6, signedNumber(c.distanceChange, 3));
    }
    fitHeight(t);
    layout->addWidget(t);
    return page;
}

} // namespace

// --- the plot ------------------------------------------------------------------------

OutlinePlot::OutlinePlot(Outlines outlines, QWidget *parent) : QWidget(parent), m_outlines(std::move(outlines))
{
    setObjectName("outlinePlot");
    setToolTip("Dashed: the figure as written. Solid: adjusted by the compass rule.");
    setMinimumSize(sizeHint() / 2);
}

QSize OutlinePlot::sizeHint() const
{
    const int line = fontMetrics().lineSpacing();
    return {16 * line, 15 * line};
}

void OutlinePlot::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.fillRect(rect(), Qt::white);
    const Outlines &o = m_outlines;
    if (o.north.empty())
        return;
    double minN = o.north[0], maxN = minN, minE = o.east[0], maxE = minE;
    auto grow = [&](const std::vector<double> &n, const std::vector<double> &e) {
        for (size_t i = 0; i < n.size(); ++i) {
            minN = std::min(minN, n[i]);
            maxN = std::max(maxN, n[i]);
            minE = std::min(minE, e[i]);
            maxE = std::max(maxE, e[i]);
        }
    };
    grow(o.north, o.east);
    grow(o.adjustedNorth, o.adjustedEast);
    const int legend = 2 * fontMetrics().lineSpacing() + 4;
    const QRectF area = QRectF(rect()).adjusted(8, 8, -8, -8 - legend);
    const double span = std::max(maxE - minE, maxN - minN);
    const double scale = span > 0.0 ? std::min(area.width() / std::max(maxE - minE, 1e-9 * span),
                                               area.height() / std::max(maxN - minN, 1e-9 * span))
                                    : 1.0;
    // North up: y grows southward on the screen. Centred in the free area.
    const double cx = area.center().x(), cy = area.center().y();
    const double midE = (minE + maxE) / 2.0, midN = (minN + maxN) / 2.0;
    auto at = [&](double n, double e) { return QPointF(cx + (e - midE) * scale, cy - (n - midN) * scale); };
    auto path = [&](const std::vector<double> &n, const std::vector<double> &e) {
        QPainterPath path(at(n[0], e[0]));
        for (size_t i = 1; i < n.size(); ++i)
            path.lineTo(at(n[i], e[i]));
        return path;
    };
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(200, 40, 40), 1.5, Qt::DashLine));
    p.drawPath(path(o.north, o.east));
    p.setPen(QPen(QColor(20, 70, 200), 1.5));
    p.drawPath(path(o.adjustedNorth, o.adjustedEast));
    p.setBrush(Qt::black);
    p.drawEllipse(at(o.north[0], o.east[0]), 3.0, 3.0);
    p.setPen(Qt::black);
    p.drawText(QRectF(rect()).adjusted(4, 0, -4, -2), Qt::AlignBottom | Qt::AlignLeft,
               "dashed: as written\nsolid: compass rule");
}

// --- the window ------------------------------------------------------------------------

ClosureReportWindow::ClosureReportWindow(ClosureSession &session, QWidget *parent)
    : QDialog(parent), m_session(session)
{
    setObjectName("ClosureReport");
    setWindowTitle("Closure Report");
    auto *layout = new QVBoxLayout(this);
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName("lotTabs");
    layout->addWidget(m_tabs);
    auto *buttons = new QDialogButtonBox(this);
    m_undo = buttons->addButton("Undo", QDialogButtonBox::ActionRole);
    m_undo->setObjectName("cmdUndo");
    m_undo->setToolTip("Puts the course table back as it was before the last Apply");
    m_undo->setAutoDefault(false);
    QPushButton *close = buttons->addButton(QDialogButtonBox::Close);
    close->setObjectName("cmdClose");
    layout->addWidget(buttons);
    connect(m_undo, &QPushButton::clicked, this, [this] { undo(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    // Room for a lot of a dozen calls and its suggestions without scrolling,
    // within the screen.
    const int line = fontMetrics().lineSpacing();
    QSize size(64 * line, 60 * line);
    if (const QScreen *s = parent ? parent->screen() : screen())
        size = size.boundedTo(s->availableSize() * 9 / 10);
    resize(size);
    refresh();
}

void ClosureReportWindow::refresh()
{
    const int shown = m_tabs->currentIndex();
    while (m_tabs->count() > 0) {
        QWidget *page = m_tabs->widget(0);
        m_tabs->removeTab(0);
        // The Apply button that asked for this refresh sits on the page: the
        // page goes once its click is over, and is out of the window at once.
        page->setParent(nullptr);
        page->deleteLater();
    }
    const ClosureReport &report = m_session.report();
    for (int i = 0; i < int(report.lots.size()); ++i) {
        const LotReport &lot = report.lots[size_t(i)];
        m_tabs->addTab(lotPage(i), QString("Lot %1 (rows %2 to %3)").arg(i + 1).arg(lot.firstRow + 1).arg(lot.lastRow + 1));
    }
    if (report.lots.empty()) {
        auto *label = new QLabel(ClosureSession::kNoLots, m_tabs);
        label->setObjectName("noLots");
        label->setWordWrap(true);
        m_tabs->addTab(label, "No lot");
    }
    m_tabs->setCurrentIndex(std::clamp(shown, 0, m_tabs->count() - 1));
    m_undo->setEnabled(m_session.canUndo());
}

QWidget *ClosureReportWindow::lotPage(int index)
{
    const LotReport &lot = m_session.report().lots[size_t(index)];
    const QString n = QString::number(index);
    auto *scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    auto *page = new QWidget(scroll);
    scroll->setWidget(page);
    auto *layout = new QVBoxLayout(page);

    // Summary beside the plot.
    auto *top = new QHBoxLayout;
    auto *form = new QFormLayout;
    std::string rows = "rows " + std::to_string(lot.firstRow + 1) + " to " + std::to_string(lot.lastRow + 1);
    if (lot.pobRow >= 0)
        rows += ", point of beginning after row " + std::to_string(lot.pobRow + 1);
    if (lot.closeRow >= 0)
        rows += ", closed by row " + std::to_string(lot.closeRow + 1);
    form->addRow("Lot:", valueLabel(qs(rows), "rows_" + n, page));
    const std::string misclosure = lot.gap.distance == 0.0
                                       ? std::string("none: the figure closes exactly")
                                       : groupedNumber(lot.gap.distance, 3) + ", closing bearing " + lot.gap.bearing;
    form->addRow("Misclosure:", valueLabel(qs(misclosure), "misclosure_" + n, page));
    form->addRow("Error in latitude (north):", valueLabel(qs(signedNumber(lot.gap.north, 3)), "north_" + n, page));
    form->addRow("Error in departure (east):", valueLabel(qs(signedNumber(lot.gap.east, 3)), "east_" + n, page));
    form->addRow("Perimeter:", valueLabel(qs(groupedNumber(lot.perimeter, 3)), "perimeter_" + n, page));
    form->addRow("Precision:", valueLabel(qs(precisionText(lot.precision)), "precision_" + n, page));
    QString classes;
    for (int c : kPrecisionClasses) {
        const bool better = !lot.precision || *lot.precision >= c;
        classes += QString("%1%2: %3").arg(classes.isEmpty() ? "" : ",  ").arg(qs(precisionText(c))).arg(
            better ? "better" : "worse");
    }
    classes += "\n(for comparison only; not a finding of compliance with any standard)";
    form->addRow("Commonly cited ratios:", valueLabel(classes, "classes_" + n, page));
    form->addRow("Plotter's gap:", valueLabel(qs(lot.programGap), "programGap_" + n, page));
    for (const Note &note : lot.notes)
        form->addRow("Note:", valueLabel(qs("row " + std::to_string(note.row + 1) + ": " + note.text), "note_" + n, page));
    top->addLayout(form, 1);
    top->addWidget(new OutlinePlot(compassOutlines(lot), page));
    layout->addLayout(top);

    // The two adjustments.
    auto *rules = new QTabWidget(page);
    rules->setObjectName("rules_" + n);
    rules->addTab(adjustmentPage(lot.compass, m_session.units(), "compass_" + n, rules), "Compass (Bowditch) rule");
    rules->addTab(adjustmentPage(lot.transit, m_session.units(), "transit_" + n, rules), "Transit rule");
    layout->addWidget(rules);

    // The likely bad calls.
    auto *box = new QGroupBox("Likely bad calls, best first", page);
    auto *boxLayout = new QVBoxLayout(box);
    if (lot.suggestions.empty()) {
        boxLayout->addWidget(valueLabel("None: the gap is within what the rounding of the calls explains, or no "
                                        "single change of one call closes the lot better.",
                                        "noSuggestions_" + n, box));
    } else {
        QTableWidget *t = makeTable({"Row", "Likely mistake", "Corrected call", "Gap after", "Precision after", ""},
                                    int(lot.suggestions.size()), "suggestions_" + n, box);
        for (int i = 0; i < int(lot.suggestions.size()); ++i) {
            const Suggestion &s = lot.suggestions[size_t(i)];
            const bool insert = s.kind == BlunderKind::Omitted;
            setCell(t, i, 0, (insert ? "before " : "") + std::to_string(s.row + 1));
            setCell(t, i, 1, kindWords(s.kind), false);
            setCell(t, i, 2, callText(s.cells), false);
            setCell(t, i, 3, groupedNumber(s.gap.distance, 3));
            setCell(t, i, 4, precisionText(s.precision));
            auto *button = new QPushButton(insert ? "Apply (insert)" : "Apply", t);
            button->setObjectName(QString("cmdApply_%1_%2").arg(index).arg(i));
            button->setAutoDefault(false);
            connect(button, &QPushButton::clicked, this, [this, index, i] { apply(index, i); });
            t->setCellWidget(i, 5, button);
        }
        t->resizeRowsToContents();
        fitHeight(t);
        boxLayout->addWidget(t);
    }
    layout->addWidget(box);
    layout->addStretch(1);
    return scroll;
}

void ClosureReportWindow::apply(int lot, int suggestion)
{
    if (m_session.apply(size_t(lot), size_t(suggestion)))
        refresh();
}

void ClosureReportWindow::undo()
{
    if (m_session.undo())
        refresh();
}

} // namespace quilmar
