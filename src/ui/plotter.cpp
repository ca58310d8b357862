#include "plotter.h"

#include <filesystem>

#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QClipboard>
#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyle>
#include <QTextDocument>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "closure_session.h"
#include "entry_grid.h"
#include "map_canvas.h"
#include "map_file.h"
#include "number_format.h"
#include "typed_number.h"
#include "window_style.h"

namespace quilmar {

namespace {

StartupSettings engineSettings(const StartupOptions &o)
{
    StartupSettings s;
    s.scales = o.settings.scales;
    s.scaleEnglish = o.settings.scaleEnglish;
    s.scaleMetric = o.settings.scaleMetric;
    s.printOptions = {o.settings.printOptions[0], o.settings.printOptions[1], o.settings.printOptions[2],
                      o.settings.printOptions[3], o.settings.printOptions[4]};
    s.englishMeasure = o.englishMeasure;
    return s;
}

const char *const kHeaderHelp =
    "Type the heading (title, description of property, etc.).  The text will be printed on the map. ";

QLabel *resultLabel(const char *name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setAccessibleName(name);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // A result line shows its text as it stands: an answer echoed into it that
    // looks like markup ("<b>45 10 20") is not rendered as markup.
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

Plotter::Plotter(Dialogs &dialogs, const StartupOptions &options, QWidget *parent)
    : QMainWindow(parent), m_dialogs(dialogs), m_options(options), m_engine(dialogs, engineSettings(options))
{
    useWindowStyle();
    setObjectName("Plotter");
    setWindowTitle(Prompter::kTitle);
    setCentralWidget(buildCentral());
    buildMenus();
    buildToolbar();
    fillScalebox();
    // Start-up shows the one pair of area commands that fits the regional measure.
    const bool metric = !options.englishMeasure;
    showUnitEntries(metric);
    selectUnits(metric ? 1 : 0);
    m_scalebox->addItem("Custom");
    // Selecting "Standard" at start-up does not draw: only a user's choice does.
    m_scalebox->setCurrentIndex(2);
    m_engine.setScaleText(m_scalebox->currentText().toStdString());
    Filemenu_Click();
    resize(fontMetrics().averageCharWidth() * 170, fontMetrics().lineSpacing() * 44);
}

Plotter::~Plotter() = default;

QWidget *Plotter::buildCentral()
{
    auto *central = new QWidget(this);
    central->setObjectName("central");
    central->setMouseTracking(true);
    central->installEventFilter(this);

    m_grid = new EntryGrid(m_engine.editTable(), m_dialogs, [this] { draw(); }, central);
    m_grid->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(m_grid, &EntryGrid::comment, this, &Plotter::setComment);

    m_commentbox = resultLabel("Commentbox", central);
    m_commentbox->setWordWrap(true);
    // The help line wraps inside the grid's width instead of widening the column.
    m_commentbox->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_commentbox->setMinimumHeight(fontMetrics().lineSpacing() * 2 + 4);
    m_commentbox->setAlignment(Qt::AlignTop | Qt::AlignLeft);

    m_headerbox = new QPlainTextEdit(central);
    m_headerbox->setObjectName("Headerbox");
    m_headerbox->setAccessibleName("Headerbox");
    m_headerbox->setTabChangesFocus(true);
    m_headerbox->setPlaceholderText(kHeaderHelp);
    m_headerbox->setFixedHeight(fontMetrics().lineSpacing() * 3 + 12);
    m_headerbox->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_headerbox->setAttribute(Qt::WA_Hover);
    m_headerbox->installEventFilter(this);
    m_headerbox->viewport()->installEventFilter(this);
    connect(m_headerbox, &QPlainTextEdit::textChanged, this,
            [this] { m_engine.setDescription(m_headerbox->toPlainText().toStdString()); });

    m_acresbox = resultLabel("Acresbox", central);
    m_acresbox->setFrameShape(QFrame::Panel);
    m_acresbox->setFrameShadow(QFrame::Sunken);
    m_acresbox->setMinimumHeight(fontMetrics().lineSpacing() + 8);
    m_acresbox->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);

    auto *insert = new QPushButton("&Insert a Row", central);
    insert->setObjectName("CommandInsert");
    insert->setToolTip("Insert a row at the current position");
    connect(insert, &QPushButton::clicked, this, [this] {
        m_grid->rules().insertrow();
        m_grid->sync();
    });
    auto *remove = new QPushButton("Remove a Row", central);
    remove->setObjectName("CommandDelete");
    remove->setToolTip("Remove the current row");
    connect(remove, &QPushButton::clicked, this, [this] {
        m_grid->rules().commandDelete();
        m_grid->sync();
    });
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(insert);
    buttons->addWidget(remove);
    buttons->addStretch(1);

    auto *left = new QVBoxLayout;
    left->addWidget(m_grid);
    left->addWidget(m_commentbox);
    left->addWidget(m_headerbox);
    left->addWidget(m_acresbox);
    left->addLayout(buttons);
    left->addStretch(1);

    m_minmap = new MapCanvas(central);

    m_label1 = new QLabel("Scale", central);
    m_label1->setObjectName("Label1");
    m_label1->setAttribute(Qt::WA_Hover);
    m_label1->installEventFilter(this);
    m_scalebox = new QComboBox(central);
    m_scalebox->setObjectName("Scalebox");
    m_scalebox->setAccessibleName("Scale");
    // A classic drop-down combo: the user may type any scale, and the list
    // completes nothing of what is typed. Giving it its own line edit (rather
    // than setEditable) leaves the drop-down list unbuilt until it first opens.
    m_scalebox->setLineEdit(new QLineEdit(m_scalebox));
    m_scalebox->setCompleter(nullptr);
    m_scalebox->setInsertPolicy(QComboBox::NoInsert);
    m_scalebox->setMinimumContentsLength(10);
    m_label1->setBuddy(m_scalebox);
    m_scalebox->lineEdit()->installEventFilter(this);
    m_scalebox->installEventFilter(this); // the box has the focus and hands its keys to its text
    connect(m_scalebox, &QComboBox::editTextChanged, this,
            [this](const QString &t) { m_engine.setScaleText(t.toStdString()); });
    connect(m_scalebox, &QComboBox::activated, this, &Plotter::Scalebox_Click);

    auto *units = new QButtonGroup(this);
    const char *captions[] = {"Feet", "Meters", "Other"};
    auto *scaleRow = new QHBoxLayout;
    scaleRow->addWidget(m_label1);
    scaleRow->addWidget(m_scalebox);
    scaleRow->addSpacing(fontMetrics().averageCharWidth() * 2);
    for (int i = 0; i < 3; ++i) {
        m_metrix[i] = new QRadioButton(captions[i], central);
        m_metrix[i]->setObjectName(QString("metrix_%1").arg(i));
        units->addButton(m_metrix[i], i);
        scaleRow->addWidget(m_metrix[i]);
    }
    connect(units, &QButtonGroup::idClicked, this, &Plotter::metrix_Click);
    scaleRow->addStretch(1);
    m_autoscalebox = resultLabel("Autoscalebox", central);
    scaleRow->addWidget(m_autoscalebox);

    auto *right = new QVBoxLayout;
    right->addWidget(m_minmap, 1);
    right->addLayout(scaleRow);

    auto *main = new QHBoxLayout(central);
    main->addLayout(left, 0);
    main->addLayout(right, 1);

    QWidget *last = m_grid->field({GridRules::kVisibleRows - 1, ColTag});
    for (QWidget *w : std::initializer_list<QWidget *>{m_headerbox, insert, remove, m_scalebox, m_metrix[0],
                                                       m_metrix[1], m_metrix[2]}) {
        setTabOrder(last, w);
        last = w;
    }
    return central;
}

void Plotter::fillScalebox()
{
    m_scalebox->addItems({"Minimum", "Small", "Standard", "Maximum"});
    for (const std::string &item : scaleItems(m_options.settings.scales))
        m_scalebox->addItem(QString::fromStdString(item));
}

// --- results ---------------------------------------------------------------------

void Plotter::setAcres(const QString &text)
{
    m_acresbox->setText(text);
    m_acresbox->setAccessibleDescription(text);
}

void Plotter::setAutoscale(const QString &text)
{
    m_autoscalebox->setText(text);
    m_autoscalebox->setAccessibleDescription(text);
}

void Plotter::setComment(const QString &text)
{
    if (m_commentbox->text() == text)
        return;
    m_commentbox->setText(text);
    m_commentbox->setAccessibleDescription(text);
}

void Plotter::draw()
{
    // The fit follows the canvas's size now, not at the last resize.
    m_engine.setCanvasSize(float(m_minmap->width() * MapCanvas::kTwipsPerPixel),
                           float(m_minmap->height() * MapCanvas::kTwipsPerPixel));
    m_engine.redraw();
    showResults();
}

void Plotter::showResults()
{
    setAcres(QString::fromStdString(m_engine.acresbox()));
    setAutoscale(QString::fromStdString(m_engine.autoscalebox()));
    const CanvasView view = m_engine.canvasView();
    m_minmap->show(&m_engine.figure(), view.scaleLeft, view.scaleTop);
    Filemenu_Click(); // the save shortcuts follow the File menu's enabling
}

// The result-line commands draw too: each fits the map to the canvas as it is now.
// A refusal (the gap not closed) shows its message and changes nothing on the
// window: a canvas or result line emptied since the last draw stays empty.
void Plotter::mnuAcres_Click()
{
    fitToCanvas();
    if (m_engine.mnuAcres_Click())
        showResults();
}

void Plotter::mnuHectares_Click()
{
    fitToCanvas();
    if (m_engine.mnuHectares_Click())
        showResults();
}

void Plotter::mnuGap_Click()
{
    fitToCanvas();
    m_engine.mnuGap_Click();
    showResults();
}

void Plotter::mnuPeri_Click()
{
    fitToCanvas();
    m_engine.mnuPeri_Click();
    showResults();
}

void Plotter::mnuClosureReport_Click()
{
    ClosureSession session(m_engine, [this] {
        m_grid->rules().populatefields();
        m_grid->sync();
        draw();
    });
    if (session.empty()) {
        m_dialogs.message(ClosureSession::kNoLots, Icon::Information);
        return;
    }
    m_dialogs.closureReport(session);
}

// --- toolbar and edit commands ---------------------------------------------------

void Plotter::Toolbar_Click(int index)
{
    GridOutcome out;
    switch (index) {
    case 0:
        out = m_grid->rules().redraw();
        break;
    case 1:
        if (m_grid->rules().clearRow(out)) {
            m_engine.setAcresbox({});
            setAcres({});
        }
        break;
    case 2:
        if (m_grid->rules().clearAll(out)) {
            m_headerbox->clear();
            m_engine.setAcresbox({});
            setAcres({});
            setAutoscale({});
            m_minmap->clear();
            // The rules have scrolled to the top already; the bar only follows.
            const QSignalBlocker block(m_grid->scrollBar());
            m_grid->setScroll(0);
        }
        break;
    case 3:
        FilePrintmap_Click();
        return;
    case 4:
        // Feet give acres; every other unit gives hectares.
        if (m_engine.metricFactor() == 1.0f)
            mnuAcres_Click();
        else
            mnuHectares_Click();
        return;
    case 5:
        mnuPeri_Click();
        return;
    case 6:
        mnuGap_Click();
        return;
    case 7:
        Exitmenu_Click();
        return;
    default:
        return;
    }
    m_grid->apply(out);
}

namespace {

// The Edit menu's commands on either kind of text field of the window.
template <class Field> void runEdit(Field *f, int which)
{
    switch (which) {
    case 0: f->undo(); break;
    case 1: f->cut(); break;
    case 2: f->copy(); break;
    case 3: f->paste(); break;
    default: break;
    }
}

} // namespace

QLineEdit *Plotter::editLine() const
{
    // The grid's field that has the focus (or had it when the menu opened),
    // else the scale box's text while it has the focus.
    if (QLineEdit *f = m_grid->activeField())
        return f;
    const QWidget *focus = QApplication::focusWidget();
    return focus == m_scalebox || focus == m_scalebox->lineEdit() ? m_scalebox->lineEdit() : nullptr;
}

void Plotter::Editmenu_Click()
{
    // The field that has the focus: a grid field, the scale box or the heading box.
    QLineEdit *f = editLine();
    QPlainTextEdit *heading = !f && QApplication::focusWidget() == m_headerbox ? m_headerbox : nullptr;
    const bool selected = f ? f->hasSelectedText() : heading && heading->textCursor().hasSelection();
    const QMimeData *mime = QApplication::clipboard()->mimeData();
    m_paste->setEnabled(mime && mime->hasText());
    m_cut->setEnabled(selected);
    m_copy->setEnabled(selected);
    m_undo->setEnabled(f ? f->isUndoAvailable() : heading && heading->document()->isUndoAvailable());
}

void Plotter::editAction(int which)
{
    if (QLineEdit *f = editLine())
        runEdit(f, which);
    else if (QApplication::focusWidget() == m_headerbox)
        runEdit(m_headerbox, which);
}

// --- scale and units -------------------------------------------------------------

void Plotter::Scalebox_Click(int index)
{
    if (m_scalebox->itemText(index) == "Custom")
        addScale_Click();
    else
        Toolbar_Click(0);
}

void Plotter::addScale_Click()
{
    const auto answer = m_dialogs.inputBox(
        "Enter the customized scale.  For example, if you enter 1000, the system will create a 1000:1 scale.\n\n"
        "The customized scales are deleted when you exit the system.",
        "Customized Scale");
    if (!answer || trimBlanks(*answer).empty())
        return;
    double v = 0.0;
    try {
        v = typedNumber(*answer).value_or(0.0);
    } catch (const VbError &) {
    }
    m_scalebox->insertItem(m_scalebox->count() - 1, QString::fromStdString(generalNumber(v) + ":1"));
    const int index = m_scalebox->count() - 2;
    m_scalebox->setCurrentIndex(index);
    Scalebox_Click(index);
}

void Plotter::metrix_Click(int index)
{
    m_engine.metrix_Click(static_cast<Units>(index));
    // The unit-dependent entries of the Conversions and Map menus stay as the
    // start-up's measurement system set them (showUnitEntries): a later choice of
    // units does not show or hide them.
}

void Plotter::selectUnits(int index)
{
    if (index < 0 || index > 2)
        index = 0;
    m_metrix[index]->setChecked(true);
    metrix_Click(index);
}

// --- files -----------------------------------------------------------------------

void Plotter::Filemenu_Click()
{
    // Nothing can be saved, printed or copied as data before the first computation.
    for (QAction *a : {m_saveAs, m_backup, m_printMap, m_printData, m_copyData})
        a->setEnabled(m_engine.mapComputed());
}

void Plotter::saveit(int mode)
{
    std::string path;
    if (mode == 1) {
        const auto chosen = m_dialogs.fileName(FileMode::Save, "Map data(*.map|*.map", m_options.programFolder);
        if (!chosen)
            return;
        path = withMapExtension(*chosen);
        std::error_code ec;
        if (std::filesystem::exists(path, ec) &&
            m_dialogs.ask("File already exists.  Do you want to overwrite it?", Prompter::kTitle, Buttons::YesNo,
                          Icon::Stop) != Answer::Yes)
            return;
    } else {
        path = backupPath();
    }
    std::string error;
    // A failed write leaves any old file as it was; the command ends without a message.
    if (!writeMapFile(path, m_engine.mapFileBytes(), &error))
        qWarning("quilmar: %s not saved: %s", path.c_str(), error.c_str());
}

void Plotter::clearScreenSide()
{
    m_grid->rules().clearFields();
    m_grid->sync();
    m_headerbox->clear();
    m_engine.setAcresbox({});
    setAcres({});
    setAutoscale({});
    m_minmap->clear();
}

void Plotter::openFile(const std::string &path)
{
    clearScreenSide();
    m_engine.setCanvasSize(float(m_minmap->width() * MapCanvas::kTwipsPerPixel),
                           float(m_minmap->height() * MapCanvas::kTwipsPerPixel));
    if (!m_engine.openMapFile(path).ok())
        return;
    QString description = QString::fromStdString(m_engine.description());
    description.replace("\r\n", "\n");
    const std::string scale = m_engine.scaleText();
    const Units units = m_engine.units();
    m_headerbox->setPlainText(description);
    m_scalebox->setEditText(QString::fromStdString(scale));
    selectUnits(int(units));
    m_grid->rules().scrollTo(0);
    {
        const QSignalBlocker block(m_grid->scrollBar());
        m_grid->setScroll(0);
    }
    m_grid->sync();
    showResults();
}

void Plotter::restoreSession(const std::string &path)
{
    openFile(path);
    QString heading = m_headerbox->toPlainText();
    if (heading.endsWith('\n')) {
        heading.chop(1);
        m_headerbox->setPlainText(heading);
    }
}

void Plotter::fileopen_Click()
{
    for (int r = 0; r < GridRules::kVisibleRows; ++r) {
        if (!m_grid->rules().text({r, ColNS}).empty()) {
            // Cancel does not stop the opening, deliberately; only Yes saves first.
            if (m_dialogs.question("Do you wish to save the data?", Buttons::YesNoCancel, Icon::Question) == Answer::Yes)
                saveit(1);
            break;
        }
    }
    const auto chosen = m_dialogs.fileName(FileMode::Open, "Map data(*.map)|*.map", m_options.programFolder);
    if (chosen)
        openFile(*chosen);
}

// --- closing -----------------------------------------------------------------------

bool Plotter::askToSave()
{
    // Only the top row's N/S field counts as data, deliberately.
    if (m_grid->rules().topRowEmpty())
        return true;
    switch (m_dialogs.question("Do you wish to save the data?", Buttons::YesNoCancel, Icon::Question)) {
    case Answer::Yes:
        saveit(1); // the program ends even when the Save dialog was cancelled
        return true;
    case Answer::No:
        return true;
    default:
        return false;
    }
}

void Plotter::Exitmenu_Click()
{
    if (!askToSave())
        return;
    m_exiting = true;
    close();
}

void Plotter::closeEvent(QCloseEvent *event)
{
    if (m_exiting || askToSave())
        event->accept();
    else
        event->ignore();
}

bool Plotter::eventFilter(QObject *watched, QEvent *event)
{
    // Ctrl+A calculates acres everywhere in the window; it never selects text.
    if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress) {
        auto *k = static_cast<QKeyEvent *>(event);
        if (event->type() == QEvent::ShortcutOverride ? windowShortcut(*k)
                                                       : k->modifiers() == Qt::ControlModifier && k->key() == Qt::Key_A) {
            event->ignore();
            return true;
        }
    }
    if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverMove) {
        if (watched == m_label1)
            setComment("Specify the scale of the mape.");
        else if (watched == m_headerbox)
            setComment(kHeaderHelp);
    } else if (event->type() == QEvent::MouseMove && watched == centralWidget()) {
        setComment({});
    }
    return QMainWindow::eventFilter(watched, event);
}

} // namespace quilmar
