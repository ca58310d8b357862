// The window's menus, toolbar and commands (offscreen platform), every
// question answered by ScriptedDialogs.

#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QMenuBar>
#include <QPageLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTextBrowser>
#include <QToolBar>

#include "map_canvas.h"
#include "print_options_dialog.h"
#include "printouts.h"
#include "qt_dialogs.h"
#include "window_fixture.h"
#include "zoom_form.h"

using namespace quilmar;
namespace fs = std::filesystem;

namespace {

class Commands : public test::WindowTest {};

// One menu as "name|caption|shortcut" lines, "-" for a separator (with "(hidden)" when hidden).
std::vector<std::string> entries(QMenu *menu)
{
    std::vector<std::string> out;
    for (QAction *a : menu->actions()) {
        QString line = a->isSeparator() ? "-" : a->objectName() + "|" + a->text() + "|" + a->shortcut().toString();
        out.push_back((line + (a->isVisible() ? "" : " (hidden)")).toStdString());
    }
    return out;
}

} // namespace

TEST_F(Commands, TheMenuTreeWithNamesCaptionsShortcutsAndHiddenEntries)
{
    const std::vector<std::pair<const char *, std::vector<std::string>>> menus = {
        {"Filemenu",
         {"mnuNew|&New|", "fileopen|Open &File...|Ctrl+F", "Filesave|&Save As...|Ctrl+S",
          "mnuBackup|Quick &Backup|Ctrl+B", "-", "mnuPrintOptions|Print &Options...|Ctrl+O",
          "FilePrintmap|&Print Map...|Ctrl+P", "FilePrint|Print &Data...|Ctrl+D",
          "FilePreviewmap|Print Pre&view...|", "FilePreviewdata|Print Preview of Dat&a...|",
          "Fileprinttext|Cop&y Data to Clipboard|Ctrl+Y", "filemakebmp|Copy Map to Clipboard (bmp)|",
          "- (hidden)", "mnuSetup|Set&up...| (hidden)", "-", "Exitmenu|E&xit |"}},
        {"Editmenu",
         {"EditUndo|&Undo|Ctrl+Z", "-", "Editcut|Cu&t|Ctrl+X", "Editcopy|&Copy|Ctrl+C", "Editpaste|&Paste|Ctrl+V",
          "-", "mnuDeleteEntry|&Delete Active Entry|Shift+Del", "mnuDeleteAll|Delete &ALL Entries|", "-",
          "mnuPasteDeed|Paste D&eed Text...|Ctrl+Shift+V"}},
        {"mnuConversions",
         {"mnuConvChains|Chains|", "mnuConvLinks|Links|", "mnuConvRods|Rods|", "mnuConvPerches|Perches|",
          "mnuConvFurlongs|Furlongs|", "mnuVaras|Varas|", "mnuConvYards|Yards| (hidden)",
          "mnuFeet2Meters|Feet to Meters|", "mnuMeters2Feet|Meters to Feet|", "-",
          "mnuConv|Shortcut Conversion (Chains/Links)|Ctrl+F5", "mnuConv2|Shortcut Conversion (Perches, Rods)|Ctrl+F7",
          "mnuConv3|Shortcut Conversion (Varas)|Ctrl+F8", "-", "mnuReciprocal|Reciprocal Angle|",
          "mnuConvArc|Give me Arc|", "mnuConvChord|Give me Chord|", "mnuConvAngle|Give me Angle|",
          "mnuConvTangent|Chord Angle - Tangent |", "-", "mnuGlobalconv|Global Conversion|"}},
        {"mnuGlobalconv",
         {"mnuGlobal1|From Feet to Meters|", "mnuGlobal2_0|From Meters to Feet|",
          "mnuGlobal2_1|From Chains/Links to Feet|", "mnuGlobal2_2|From Rods or Perches to Feet|",
          "mnuGlobal2_3|From Furlongs to Feet|", "mnuGlobal2_4|From Varas to Feet|",
          "mnuGlobal2_5|From Yards to Feet|"}},
        {"mnuPopUp",
         {"mnuPopup1|&None (Clear)|", "mnuPopup2|Point of &Beginning (POB)|", "mnuPopup3|Back to POB (&Close)|",
          "mnuPopup4|&New Lot|", "mnuPopUp5|Point of &Origin|"}},
        {"mnuView",
         {"mnuRedraw|&Re-draw Map|F8", "mnuAcres|Calculate &Acres|Ctrl+A", "mnuHectares|Calculate &Hectares|Ctrl+H (hidden)",
          "mnuGap|Calculate &Gap|Ctrl+G", "mnuPeri|Calculate Peri&meter|Ctrl+M", "mnuClosureReport|Closure Report...|Ctrl+R", "-",
          "addScale|Add  Customized &Scale|", "mnuMagnify|&Magnify|"}},
        {"helpmenu",
         {"helpsubmenu|Help...|", "mnuManual|Manual...|", "-", "demosample1|Demo Sample &1|",
          "demosample2|Demo Sample &2|", "demosample3|Demo Sample &3|", "demosample4|Demo Sample &4|",
          "demosample5|Demo Sample &5|", "demosample6|Demo Sample &6|", "-", "mnuAbout|&About...|"}},
    };
    for (const auto &[name, expected] : menus) {
        QMenu *menu = w->findChild<QMenu *>(name);
        ASSERT_NE(menu, nullptr) << name;
        EXPECT_EQ(entries(menu), expected) << name;
    }
    // The bar: the tag menu is one of its menus but never shown there.
    QStringList bar;
    for (QAction *a : w->menuBar()->actions())
        bar << a->text() + (a->isVisible() ? "" : " (hidden)");
    EXPECT_EQ(bar.join(","), "&File,&Edit,C&onversions,Popup (hidden),&Map,&Help");
    // Two entries on one shortcut would leave both dead: every shortcut is one entry's.
    QHash<QString, QString> owner;
    for (QAction *a : w->findChildren<QAction *>()) {
        const QString key = a->shortcut().toString();
        if (!key.isEmpty()) {
            EXPECT_FALSE(owner.contains(key)) << qPrintable(key) << ": " << qPrintable(owner[key]) << ", "
                                              << qPrintable(a->objectName());
        }
        owner[key] = a->objectName();
    }

    // The metric mode shows the other unit entries.
    start(false);
    for (const char *name : {"mnuConvChains", "mnuConvLinks", "mnuConvRods", "mnuConvPerches", "mnuConvFurlongs",
                             "mnuConv", "mnuAcres"})
        EXPECT_FALSE(action(name)->isVisible()) << name;
    for (const char *name : {"mnuConvYards", "mnuHectares", "mnuVaras", "mnuConv2", "mnuConv3"})
        EXPECT_TRUE(action(name)->isVisible()) << name;
}

TEST_F(Commands, ToolbarButtonsZeroToSixWithTheirTooltips)
{
    auto *bar = w->findChild<QToolBar *>("Toolbar");
    QStringList tips;
    for (QAction *a : bar->actions()) {
        tips << a->toolTip();
        EXPECT_FALSE(a->icon().pixmap(48, 48).isNull()); // the vector icon renders at 200 %
    }
    EXPECT_EQ(tips.join("|"), "Re-draw Map (F8)|Clear Line (Row)|Clear All|Print Map|Calculate Area|"
                              "Calculate Perimeter|Calculate Gap");

    // Button 0 checks the current row before it draws; the Re-draw Map entry (F8) only draws.
    click(field(0, 2));
    type("45");
    click(field(0, 6));
    trigger("mnuRedraw");
    EXPECT_TRUE(dialogs.asked.empty());
    EXPECT_TRUE(w->engine().mapComputed());
    w->Toolbar_Click(0);
    EXPECT_EQ(dialogs.texts(), std::vector<std::string>{"Please specify the North-South direction."});

    // A click on a button leaves the field being typed first: its value is drawn.
    start(true);
    click(field(0, ColNS));
    type("N");
    click(field(0, ColDistance));
    type("250");
    click(w->findChild<QToolBar *>("Toolbar")->widgetForAction(action("Toolbar_0")));
    EXPECT_EQ(cell(0, ColDistance), "250");
    ASSERT_FALSE(w->engine().legs().empty());
    EXPECT_FLOAT_EQ(w->engine().legs()[0].distance, 250);

    // Button 4 gives acres with feet and hectares with metres.
    trigger("demosample4");
    w->Toolbar_Click(4);
    EXPECT_NE(acres().find("acres"), std::string::npos) << acres();
    start(false);
    trigger("demosample4");
    w->Toolbar_Click(4);
    EXPECT_NE(acres().find("Square Meters"), std::string::npos) << acres();
    // Every command that draws fits the map to the canvas as it is now, after a resize too.
    auto *canvas = child<MapCanvas>("minmap");
    for (const char *entry : {"mnuGap", "mnuPeri", "mnuHectares", "mnuRedraw"}) {
        w->resize(w->width() + 40, w->height() + 30);
        QApplication::processEvents();
        trigger(entry);
        EXPECT_EQ(w->engine().canvasView().width, float(canvas->width() * MapCanvas::kTwipsPerPixel)) << entry;
        EXPECT_EQ(w->engine().canvasView().height, float(canvas->height() * MapCanvas::kTwipsPerPixel)) << entry;
    }
    // Button 3 prints the map.
    dialogs.printAnswers = {false};
    w->Toolbar_Click(3);
    EXPECT_EQ(dialogs.printJobs, std::vector<std::string>{"print Quilmar map"});
}

TEST_F(Commands, ConvertersAndCalculatorsAskAndShowTheirResults)
{
    // answer nullptr: Cancel; acresbox and clipboard nullptr: left as they were; message nullptr: none.
    const struct { const char *entry, *answer, *title, *acresbox, *clipboard, *message; } cases[] = {
        {"mnuConvChains", "10.05", "Conversion", "10.05 Chains = 663.3 feet", "663.3", nullptr},
        {"mnuVaras", "1", "Conversion", "1 Varas = 2.7778 feet", "2.7778", nullptr},
        {"mnuFeet2Meters", "3.281", "Conversion", "3.281 Feet = 1.0 Meters", "1.0", nullptr},
        {"mnuMeters2Feet", "   ", "Conversion", nullptr, nullptr, nullptr},
        {"mnuConvArc", "100 50", "Give me Arc", "Arc Length  = 157.0796", "157.0796", nullptr},
        {"mnuConvChord", "157.0796 50", "Give me Chord", "Chord  = 100.0", "100.0", nullptr}, // 100 sin(pi / 2)
        {"mnuConvChord", nullptr, "Give me Chord", nullptr, nullptr, nullptr},
        {"mnuConvAngle", "50 26.96", "Conversion", "Angle = 106\u00B0 15' 38.617''", nullptr, nullptr},
        {"mnuReciprocal", "45 10 20", "Reciprocal Angle", "Reciprocal of 45 10 20 = 44  49  40", nullptr, nullptr},
        {"mnuReciprocal", "91 0 0", "Reciprocal Angle", nullptr, nullptr, "Incorrect Input"},
        // the answer is shown as typed, even when it looks like markup
        {"mnuReciprocal", "<b>45 10 20", "Reciprocal Angle", "Reciprocal of <b>45 10 20 = 89  49  40", nullptr, nullptr},
    };
    // What the result line shows, as the user would select and copy it.
    auto shownAcres = [this] {
        auto *box = child<QLabel>("Acresbox");
        box->setSelection(0, int(box->text().size()));
        return box->selectedText().toStdString();
    };
    for (const auto &c : cases) {
        child<QLabel>("Acresbox")->setText("before");
        QApplication::clipboard()->setText("before");
        dialogs.titles.clear();
        dialogs.inputs = {c.answer ? std::optional<std::string>(c.answer) : std::nullopt};
        trigger(c.entry);
        ASSERT_EQ(dialogs.titles.size(), 1u) << c.entry;
        EXPECT_EQ(dialogs.titles[0], c.title) << c.entry;
        EXPECT_EQ(acres(), c.acresbox ? c.acresbox : "before") << c.entry;
        EXPECT_EQ(shownAcres(), acres()) << c.entry;
        EXPECT_EQ(clipboard(), c.clipboard ? c.clipboard : "before") << c.entry;
        EXPECT_EQ(dialogs.texts(), c.message ? std::vector<std::string>{c.message} : std::vector<std::string>{}) << c.entry;
    }
    EXPECT_EQ(dialogs.prompts.back(),
              "Enter angle (degrees, minutes, seconds) in the following format: dd mm ss.  Example 45 10 20");
}

TEST_F(Commands, ShortcutConversionRewritesTheFocusedField)
{
    field(0, 6)->setFocus();
    QTest::keyClick(field(0, 6), '1');
    trigger("mnuConv3");
    EXPECT_EQ(field(0, 6)->text(), "2.7778");
    trigger("mnuConv");
    EXPECT_EQ(field(0, 6)->text(), "183.3348");
    field(0, 6)->setText("abc");
    w->grid().rules().setText({0, 6}, "abc");
    trigger("mnuConv2");
    EXPECT_EQ(field(0, 6)->text(), "abc");
    EXPECT_TRUE(dialogs.asked.empty());
}

TEST_F(Commands, GlobalConversionAsksConvertsRefreshesAndSelectsTheUnit)
{
    start(false); // metric
    load(test::makeTable({{"", "", "", "", "", "100", "", "10", "", ""}}));

    dialogs.answers = {Answer::No};
    trigger("mnuGlobal2_0");
    EXPECT_EQ(dialogs.texts(), std::vector<std::string>{"This function will convert the entire table from Meters "
                                                        "to Feet.  OK to proceed?"});
    EXPECT_EQ(field(0, 6)->text(), "100");

    const bool drawnBefore = w->engine().mapComputed();
    dialogs.answers = {Answer::Yes};
    trigger("mnuGlobal2_0");
    EXPECT_EQ(field(0, 6)->text(), "328.1");
    EXPECT_EQ(field(0, 8)->text(), "32.81");
    EXPECT_TRUE(w->findChild<QRadioButton *>("metrix_0")->isChecked());
    EXPECT_EQ(w->engine().units(), Units::Feet);
    EXPECT_EQ(w->engine().mapComputed(), drawnBefore); // no redraw

    // Only the length fields are refreshed: degrees being typed (not yet stored) stay.
    field(2, 2)->setFocus();
    QTest::keyClicks(field(2, 2), "45");
    ASSERT_EQ(field(2, 2)->text(), "45");
    dialogs.answers = {Answer::Yes};
    trigger("mnuGlobal1");
    EXPECT_EQ(field(0, 6)->text(), "100");
    EXPECT_EQ(field(2, 2)->text(), "45");
    EXPECT_EQ(w->engine().units(), Units::Meters);

    // A cell that is not a number ends the conversion with its own message.
    dialogs.asked.clear();
    w->engine().editTable().at(1, ColDistance) = Cell(std::string("abc"));
    dialogs.answers = {Answer::Yes};
    trigger("mnuGlobal2_5");
    const auto texts = dialogs.texts();
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_EQ(texts[1], "Type mismatch");
    EXPECT_EQ(w->engine().units(), Units::Meters);
}

TEST_F(Commands, PrintOptionsDialogReloadsAndOnlyOkKeepsTheChoice)
{
    trigger("mnuPrintOptions");
    PrintOptionsDialog *d = w->printOptionsDialog();
    ASSERT_NE(d, nullptr);
    QStringList captions;
    for (int i = 0; i < 5; ++i)
        captions << d->check(i)->text() + "=" + QString::number(d->check(i)->isChecked());
    EXPECT_EQ(captions.join(","), "Reference Points=1,Reference List=1,Property Description=1,Frame=0,Balance Gap=0");

    d->check(4)->setChecked(true);
    QTest::mouseClick(d->findChild<QPushButton *>("OKButton_1"), Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_EQ(w->engine().printOptions().balanceGap, 0);

    trigger("mnuPrintOptions");
    d = w->printOptionsDialog();
    EXPECT_FALSE(d->check(4)->isChecked());
    d->check(4)->setChecked(true);
    d->check(0)->setChecked(false);
    QTest::mouseClick(d->findChild<QPushButton *>("OKButton_0"), Qt::LeftButton);
    EXPECT_EQ(w->engine().printOptions().balanceGap, 1);
    EXPECT_EQ(w->engine().printOptions().referencePoints, 0);
    trigger("mnuPrintOptions");
    EXPECT_TRUE(w->printOptionsDialog()->check(4)->isChecked());
    EXPECT_FALSE(w->printOptionsDialog()->check(0)->isChecked());
}

TEST_F(Commands, PrintMapAndDataThroughThePrintDialog)
{
    trigger("demosample1");
    dialogs.printAnswers = {false};
    trigger("FilePrintmap");
    EXPECT_TRUE(dialogs.printed.calls().empty()); // cancelled: nothing printed

    dialogs.copies = 2;
    trigger("FilePrintmap");
    EXPECT_EQ(dialogs.printedPages, 2); // each copy its own page
    // The sample's own page: its heading, a bearing of its reference list.
    EXPECT_EQ(test::callsContaining(dialogs.printed, "Scale = 1:").size(), 2u);
    EXPECT_TRUE(printedText("TANGENTS"));
    EXPECT_TRUE(printedText("N 45\xC2\xB0 E 1000"));
    EXPECT_TRUE(w->engine().mapComputed());

    dialogs.copies = 1;
    // The visible fields are read first: a chord still being typed is printed.
    field(0, 7)->setFocus();
    QTest::keyClicks(field(0, 7), "4321");
    trigger("FilePrint");
    EXPECT_TRUE(printedText("Distance"));
    EXPECT_TRUE(printedText("4321"));
    EXPECT_TRUE(printedText("end"));

    trigger("FilePreviewmap");
    trigger("FilePreviewdata");
    EXPECT_EQ(dialogs.printJobs, (std::vector<std::string>{"print Quilmar map", "print Quilmar map",
                                                           "print Quilmar data", "preview Quilmar map",
                                                           "preview Quilmar data"}));
}

TEST_F(Commands, ClipboardTextAndDoubleSizeBitmap)
{
    trigger("demosample6");
    trigger("Fileprinttext");
    EXPECT_EQ(clipboard(), "S 100\r\nS 45\xC2\xB0 E 75\r\nNew\r\nS 45\xC2\xB0 W 75\r\n Back to pob\r\n");

    // The doubled canvas put back afterwards is the engine's tests' concern.
    auto *canvas = w->findChild<MapCanvas *>("minmap");
    trigger("filemakebmp");
    const QImage image = QApplication::clipboard()->image();
    ASSERT_FALSE(image.isNull());
    EXPECT_EQ(image.width(), 2 * canvas->width());
    EXPECT_EQ(image.height(), 2 * canvas->height());
    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::white));
}

TEST_F(Commands, HelpManualSamplesAndAbout)
{
    trigger("helpsubmenu");
    ASSERT_NE(w->helpWindow(), nullptr);
    EXPECT_TRUE(w->helpWindow()->isVisible());
    EXPECT_TRUE(w->helpWindow()->toPlainText().contains("Shortcut Conversion (Chains/Links)"));

    const std::string manual = (dir / "manual.rtf").string(), missing = "Cannot find " + manual + " file.";
    trigger("mnuManual");
    ASSERT_EQ(dialogs.asked.size(), 1u);
    EXPECT_EQ(dialogs.asked[0].icon, Icon::None);
    EXPECT_EQ(dialogs.texts(), std::vector<std::string>{missing});
    folder.write("manual.rtf", "{\\rtf1 x}");
    std::string opened;
    w->openWithDesktop = [&](const std::string &p) { return opened = p, true; };
    trigger("mnuManual");
    EXPECT_EQ(opened, manual);
    w->openWithDesktop = [](const std::string &) { return false; };
    trigger("mnuManual");
    EXPECT_EQ(dialogs.texts(), std::vector<std::string>{missing});

    // A sample replaces a longer table without a question, and draws.
    w->engine().editTable().at(40, ColDistance) = Cell(std::string("5"));
    w->grid().setScroll(30);
    trigger("demosample2");
    EXPECT_TRUE(dialogs.asked.empty());
    EXPECT_EQ(w->engine().table().at(40, ColDistance).text(), "");
    EXPECT_EQ(field(0, 1)->text(), "S");
    EXPECT_EQ(field(5, 7)->text(), "300");
    EXPECT_EQ(w->grid().scrollBar()->value(), 0);
    EXPECT_TRUE(w->findChild<QPlainTextEdit *>("Headerbox")->toPlainText().startsWith("This is a sample map."));
    EXPECT_TRUE(w->engine().mapComputed());
    EXPECT_EQ(w->engine().scaleText(), "Standard");

    trigger("mnuAbout");
    ASSERT_EQ(dialogs.asked.size(), 1u);
    EXPECT_NE(dialogs.asked[0].text.find("Quilmar Deed Plotter\r\nVersion "), std::string::npos);
}

TEST_F(Commands, ZoomWindowDrawsRedrawsAndScrolls)
{
    trigger("demosample5");
    trigger("mnuMagnify");
    ZoomForm *z = w->zoomForm();
    ASSERT_NE(z, nullptr);
    EXPECT_TRUE(z->isVisible());
    EXPECT_FALSE(z->isModal());
    EXPECT_FALSE(z->picture()->isBlank());
    const float fitted = z->scaleFactor();
    ASSERT_GT(fitted, 0.0f);

    const struct { bool button; std::optional<std::string> answer; double m; } cases[] = {
        {true, std::nullopt, 0.95}, {true, "6.3", 1.0}, {false, "", 0.95}, {false, "2", 2.0}};
    for (const auto &c : cases) {
        dialogs.inputs = {c.answer};
        if (c.button)
            QTest::mouseClick(z->findChild<QPushButton *>("Redraw"), Qt::LeftButton);
        else
            z->mnuRedraw_Click();
        EXPECT_NEAR(z->scaleFactor(), fitted / 0.95 * c.m, fitted * 1e-5) << c.m;
    }
    EXPECT_EQ(dialogs.prompts[0], ZoomForm::kButtonPrompt);
    EXPECT_EQ(dialogs.prompts[2], ZoomForm::kMenuPrompt);

    z->hScroll()->setSliderDown(true);
    z->hScroll()->setValue(1500);
    EXPECT_EQ(z->pictureOffset().x(), -1500);
    z->hScroll()->setSliderDown(false);
    EXPECT_EQ(z->pictureOffset().x(), -1440); // released: 60 twips back
    z->vScroll()->setValue(3000);
    EXPECT_EQ(z->pictureOffset().y(), -2940);

    trigger("mnuMagnify"); // the same window again
    EXPECT_EQ(w->zoomForm(), z);
    EXPECT_TRUE(dialogs.asked.empty());

    // The bars' maximum, 0.7 of twice the screen's height, is a 16-bit integer:
    // a taller screen faults when the window is made, and the window stays.
    const struct { float screenTwips; bool overflow; } screens[] = {{11520, false}, {23405, false}, {23406, true}};
    for (const auto &s : screens) {
        dialogs.asked.clear();
        ZoomForm tall(w->engine(), dialogs, w.get(), s.screenTwips);
        EXPECT_EQ(dialogs.texts(), s.overflow ? std::vector<std::string>{"Overflow"} : std::vector<std::string>{})
            << s.screenTwips;
        if (s.overflow && !dialogs.asked.empty()) {
            EXPECT_EQ(dialogs.asked[0].icon, Icon::Exclamation);
        }
        EXPECT_EQ(tall.pictureSide(), 2 * s.screenTwips);
    }
    dialogs.asked.clear();

    // The zoom draws the courses of the main window's last computation: a table
    // cleared since (Clear All does not draw) still shows the old map there.
    dialogs.answers = {Answer::Ok};
    w->Toolbar_Click(2);
    dialogs.asked.clear();
    z->Form_Activate();
    EXPECT_NEAR(z->scaleFactor(), fitted, fitted * 1e-5);

    // Its drawing leaves the point of beginning and the scale factor it computed
    // until the main window draws again: Calculate Acres measures the main
    // canvas's end against the zoom's point of beginning first.
    load(test::makeTable({{"N", "0", "", "", "E", "100", "", "", "", "B"},
                          {"N", "90", "", "", "E", "100", "", "", "", ""},
                          {"S", "0", "", "", "E", "100", "", "", "", ""},
                          {"S", "90", "", "", "W", "100", "", "", "", ""},
                          {"N", "0", "", "", "E", "100", "", "", "", ""}}));
    trigger("mnuRedraw");
    z->Form_Activate();
    EXPECT_EQ(w->engine().scaleFactor(), z->scaleFactor());
    trigger("mnuAcres");
    EXPECT_EQ(dialogs.texts(), std::vector<std::string>{"Before you can calculate the acreage, please close the gap.  "
                                                        "Click on Calc Gap button to see gap information."});
    trigger("mnuRedraw");
    trigger("mnuAcres");
    EXPECT_EQ(acres(), "0.23 acres [10,000.00 sq ft]");
}

TEST_F(Commands, TheMapPrintoutAsAPdfReadBack)
{
    trigger("demosample4");
    const fs::path pdf = dir / "map.pdf";
    std::string error;
    const QPageLayout letter(QPageSize(QPageSize::Letter), QPageLayout::Portrait, QMarginsF(0.25, 0.25, 0.25, 0.25),
                             QPageLayout::Inch);
    ASSERT_TRUE(writePrintoutPdf(QString::fromStdString(pdf.string()), letter,
                                 [this](PrintSheet &sheet) { printMapSheets(w->engine(), sheet); }, 1, error)) << error;
    const std::string command = "pdftotext " + pdf.string() + " " + (dir / "map.txt").string();
    ASSERT_EQ(std::system(command.c_str()), 0);
    const std::string text = test::fileBytes(dir / "map.txt");
    EXPECT_NE(text.find("Scale = 1:"), std::string::npos) << text;
    EXPECT_NE(text.find("E 1000"), std::string::npos);
    // A folder that does not exist: a reason, no file.
    EXPECT_FALSE(writePrintoutPdf(QString::fromStdString((dir / "none" / "x.pdf").string()), letter,
                                  [](PrintSheet &) {}, 1, error));
    EXPECT_FALSE(error.empty());
}

// A menu shortcut wins over the text field that has the focus: Ctrl+Y copies
// the data rather than redoing a typed text, Ctrl+A in the scale box calculates
// acres rather than selecting, Shift+Del in the heading clears the current row
// rather than cutting.
TEST_F(Commands, MenuShortcutsWinOverTheFocusedField)
{
    QWidget *fields[] = {field(1, 1), field(1, 6), field(9, 10), child<QComboBox>("Scalebox")->lineEdit(),
                         child<QPlainTextEdit>("Headerbox")};
    for (QWidget *f : fields) {
        f->setFocus();
        f = QApplication::focusWidget(); // the scale box takes the keys of its text
        for (QAction *a : w->findChildren<QAction *>()) {
            const QKeySequence key = a->shortcut();
            if (key.isEmpty())
                continue;
            QKeyEvent e(QEvent::ShortcutOverride, key[0].key(), key[0].keyboardModifiers());
            QApplication::sendEvent(f, &e);
            EXPECT_FALSE(e.isAccepted()) << qPrintable(f->objectName()) << " took " << qPrintable(key.toString());
        }
    }
    closeTagMenu(); // the tag field's focus opened it
    trigger("demosample6");
    click(field(1, 6));
    QApplication::clipboard()->clear();
    QTest::keyClick(field(1, 6), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "S 100\r\nS 45\xC2\xB0 E 75\r\nNew\r\nS 45\xC2\xB0 W 75\r\n Back to pob\r\n");

    // The Edit keys reach the scale box through the Edit menu.
    auto *scale = child<QComboBox>("Scalebox");
    scale->setFocus();
    scale->lineEdit()->selectAll();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "Standard");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(acres(), "0.06 acres [2,651.65 sq ft]");
    auto *heading = child<QPlainTextEdit>("Headerbox");
    heading->setFocus();
    heading->selectAll();
    dialogs.answers = {Answer::Cancel};
    QTest::keyClick(heading, Qt::Key_Delete, Qt::ShiftModifier);
    EXPECT_EQ(dialogs.texts(), std::vector<std::string>{"Are you sure you want to clear the entries of the current line?"});
    EXPECT_TRUE(heading->toPlainText().startsWith("This is a sample of a lot"));
}
