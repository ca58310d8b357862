// quilmar plot: the map canvas as the window shows it after opening a file,
// written as a PNG or SVG picture (15 twips a pixel); with --page or --data the
// printouts as a PDF file.

#include <QGuiApplication>
#include <QString>

#include <memory>

#include "canvas_image.h"
#include "cli_options.h"
#include "cli_print.h"
#include "recording_prompter.h"

namespace quilmar {

namespace {

bool endsWith(const std::string &s, const std::string &suffix)
{
    if (s.size() < suffix.size())
        return false;
    for (size_t i = 0; i < suffix.size(); ++i)
        if (std::tolower(static_cast<unsigned char>(s[s.size() - suffix.size() + i])) != suffix[i])
            return false;
    return true;
}

int usageError(const std::string &problem, CommandIo &io)
{
    io.err += "quilmar plot: " + problem + "\n" + usageText();
    return 2;
}

struct PlotArguments {
    MapArguments map;
    PrintFlags print;
};

int plot(const PlotArguments &raw, CommandIo &io)
{
    std::string &err = io.err;
    MapCommandOptions options;
    std::string problem = checkMapOptions(raw.map, options);
    if (problem.empty())
        problem = checkPrintFlags(raw.print);
    if (problem.empty() && raw.print.options) {
        PrintOptions unused;
        problem = parsePrintOptionList(*raw.print.options, unused);
    }
    if (!problem.empty())
        return usageError(problem, io);
    if (raw.print.page || raw.print.data) {
        if (!endsWith(options.output, ".pdf")) {
            err += "quilmar plot: give the printout with -o OUT.pdf\n";
            return 1;
        }
        return runPrintToPdf(raw.print, options, io);
    }
    const bool svg = endsWith(options.output, ".svg");
    if (options.output.empty() || (!svg && !endsWith(options.output, ".png"))) {
        err += "quilmar plot: give the picture with -o OUT.png or -o OUT.svg\n";
        return 1;
    }
    if (std::string problem = pictureSizeProblem(options.canvasWidth, options.canvasHeight); !problem.empty()) {
        err += "quilmar plot: " + problem + "\n";
        return 1;
    }
    std::unique_ptr<QGuiApplication> app;
    if (!QGuiApplication::instance()) {
        static int argc = 1;
        static char name[] = "quilmar";
        static char *argv[] = {name, nullptr};
        app = std::make_unique<QGuiApplication>(argc, argv);
    }

    RecordingPrompter prompter;
    Engine engine(prompter);
    engine.setCanvasSize(options.canvasWidth, options.canvasHeight);
    if (const OpenOutcome opened = engine.openMapFile(options.file, options.overrides); !opened.ok()) {
        for (const std::string &m : prompter.take())
            err += m + "\n";
        if (!opened.reason.empty() && opened.status != MapReadStatus::NotFound)
            err += "quilmar plot: " + opened.reason + "\n";
        return 1;
    }
    for (const std::string &m : prompter.take())
        err += "! " + m + "\n";
    const QString path = QString::fromStdString(options.output);
    const FileOutcome written = svg ? writeFigureSvg(path, engine.figure(), engine.canvasView(), kCanvasGrey)
                                    : writeFigurePng(path, engine.figure(), engine.canvasView(), kCanvasGrey);
    if (!written.ok) {
        err += "quilmar plot: " + written.error + "\n";
        return 1;
    }
    return 0;
}

} // namespace

Command setupPlot(CLI::App &app)
{
    auto raw = std::make_shared<PlotArguments>();
    Command command;
    addMapOptions(app, raw->map, {"--scale", "--units", "--canvas", "-o"}, command);
    app.add_flag("--page", raw->print.page, "Print the map page to the PDF file -o names");
    app.add_flag("--data", raw->print.data, "Print the data listing to the PDF file -o names");
    app.add_option_function<std::string>(
        "--options", [raw](const std::string &list) { raw->print.options = list; },
        "With --page: the print options that are on, comma-separated (reference-points, reference-list, "
        "description, frame, balance-gap); \"\" turns all off");
    command.needs["--options"] = "--options needs a list (\"\" for none)";
    app.add_option_function<std::string>(
        "--paper", [raw](const std::string &paper) { raw->print.paper = paper; raw->print.paperGiven = true; },
        "The paper of a printout: letter (the default) or a4");
    command.needs["--paper"] = "--paper needs letter or a4";
    command.usageError = usageError;
    command.run = [raw](CommandIo &io) { return plot(*raw, io); };
    return command;
}

} // namespace quilmar
