// The menu tree and the toolbar of the Plotter window. Every entry carries
// its control name as object name and its caption exactly as the user knows
// it (blanks included); the commands themselves live in plotter.cpp and
// plotter_commands.cpp.

#include <QAction>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

#include "entry_grid.h"
#include "plotter.h"
#include "toolbar_icons.h"

// The help lives in a static library: register it by hand.
static void initUiResources() { Q_INIT_RESOURCE(quilmar_ui); }

namespace quilmar {

namespace {

// Runs a command with faults passed over: a button's command that fails ends
// silently and the program goes on.
template <class F> void quietly(F &&f)
{
    try {
        f();
    } catch (...) {
    }
}

} // namespace

QAction *Plotter::addEntry(QMenu *menu, const char *name, const char *caption, const QKeySequence &key,
                           std::function<void()> command)
{
    QAction *a = menu->addAction(QString::fromUtf8(caption));
    a->setObjectName(name);
    if (!key.isEmpty())
        a->setShortcut(key);
    connect(a, &QAction::triggered, this, [command = std::move(command)] { quietly(command); });
    return a;
}

void Plotter::buildMenus()
{
    initUiResources();
    auto action = [this](QMenu *menu, const char *name, const char *caption, QKeySequence key, auto slot) {
        return addEntry(menu, name, caption, key, slot);
    };
    auto separator = [](QMenu *menu, const char *name) {
        QAction *s = menu->addSeparator();
        s->setObjectName(name);
        return s;
    };

    // --- File ------------------------------------------------------------------------
    m_fileMenu = menuBar()->addMenu("&File");
    m_fileMenu->setObjectName("Filemenu");
    action(m_fileMenu, "mnuNew", "&New", {}, [this] { Toolbar_Click(2); });
    action(m_fileMenu, "fileopen", "Open &File...", QKeySequence("Ctrl+F"), [this] { fileopen_Click(); });
    m_saveAs = action(m_fileMenu, "Filesave", "&Save As...", QKeySequence("Ctrl+S"), [this] { saveit(1); });
    m_backup = action(m_fileMenu, "mnuBackup", "Quick &Backup", QKeySequence("Ctrl+B"), [this] { saveit(2); });
    separator(m_fileMenu, "sep_file1");
    action(m_fileMenu, "mnuPrintOptions", "Print &Options...", QKeySequence("Ctrl+O"),
           [this] { mnuPrintOptions_Click(); });
    m_printMap = action(m_fileMenu, "FilePrintmap", "&Print Map...", QKeySequence("Ctrl+P"),
                        [this] { FilePrintmap_Click(); });
    m_printData =
        action(m_fileMenu, "FilePrint", "Print &Data...", QKeySequence("Ctrl+D"), [this] { FilePrint_Click(); });
    // Beyond the classic menu: both printouts in Qt's preview first.
    action(m_fileMenu, "FilePreviewmap", "Print Pre&view...", {}, [this] { previewMap(); });
    action(m_fileMenu, "FilePreviewdata", "Print Preview of Dat&a...", {}, [this] { previewData(); });
    m_copyData = action(m_fileMenu, "Fileprinttext", "Cop&y Data to Clipboard", QKeySequence("Ctrl+Y"),
                        [this] { Fileprinttext_Click(); });
    action(m_fileMenu, "filemakebmp", "Copy Map to Clipboard (bmp)", {}, [this] { filemakebmp_Click(); });
    // The set-up entry and its separator exist but are never shown.
    separator(m_fileMenu, "sep_setup")->setVisible(false);
    action(m_fileMenu, "mnuSetup", "Set&up...", {}, [] {})->setVisible(false);
    separator(m_fileMenu, "sep_file2");
    action(m_fileMenu, "Exitmenu", "E&xit ", {}, [this] { Exitmenu_Click(); });
    connect(m_fileMenu, &QMenu::aboutToShow, this, &Plotter::Filemenu_Click);

    // --- Edit ------------------------------------------------------------------------
    m_editMenu = menuBar()->addMenu("&Edit");
    m_editMenu->setObjectName("Editmenu");
    m_undo = action(m_editMenu, "EditUndo", "&Undo", QKeySequence("Ctrl+Z"), [this] { editAction(0); });
    separator(m_editMenu, "sep_edit1");
    m_cut = action(m_editMenu, "Editcut", "Cu&t", QKeySequence("Ctrl+X"), [this] { editAction(1); });
    m_copy = action(m_editMenu, "Editcopy", "&Copy", QKeySequence("Ctrl+C"), [this] { editAction(2); });
    m_paste = action(m_editMenu, "Editpaste", "&Paste", QKeySequence("Ctrl+V"), [this] { editAction(3); });
    separator(m_editMenu, "sep_edit2");
    action(m_editMenu, "mnuDeleteEntry", "&Delete Active Entry", QKeySequence("Shift+Del"),
           [this] { Toolbar_Click(1); });
    action(m_editMenu, "mnuDeleteAll", "Delete &ALL Entries", {}, [this] { Toolbar_Click(2); });
    // Beyond the classic menu: course rows read from a deed's text.
    separator(m_editMenu, "sep_edit3");
    action(m_editMenu, "mnuPasteDeed", "Paste D&eed Text...", QKeySequence("Ctrl+Shift+V"),
           [this] { mnuPasteDeed_Click(); });
    connect(m_editMenu, &QMenu::aboutToShow, this, &Plotter::Editmenu_Click);
    // Shortcuts keep working between openings of the menu.
    connect(m_editMenu, &QMenu::aboutToHide, this, [this] {
        for (QAction *a : {m_undo, m_cut, m_copy, m_paste})
            a->setEnabled(true);
    });

    // --- Conversions -----------------------------------------------------------------
    QMenu *conv = menuBar()->addMenu("C&onversions");
    conv->setObjectName("mnuConversions");
    struct Converter {
        const char *name;
        const char *caption;
        UnitConverter which;
    };
    const Converter converters[] = {
        {"mnuConvChains", "Chains", UnitConverter::Chains},
        {"mnuConvLinks", "Links", UnitConverter::Links},
        {"mnuConvRods", "Rods", UnitConverter::Rods},
        {"mnuConvPerches", "Perches", UnitConverter::Perches},
        {"mnuConvFurlongs", "Furlongs", UnitConverter::Furlongs},
        {"mnuVaras", "Varas", UnitConverter::Varas},
        {"mnuConvYards", "Yards", UnitConverter::Yards},
        {"mnuFeet2Meters", "Feet to Meters", UnitConverter::FeetToMeters},
        {"mnuMeters2Feet", "Meters to Feet", UnitConverter::MetersToFeet},
    };
    for (const Converter &c : converters)
        action(conv, c.name, c.caption, {}, [this, w = c.which] { convert(w); });
    separator(conv, "sep_conv1");
    action(conv, "mnuConv", "Shortcut Conversion (Chains/Links)", QKeySequence("Ctrl+F5"),
           [this] { shortcut(ShortcutConversion::ChainsLinks); });
    action(conv, "mnuConv2", "Shortcut Conversion (Perches, Rods)", QKeySequence("Ctrl+F7"),
           [this] { shortcut(ShortcutConversion::PerchesRods); });
    action(conv, "mnuConv3", "Shortcut Conversion (Varas)", QKeySequence("Ctrl+F8"),
           [this] { shortcut(ShortcutConversion::Varas); });
    separator(conv, "sep_conv2");
    action(conv, "mnuReciprocal", "Reciprocal Angle", {}, [this] { mnuReciprocal_Click(); });
    action(conv, "mnuConvArc", "Give me Arc", {}, [this] { calculate(CurveCalculator::Arc); });
    action(conv, "mnuConvChord", "Give me Chord", {}, [this] { calculate(CurveCalculator::Chord); });
    action(conv, "mnuConvAngle", "Give me Angle", {}, [this] { calculate(CurveCalculator::Angle); });
    action(conv, "mnuConvTangent", "Chord Angle - Tangent ", {}, [this] { calculate(CurveCalculator::Tangent); });
    separator(conv, "sep_conv3");
    QMenu *global = conv->addMenu("Global Conversion");
    global->setObjectName("mnuGlobalconv");
    global->menuAction()->setObjectName("mnuGlobalconv");
    action(global, "mnuGlobal1", "From Feet to Meters", {}, [this] { mnuGlobal1_Click(); });
    const char *toFeet[] = {"From Meters to Feet",  "From Chains/Links to Feet", "From Rods or Perches to Feet",
                            "From Furlongs to Feet", "From Varas to Feet",        "From Yards to Feet"};
    for (int i = 0; i < 6; ++i)
        action(global, qPrintable(QString("mnuGlobal2_%1").arg(i)), toFeet[i], {},
               [this, i] { mnuGlobal2_Click(i); });

    // --- the tag menu: a menu of the bar that is never shown there --------------------
    QMenu *tags = m_grid->tagMenu();
    menuBar()->addMenu(tags)->setVisible(false);

    // --- Map -------------------------------------------------------------------------
    QMenu *map = menuBar()->addMenu("&Map");
    map->setObjectName("mnuView");
    // Only draws: the row check belongs to the toolbar's button 0, not to this entry.
    action(map, "mnuRedraw", "&Re-draw Map", QKeySequence("F8"), [this] { draw(); });
    m_acresAction = action(map, "mnuAcres", "Calculate &Acres", QKeySequence("Ctrl+A"), [this] { mnuAcres_Click(); });
    m_hectaresAction =
        action(map, "mnuHectares", "Calculate &Hectares", QKeySequence("Ctrl+H"), [this] { mnuHectares_Click(); });
    action(map, "mnuGap", "Calculate &Gap", QKeySequence("Ctrl+G"), [this] { mnuGap_Click(); });
    action(map, "mnuPeri", "Calculate Peri&meter", QKeySequence("Ctrl+M"), [this] { mnuPeri_Click(); });
    // Beyond the classic menu: the closure report with its adjustments and suggestions.
    action(map, "mnuClosureReport", "Closure Report...", QKeySequence("Ctrl+R"), [this] { mnuClosureReport_Click(); });
    separator(map, "sep_map1");
    action(map, "addScale", "Add  Customized &Scale", {}, [this] { addScale_Click(); });
    action(map, "mnuMagnify", "&Magnify", {}, [this] { mnuMagnify_Click(); });

    // --- Help ------------------------------------------------------------------------
    QMenu *help = menuBar()->addMenu("&Help");
    help->setObjectName("helpmenu");
    action(help, "helpsubmenu", "Help...", {}, [this] { helpsubmenu_Click(); });
    action(help, "mnuManual", "Manual...", {}, [this] { mnuManual_Click(); });
    separator(help, "sep_help1");
    for (int n = 1; n <= 6; ++n)
        action(help, qPrintable(QString("demosample%1").arg(n)), qPrintable(QString("Demo Sample &%1").arg(n)), {},
               [this, n] { demosample_Click(n); });
    separator(help, "sep_help2");
    action(help, "mnuAbout", "&About...", {}, [this] { mnuAbout_Click(); });
}

void Plotter::showUnitEntries(bool metric)
{
    // Deeds in chains, links, perches, rods and furlongs are English; yards and
    // hectares belong to the metric mode. Fixed at start-up.
    for (const char *name : {"mnuConvChains", "mnuConvLinks", "mnuConvPerches", "mnuConvRods", "mnuConvFurlongs",
                             "mnuConv", "mnuAcres"})
        findChild<QAction *>(name)->setVisible(!metric);
    for (const char *name : {"mnuConvYards", "mnuHectares"})
        findChild<QAction *>(name)->setVisible(metric);
}

void Plotter::buildToolbar()
{
    QToolBar *bar = addToolBar("Toolbar");
    bar->setObjectName("Toolbar");
    bar->setMovable(false);
    bar->setIconSize(QSize(24, 24));
    // Index 7 (Exit) is reached by no button.
    const char *tips[] = {"Re-draw Map (F8)", "Clear Line (Row)", "Clear All",          "Print Map",
                          "Calculate Area",   "Calculate Perimeter", "Calculate Gap"};
    for (int i = 0; i < 7; ++i) {
        QAction *a = bar->addAction(toolbarIcon(i), tips[i]);
        a->setToolTip(tips[i]);
        a->setObjectName(QString("Toolbar_%1").arg(i));
        QWidget *button = bar->widgetForAction(a);
        button->setObjectName(QString("Toolbar_%1").arg(i));
        // A button takes the focus when clicked, as any control of the window
        // does: the field being typed is left first, so its value is in the
        // table (and checked) before the button's command reads the table.
        button->setFocusPolicy(Qt::ClickFocus);
        // An error inside a button's command ends that command silently.
        connect(a, &QAction::triggered, this, [this, i] { quietly([&] { Toolbar_Click(i); }); });
        m_actions[i] = a;
    }
}

} // namespace quilmar
