// The Plotter window's commands beyond the entry grid and the files: printing
// and the clipboard (File), the Conversions menu, Magnify (Map) and the Help
// menu. Every answer the user gives comes through the Dialogs.

#include <filesystem>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBrowser>
#include <QUrl>

#include "map_bitmap.h"
#include "map_printout.h"
#include "course_description.h"
#include "entry_grid.h"
#include "global_conversion.h"
#include "map_canvas.h"
#include "plotter.h"
#include "print_options_dialog.h"
#include "printouts.h"
#include "reciprocal_angle.h"
#include "zoom_form.h"

#ifndef QUILMAR_VERSION
#define QUILMAR_VERSION "0"
#endif

namespace quilmar {

namespace {

// The hourglass while a command works, put back however it ends.
struct WaitCursor {
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
};

} // namespace

PrintOptionsDialog *Plotter::printOptionsDialog() const { return m_printOptionsDialog.data(); }
ZoomForm *Plotter::zoomForm() const { return m_zoom.data(); }

void Plotter::fitToCanvas(float scale)
{
    m_engine.setCanvasSize(float(m_minmap->width() * MapCanvas::kTwipsPerPixel) * scale,
                           float(m_minmap->height() * MapCanvas::kTwipsPerPixel) * scale);
}

void Plotter::refreshVisibleRows()
{
    m_grid->rules().populatefields();
    m_grid->sync();
}

void Plotter::refreshLengthFields()
{
    // Only the columns the conversion rewrote: a field of another column being
    // typed keeps its text until it is left.
    GridRules &rules = m_grid->rules();
    for (int r = 0; r < GridRules::kVisibleRows; ++r)
        for (int c : {ColDistance, ColChord, ColRadius})
            rules.setText({r, c}, cellText(m_engine.table().at(rules.scroll() + r, c)));
    m_grid->sync();
}

void Plotter::readVisibleRows()
{
    // A field still being typed is printed as shown. Cells the fields already
    // show are left alone, so a number stored by a conversion stays a number.
    const GridRules &rules = m_grid->rules();
    CourseTable &table = m_engine.editTable();
    for (int r = 0; r < GridRules::kVisibleRows; ++r)
        for (int c = ColNS; c <= ColTag; ++c) {
            Cell &cell = table.at(rules.scroll() + r, c);
            if (const std::string &text = rules.text({r, c}); text != cellText(cell))
                cell = Cell(text);
        }
}

// --- File: print options, printouts, clipboard -------------------------------------

void Plotter::mnuPrintOptions_Click()
{
    // A fresh dialog each time, so it shows the options as they are now.
    if (m_printOptionsDialog)
        m_printOptionsDialog->close();
    m_printOptionsDialog = new PrintOptionsDialog(
        m_engine.printOptions(), [this](const PrintOptions &o) { m_engine.setPrintOptions(o); }, this);
    m_printOptionsDialog->show();
}

void Plotter::FilePrintmap_Click()
{
    bool printed = false;
    try {
        printed = m_dialogs.print("Quilmar map", [this](PrintSheet &sheet) {
            const WaitCursor wait;
            fitToCanvas();
            printMapSheets(m_engine, sheet);
        });
    } catch (const std::exception &) {
        // a fault ends the job; the screen is drawn again below
    }
    if (printed)
        draw();
}

void Plotter::FilePrint_Click()
{
    readVisibleRows();
    try {
        m_dialogs.print("Quilmar data", [this](PrintSheet &sheet) { printDataSheets(m_engine, sheet); });
    } catch (const std::exception &) {
    }
}

void Plotter::previewMap()
{
    m_dialogs.preview("Quilmar map", [this](PrintSheet &sheet) {
        fitToCanvas();
        printMapSheets(m_engine, sheet);
    });
    draw();
}

void Plotter::previewData()
{
    readVisibleRows();
    m_dialogs.preview("Quilmar data", [this](PrintSheet &sheet) { printDataSheets(m_engine, sheet); });
}

void Plotter::Fileprinttext_Click()
{
    QClipboard *clipboard = QApplication::clipboard();
    clipboard->clear();
    clipboard->setText(QString::fromStdString(courseDescriptionText(m_engine.table())));
}

void Plotter::filemakebmp_Click()
{
    QClipboard *clipboard = QApplication::clipboard();
    clipboard->clear();
    // The map drawn on a canvas twice the size, on white; then the canvas as it was.
    fitToCanvas();
    const CanvasDraw doubled = drawDoubleSize(m_engine);
    const QImage image = mapBitmap(doubled.figure, doubled.view);
    if (!image.isNull())
        clipboard->setImage(image);
    showResults();
}

// --- Conversions ---------------------------------------------------------------------

void Plotter::applyResult(const CalcResult &result)
{
    for (const std::string &message : result.messages)
        m_dialogs.exclaim(message);
    if (result.clipboard) {
        QApplication::clipboard()->clear();
        QApplication::clipboard()->setText(QString::fromStdString(*result.clipboard));
    }
    if (result.acresbox) {
        m_engine.setAcresbox(*result.acresbox);
        setAcres(QString::fromStdString(*result.acresbox));
    }
}

void Plotter::convert(UnitConverter converter)
{
    const auto answer = m_dialogs.inputBox(converterPrompt(converter), std::string(converterTitle()));
    if (answer)
        applyResult(runConverter(converter, *answer));
}

void Plotter::shortcut(ShortcutConversion which)
{
    // The field with the focus (or that had it when the menu opened).
    const std::optional<FieldRef> f = m_grid->rules().focused();
    QLineEdit *field = m_grid->activeField();
    if (!f || !field)
        return;
    const CalcResult result = runShortcut(which, field->text().toStdString());
    if (!result.field)
        return;
    m_grid->rules().setText(*f, *result.field);
    field->setText(QString::fromStdString(*result.field));
}

void Plotter::calculate(CurveCalculator calculator)
{
    const auto answer = m_dialogs.inputBox(calculatorPrompt(calculator), std::string(calculatorTitle(calculator)));
    if (answer)
        applyResult(runCurveCalculator(calculator, *answer));
}

void Plotter::mnuReciprocal_Click()
{
    const auto answer = m_dialogs.inputBox(reciprocalPrompt(), std::string(reciprocalTitle()));
    if (answer)
        applyResult(reciprocalAngle(*answer));
}

namespace {

// Asks, converts the table and refreshes the visible rows; @returns the unit
// option to select, or nothing when the user declined or a cell failed.
std::optional<Units> runGlobal(const GlobalConversion &conversion, Dialogs &dialogs, CourseTable &table,
                               const std::function<void()> &refresh)
{
    if (dialogs.ask(conversion.question(), GlobalConversion::kTitle, Buttons::YesNoCancel, Icon::Exclamation) !=
        Answer::Yes)
        return std::nullopt;
    try {
        const Units units = conversion.apply(table);
        refresh();
        return units;
    } catch (const std::exception &e) {
        // The cells before the failing one keep their new values.
        refresh();
        dialogs.exclaim(e.what());
        return std::nullopt;
    }
}

} // namespace

void Plotter::mnuGlobal1_Click()
{
    // The map is not redrawn: the next computation reads the new lengths.
    if (const auto units =
            runGlobal(GlobalConversion::feetToMeters(), m_dialogs, m_engine.editTable(),
                      [this] { refreshLengthFields(); }))
        selectUnits(int(*units));
}

void Plotter::mnuGlobal2_Click(int index)
{
    if (const auto units =
            runGlobal(GlobalConversion::toFeet(index), m_dialogs, m_engine.editTable(),
                      [this] { refreshLengthFields(); }))
        selectUnits(int(*units));
}

// --- Map: Magnify --------------------------------------------------------------------

void Plotter::mnuMagnify_Click()
{
    if (!m_zoom)
        m_zoom = new ZoomForm(m_engine, m_dialogs, this);
    m_zoom->show();
    m_zoom->raise();
    m_zoom->activateWindow();
    m_zoom->Form_Activate();
}

// --- Help ------------------------------------------------------------------------------

void Plotter::helpsubmenu_Click()
{
    if (!m_help) {
        m_help = new QTextBrowser(this);
        m_help->setWindowFlag(Qt::Window);
        m_help->setObjectName("HelpWindow");
        m_help->setWindowTitle("Quilmar Deed Plotter Help");
        m_help->setOpenExternalLinks(false);
        m_help->setSource(QUrl("qrc:/quilmar/help/help.html"));
        m_help->resize(fontMetrics().averageCharWidth() * 100, fontMetrics().lineSpacing() * 40);
    }
    m_help->home();
    m_help->show();
    m_help->raise();
    m_help->activateWindow();
}

void Plotter::mnuManual_Click()
{
    const std::string path = manualPath();
    std::error_code ec;
    bool opened = std::filesystem::is_regular_file(path, ec);
    if (opened)
        opened = openWithDesktop ? openWithDesktop(path)
                                 : QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(path)));
    if (!opened)
        m_dialogs.ask("Cannot find " + path + " file.", Prompter::kTitle, Buttons::Ok, Icon::None);
}

void Plotter::demosample_Click(int n)
{
    // The sample replaces everything without a question, even unsaved data.
    clearScreenSide();
    fitToCanvas();
    m_engine.loadDemoSample(n);
    {
        const QSignalBlocker block(m_headerbox);
        m_headerbox->setPlainText(QString::fromStdString(m_engine.description()));
    }
    m_grid->rules().scrollTo(0);
    {
        const QSignalBlocker block(m_grid->scrollBar());
        m_grid->setScroll(0);
    }
    m_grid->sync();
    showResults();
}

void Plotter::mnuAbout_Click()
{
    m_dialogs.ask(std::string("Quilmar Deed Plotter\r\nVersion ") + QUILMAR_VERSION +
                      "\r\n\r\nDraws land parcels from their metes-and-bounds description.",
                  "About Quilmar Deed Plotter", Buttons::Ok, Icon::Information);
}

} // namespace quilmar
