#include "cli_print.h"

#include <QGuiApplication>

#include <memory>

#include "map_printout.h"
#include "paged_output.h"
#include "settings_file.h"
#include "recording_prompter.h"

namespace quilmar {

std::string checkPrintFlags(const PrintFlags &flags)
{
    if (flags.page && flags.data)
        return "give --page or --data, not both";
    if (flags.options && !flags.page)
        return "--options goes with --page";
    if (flags.paperGiven && !flags.page && !flags.data)
        return "--paper goes with --page or --data";
    if (flags.paper != "letter" && flags.paper != "a4")
        return "--paper must be letter or a4, not \"" + flags.paper + "\"";
    return {};
}

std::string parsePrintOptionList(const std::string &list, PrintOptions &options)
{
    options = PrintOptions{0, 0, 0, 0, 0};
    size_t start = 0;
    while (start < list.size()) {
        size_t end = list.find(',', start);
        if (end == std::string::npos)
            end = list.size();
        const std::string word = list.substr(start, end - start);
        start = end + 1;
        if (word == "reference-points")
            options.referencePoints = 1;
        else if (word == "reference-list")
            options.referenceList = 1;
        else if (word == "description")
            options.propertyDescription = 1;
        else if (word == "frame")
            options.frames = 1;
        else if (word == "balance-gap")
            options.balanceGap = 1;
        else if (!word.empty())
            return "unknown print option \"" + word +
                   "\" (choose from reference-points, reference-list, description, frame, balance-gap)";
    }
    return {};
}

int runPrintToPdf(const PrintFlags &flags, const MapCommandOptions &map, CommandIo &io)
{
    std::string &err = io.err;
    std::unique_ptr<QGuiApplication> app;
    if (!QGuiApplication::instance()) {
        static int argc = 1;
        static char name[] = "quilmar";
        static char *argv[] = {name, nullptr};
        app = std::make_unique<QGuiApplication>(argc, argv);
    }
    // The window's settings file beside the program gives the scale bases and
    // the print options (defaults without one); --options overrides the latter.
    const SettingsValues ini =
        readSettings((QCoreApplication::applicationDirPath() + QStringLiteral("/quilmar.ini")).toStdString());
    StartupSettings settings;
    settings.scaleEnglish = ini.scaleEnglish;
    settings.scaleMetric = ini.scaleMetric;
    settings.printOptions = {ini.printOptions[0], ini.printOptions[1], ini.printOptions[2], ini.printOptions[3],
                             ini.printOptions[4]};
    if (flags.options) {
        if (std::string problem = parsePrintOptionList(*flags.options, settings.printOptions); !problem.empty()) {
            err += "quilmar plot: " + problem + "\n";
            return 2;
        }
    }
    RecordingPrompter prompter;
    Engine engine(prompter, settings);
    engine.setCanvasSize(map.canvasWidth, map.canvasHeight);
    if (!engine.openMapFile(map.file, map.overrides).ok()) {
        for (const std::string &m : prompter.take())
            err += m + "\n";
        err += "quilmar plot: cannot read the map file " + map.file + "\n";
        return 1;
    }
    std::string fault;
    const auto paint = [&](Surface &surface, PageSize page) {
        if (flags.data)
            printDataPages(engine, surface, page);
        else
            fault = printMapPage(engine, surface, page);
    };
    QString problem;
    const QPageSize::PageSizeId paper = flags.paper == "a4" ? QPageSize::A4 : QPageSize::Letter;
    const bool written = writePdf(QString::fromStdString(map.output), paper, paint, &problem);
    for (const std::string &m : prompter.take())
        err += "! " + m + "\n";
    if (!fault.empty())
        err += "! " + fault + "\n";
    if (!written) {
        err += "quilmar plot: " + problem.toStdString() + "\n";
        return 1;
    }
    return 0;
}

} // namespace quilmar
