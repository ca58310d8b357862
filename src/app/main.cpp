// The `quilmar` program: without a subcommand, or with a map file, the Plotter
// window; otherwise one of the command line's subcommands.

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "cli.h"
#include "run_window.h"

namespace {

// A lone argument that is no subcommand opens the window when it names a file,
// or looks like a map file name (the window then says "File ... not found.").
bool isMapFileArgument(const std::string &word)
{
    if (quilmar::isSubcommandName(word) || word == "help" || word.empty() || word[0] == '-')
        return false;
    if (std::filesystem::is_regular_file(word))
        return true;
    return word.size() > 4 && (word.compare(word.size() - 4, 4, ".map") == 0 || word.compare(word.size() - 4, 4, ".MAP") == 0);
}

} // namespace

int main(int argc, char *argv[])
{
    using namespace quilmar;
    const Args args(argv + 1, argv + argc);
    if (args.empty())
        return runWindow(argc, argv, {});
    if (args.size() == 1 && isMapFileArgument(args[0]))
        return runWindow(argc, argv, args[0]);
    // Painting text needs a GUI application; without a display it draws offscreen.
    if (args[0] == "plot" && !std::getenv("DISPLAY") && !std::getenv("WAYLAND_DISPLAY") &&
        !std::getenv("QT_QPA_PLATFORM"))
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    CommandIo io;
    const int status = runCommandLine(args, io);
    std::fwrite(io.out.data(), 1, io.out.size(), stdout);
    std::fwrite(io.err.data(), 1, io.err.size(), stderr);
    return status;
}
