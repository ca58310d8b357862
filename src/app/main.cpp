// The `quilmar` program: the command line's subcommands; the window comes later.

#include <cstdio>
#include <cstdlib>
#include <string>

#ifdef QUILMAR_HAVE_CALC
#include "cli_calc.h"
#endif
#include "cli_commands.h"

namespace quilmar {

std::string usageText()
{
    return "usage:\n"
           "  quilmar report [--json] [--scale TEXT] [--units feet|meters|other] [--canvas WxH] FILE.map\n"
           "  quilmar plot [--scale TEXT] [--units feet|meters|other] [--canvas WxH] -o OUT.png|OUT.svg FILE.map\n"
           "  quilmar sample N [-o OUT.map]\n"
           "  quilmar calc [--json] NAME ANSWER\n"
           "  quilmar convert FROM FILE.map [-o OUT.map]\n";
}

} // namespace quilmar

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
#ifdef QUILMAR_HAVE_CALC
    } else if (command == "calc") {
        status = runCalcCommand(args, out, err);
    } else if (command == "convert") {
        status = runConvertCommand(args, out, err);
#endif
    } else {
        err = "quilmar: unknown command \"" + command + "\"\n" + usageText();
    }
    std::fwrite(out.data(), 1, out.size(), stdout);
    std::fwrite(err.data(), 1, err.size(), stderr);
    return status;
}
