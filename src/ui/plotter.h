#pragma once
// The main window `Plotter`: the entry grid, the help line, the heading box,
// the result line, the map canvas, the scale list and the unit options, the
// toolbar and the menus. It owns the Engine (the program-wide state) and asks
// the user everything through the injected Dialogs.
//
// The engine is used through a few private members only (draw(), the file
// commands, the result texts), so that a change of its interface stays here.

#include <functional>

#include <QImage>
#include <QMainWindow>
#include <QPointer>
#include <QTextBrowser>

#include "curve_calculator.h"
#include "dialogs.h"
#include "engine.h"
#include "shortcut_conversion.h"
#include "startup.h"
#include "unit_converter.h"

class QAction;
class QKeySequence;
class QLineEdit;

class QButtonGroup;
class QComboBox;
class QLabel;
class QMenu;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

namespace quilmar {

class EntryGrid;
class MapCanvas;
class PrintOptionsDialog;
class ZoomForm;

class Plotter : public QMainWindow {
    Q_OBJECT
public:
    Plotter(Dialogs &dialogs, const StartupOptions &options, QWidget *parent = nullptr);
    ~Plotter() override;

    Engine &engine() { return m_engine; }
    EntryGrid &grid() { return *m_grid; }

    /// Opens @p path as "Open File..." does once its dialog has chosen it.
    void openFile(const std::string &path);
    /// Opens the recovery file of a session that ended without a clean exit.
    /// Unlike opening a map file, the heading comes back without the line
    /// break that the file's tail line adds, so it is exactly what was typed.
    void restoreSession(const std::string &path);

    // --- commands (public so that tests and the command line reach them) ---------
    void Toolbar_Click(int index);
    void fileopen_Click();
    /// mode 1 Save As, mode 2 Quick Backup.
    void saveit(int mode);
    void Exitmenu_Click();
    void addScale_Click();
    void Scalebox_Click(int index);
    void metrix_Click(int index);
    void mnuAcres_Click();
    void mnuHectares_Click();
    void mnuGap_Click();
    void mnuPeri_Click();
    /// Map > Closure Report...: the report window over the table; its Apply and
    /// Undo refill the grid and redraw the map. A table without a lot to
    /// analyse gets ClosureSession::kNoLots instead.
    void mnuClosureReport_Click();

    /// Edit > "Paste Deed Text...": the paste dialog over the clipboard's text,
    /// then its rows into the course table at the current row (plotter_paste.cpp).
    void mnuPasteDeed_Click();

    // File: printing and the clipboard (plotter_commands.cpp)
    void mnuPrintOptions_Click();
    void FilePrintmap_Click();
    void FilePrint_Click();
    void previewMap();
    void previewData();
    void Fileprinttext_Click();
    void filemakebmp_Click();
    // Conversions
    void convert(UnitConverter converter);
    void shortcut(ShortcutConversion which);
    void calculate(CurveCalculator calculator);
    void mnuReciprocal_Click();
    void mnuGlobal1_Click();
    void mnuGlobal2_Click(int index);
    // Map and Help
    void mnuMagnify_Click();
    void helpsubmenu_Click();
    void mnuManual_Click();
    void demosample_Click(int n);
    void mnuAbout_Click();

    /// The print options dialog while it is shown (null otherwise).
    PrintOptionsDialog *printOptionsDialog() const;
    /// The zoom window once Magnify has created it.
    ZoomForm *zoomForm() const;
    /// The help window once Help... has opened it.
    QTextBrowser *helpWindow() const { return m_help; }
    /// The manual the Manual command opens: "manual.rtf" in the program's folder.
    std::string manualPath() const { return m_options.programFolder + "manual.rtf"; }
    /// Opens a file with the desktop's program for it; replaceable by tests.
    std::function<bool(const std::string &path)> openWithDesktop;

    /// The file Quick Backup writes.
    std::string backupPath() const { return m_options.backupFolder + "backup.map"; }

protected:
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildMenus();
    void buildToolbar();
    QAction *addEntry(QMenu *menu, const char *name, const char *caption, const QKeySequence &key,
                      std::function<void()> command);
    /// Shows the converters and area command of the start-up's unit mode.
    void showUnitEntries(bool metric);
    /// Applies a converter's or calculator's result: messages, clipboard, Acresbox, field.
    void applyResult(const CalcResult &result);
    /// The map canvas size in twips, for the engine's fit.
    void fitToCanvas(float scale = 1.0f);
    void refreshVisibleRows();
    /// The distance, chord and radius fields of the visible rows from the table (global conversion).
    void refreshLengthFields();
    /// Copies the visible fields into their table rows where they differ (Print Data reads them first).
    void readVisibleRows();
    QWidget *buildCentral();
    void fillScalebox();
    void selectUnits(int index);
    /// Recomputes and redraws the map (`mindraw`) with the canvas's current size.
    void draw();
    /// Shows the engine's result line, AutoScale caption and figure.
    void showResults();
    void setAcres(const QString &text);
    void setAutoscale(const QString &text);
    void setComment(const QString &text);
    void clearScreenSide();
    /// The save question on closing and Exit. @returns false on Cancel.
    bool askToSave();
    void Editmenu_Click();
    void Filemenu_Click();
    void editAction(int which);
    /// The one-line field the Edit menu works on, if the focus is in one.
    QLineEdit *editLine() const;

    Dialogs &m_dialogs;
    StartupOptions m_options;
    Engine m_engine;
    EntryGrid *m_grid = nullptr;
    MapCanvas *m_minmap = nullptr;
    QLabel *m_commentbox = nullptr;
    QLabel *m_acresbox = nullptr;
    QLabel *m_autoscalebox = nullptr;
    QLabel *m_label1 = nullptr;
    QPlainTextEdit *m_headerbox = nullptr;
    QComboBox *m_scalebox = nullptr;
    QRadioButton *m_metrix[3] = {};
    QAction *m_actions[8] = {}; ///< toolbar buttons 0 to 6; 7 (Exit) has none
    QMenu *m_fileMenu = nullptr;
    QMenu *m_editMenu = nullptr;
    QAction *m_saveAs = nullptr, *m_backup = nullptr;
    QAction *m_printMap = nullptr, *m_printData = nullptr, *m_copyData = nullptr;
    QAction *m_undo = nullptr, *m_cut = nullptr, *m_copy = nullptr, *m_paste = nullptr;
    QAction *m_acresAction = nullptr, *m_hectaresAction = nullptr;
    bool m_exiting = false;
    QPointer<PrintOptionsDialog> m_printOptionsDialog;
    QPointer<ZoomForm> m_zoom;
    QPointer<QTextBrowser> m_help;
};

} // namespace quilmar
