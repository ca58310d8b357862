#pragma once
// The closure report window: one page per lot with its misclosure, perimeter
// and precision (set beside the commonly cited ratios, for comparison only),
// the plotter's own gap text, the compass-rule and transit-rule adjustments,
// a small plot of the adjusted figure over the figure as written, and the
// likely bad calls, each with "Apply". "Undo" takes back the applies in
// reverse order. Everything goes through the ClosureSession; the window never
// reaches into the engine.

#include <QDialog>
#include <QWidget>

#include "closure_session.h"

class QPushButton;
class QTabWidget;

namespace quilmar {

/// The figure as written (dashed) and as the compass rule adjusts it (solid),
/// north up, fitted into the widget with its proportions kept.
class OutlinePlot : public QWidget {
    Q_OBJECT
public:
    explicit OutlinePlot(Outlines outlines, QWidget *parent = nullptr);
    QSize sizeHint() const override;
    const Outlines &outlines() const { return m_outlines; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Outlines m_outlines;
};

class ClosureReportWindow : public QDialog {
    Q_OBJECT
public:
    explicit ClosureReportWindow(ClosureSession &session, QWidget *parent = nullptr);

    /// Rebuilds every lot's page from the session's report, keeping the page shown.
    void refresh();
    /// The lot pages ("lotTabs"); page i is lot i of the report.
    QTabWidget *lotTabs() const { return m_tabs; }
    QPushButton *undoButton() const { return m_undo; }

private:
    QWidget *lotPage(int index);
    void apply(int lot, int suggestion);
    void undo();

    ClosureSession &m_session;
    QTabWidget *m_tabs = nullptr;
    QPushButton *m_undo = nullptr;
};

} // namespace quilmar
