// Pictures of the window, its menus, dialogs, the zoom window, the help and
// the printouts (as PDF files), for a person to look at; not a test, since it
// checks nothing. Best under xvfb-run, where real fonts and styles apply:
//   xvfb-run -a build/tools/quilmar_screenshots out

#include <cstdio>
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

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: quilmar_screenshots FOLDER\n");
        return 2;
    }
    QApplication app(argc, argv);
    const std::string out = argv[1];
    std::filesystem::create_directories(out);
    PdfDialogs dialogs;
    dialogs.folder = out;
    Plotter w(dialogs, startupOptionsIn(out + "/", "quilmar", true));
    w.resize(1200, 760);
    w.show();
    if (!QTest::qWaitForWindowExposed(&w)) {
        std::fprintf(stderr, "quilmar_screenshots: the window was never shown\n");
        return 1;
    }
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
    return 0;
}
