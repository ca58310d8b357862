// Pictures of the window, its menus, dialogs, the zoom window, the help and
// the printouts, for a person to look at. Runs only when QUILMAR_SCREENSHOTS
// names a folder (best under xvfb-run, where real fonts and styles apply):
//   QUILMAR_SCREENSHOTS=out QT_QPA_PLATFORM=xcb xvfb-run -a \
//       build/tests/ui/quilmar_ui_tests --gtest_filter='Screenshots.*'
// (without QT_QPA_PLATFORM the test main picks the offscreen platform).

#include <cstdlib>
#include <filesystem>

#include <QAction>
#include <QApplication>
#include <QInputDialog>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPrinter>
#include <QTest>
#include <QTextBrowser>
#include <gtest/gtest.h>

#include "plotter.h"
#include "print_options_dialog.h"
#include "qt_dialogs.h"
#include "scripted_dialogs.h"
#include "unit_converter.h"
#include "zoom_form.h"

using namespace quilmar;

namespace {

// Prints to PDF files in the screenshot folder instead of a printer.
class PdfDialogs : public ScriptedDialogs {
public:
    std::string folder;
    int jobs = 0;
    bool print(const std::string &, const Printout &printout) override
    {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(QString::fromStdString(folder + "/printout" + std::to_string(++jobs) + ".pdf"));
        paintOn(printer, printout, 1);
        return true;
    }
};

void save(QWidget *w, const std::string &folder, const char *name)
{
    QTest::qWait(50);
    w->grab().save(QString::fromStdString(folder + "/" + name + ".png"));
}

} // namespace

TEST(Screenshots, WindowMenusDialogsZoomHelpAndPrintouts)
{
    const char *env = std::getenv("QUILMAR_SCREENSHOTS");
    if (!env)
        GTEST_SKIP() << "QUILMAR_SCREENSHOTS not set";
    const std::string out = env;
    std::filesystem::create_directories(out);
    PdfDialogs dialogs;
    dialogs.folder = out;
    Plotter w(dialogs, startupOptionsIn(out + "/", "quilmar", true));
    w.resize(1200, 760);
    w.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&w));
    w.findChild<QAction *>("demosample1")->trigger();
    save(&w, out, "window");
    // The toolbar's icons as a 200 % screen shows them.
    QImage icons(7 * 52, 52, QImage::Format_RGB32);
    icons.fill(Qt::white);
    {
        QPainter p(&icons);
        for (int i = 0; i < 7; ++i)
            p.drawPixmap(2 + 52 * i, 2, w.findChild<QAction *>(qPrintable(QString("Toolbar_%1").arg(i)))->icon().pixmap(48, 48));
    }
    icons.save(QString::fromStdString(out + "/icons200.png"));

    for (const char *name : {"Filemenu", "mnuConversions", "mnuView", "helpmenu"}) {
        QMenu *menu = w.findChild<QMenu *>(name);
        menu->popup(w.mapToGlobal(QPoint(20, 20)));
        save(menu, out, name);
        menu->hide();
    }

    w.findChild<QAction *>("mnuPrintOptions")->trigger();
    save(w.printOptionsDialog(), out, "printoptions");
    w.printOptionsDialog()->close();

    QInputDialog input(&w);
    input.setWindowTitle(QString::fromStdString(std::string(converterTitle())));
    input.setLabelText(QString::fromStdString(converterPrompt(UnitConverter::Chains)));
    input.show();
    save(&input, out, "inputbox");
    input.hide();

    w.findChild<QAction *>("mnuMagnify")->trigger();
    save(w.zoomForm(), out, "zoom");
    w.zoomForm()->hide();

    w.findChild<QAction *>("helpsubmenu")->trigger();
    save(w.helpWindow(), out, "help");
    w.helpWindow()->hide();

    w.FilePrintmap_Click();
    w.FilePrint_Click();
    w.findChild<QAction *>("demosample4")->trigger();
    w.FilePrintmap_Click();
}
