// The `quilmar` program: the command line's subcommands; the window comes later.

#include <cstdio>
#include <cstdlib>
#include <string>

#include "cli.h"

int main(int argc, char *argv[])
{
    using namespace quilmar;
    const Args args(argv + 1, argv + argc);
    // Painting text needs a GUI application; without a display it draws offscreen.
    if (!args.empty() && args[0] == "plot" && !std::getenv("DISPLAY") && !std::getenv("WAYLAND_DISPLAY") &&
        !std::getenv("QT_QPA_PLATFORM"))
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    CommandIo io;
    const int status = runCommandLine(args, io);
    std::fwrite(io.out.data(), 1, io.out.size(), stdout);
    std::fwrite(io.err.data(), 1, io.err.size(), stderr);
    return status;
}
