// The `quilmar` program: the command line's subcommands; the window comes later.

#include <cstdio>
#include <cstdlib>
#include <string>

#include "cli_calc.h"
#include "cli_commands.h"


int main(int argc, char *argv[])
{
    using namespace quilmar;
    Args args(argv + 1, argv + argc);
    if (args.empty() || args[0] == "--help" || args[0] == "-h" || args[0] == "help") {
        std::fputs(usageText().c_str(), stdout);
        return 0;
    }
    const std::string command = args[0];
    args.erase(args.begin());

    std::string out, err;
    int status = 1;
    if (command == "report") {
        status = runReportCommand(args, out, err);
    } else if (command == "plot") {
        // Painting text needs a GUI application; without a display it draws offscreen.
        if (!std::getenv("DISPLAY") && !std::getenv("WAYLAND_DISPLAY") && !std::getenv("QT_QPA_PLATFORM"))
            setenv("QT_QPA_PLATFORM", "offscreen", 1);
        status = runPlotCommand(args, out, err);
    } else if (command == "sample") {
        status = runSampleCommand(args, out, err);
    } else if (command == "calc") {
        status = runCalcCommand(args, out, err);
    } else if (command == "convert") {
        status = runConvertCommand(args, out, err);
    } else {
        err = "quilmar: unknown command \"" + command + "\"\n" + usageText();
    }
    std::fwrite(out.data(), 1, out.size(), stdout);
    std::fwrite(err.data(), 1, err.size(), stderr);
    return status;
}
