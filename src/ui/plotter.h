#pragma once
// The main window `Plotter`: the entry grid, the help line, the heading box,
// the result line, the map canvas, the scale list and the unit options, the
// toolbar and the menus. It owns the Engine (the program-wide state) and asks
// the user everything through the injected Dialogs.
//
// The engine is used through a few private members only (draw(), the file
// commands, the result texts), so that a change of its interface stays here.

#include <QMainWindow>

#include "dialogs.h"
#include "engine.h"
#include "startup.h"

class QAction;
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

    /// The file Quick Backup writes.
    std::string backupPath() const { return m_options.backupFolder + "backup.map"; }

protected:
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildMenus();
    void buildToolbar();
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
    QAction *m_actions[8] = {}; ///< toolbar buttons 0 to 2 (3 to 6 come with their commands)
    QMenu *m_fileMenu = nullptr;
    QMenu *m_editMenu = nullptr;
    QAction *m_saveAs = nullptr, *m_backup = nullptr;
    QAction *m_undo = nullptr, *m_cut = nullptr, *m_copy = nullptr, *m_paste = nullptr;
    QAction *m_acresAction = nullptr, *m_hectaresAction = nullptr;
    bool m_exiting = false;
};

} // namespace quilmar
