#pragma once
// The subcommands of the `quilmar` command line, one setup function each (see
// cli.h for how the table in cli.cpp uses them).

#include <functional>
#include <map>
#include <string>

#include <CLI/CLI.hpp>

#include "cli.h"

namespace quilmar {

/// A parsed subcommand.
struct Command {
    /// Does the work once the arguments are parsed; returns the exit status.
    std::function<int(CommandIo &)> run;
    /// Words a bad argument (@p problem, e.g. "--scale needs a scale text") the
    /// subcommand's way; returns the exit status.
    std::function<int(const std::string &problem, CommandIo &)> usageError;
    /// For an option given without its value: the problem to hand usageError.
    std::map<std::string, std::string> needs;
};

/// quilmar report [--json] [--scale TEXT] [--units feet|meters|other] [--canvas WxH] FILE.map
Command setupReport(CLI::App &app);
/// quilmar plot [--scale TEXT] [--units U] [--canvas WxH] -o OUT.png|OUT.svg FILE.map
/// quilmar plot --page [--options LIST] [--paper letter|a4] ... -o OUT.pdf FILE.map
/// quilmar plot --data [--paper letter|a4] -o OUT.pdf FILE.map
Command setupPlot(CLI::App &app);
/// quilmar sample N [-o OUT.map]
Command setupSample(CLI::App &app);
/// quilmar closure [--json] FILE.map
Command setupClosure(CLI::App &app);
/// quilmar calc [--json] NAME ANSWER
Command setupCalc(CLI::App &app);
/// quilmar convert FROM FILE.map [-o OUT.map]
Command setupConvert(CLI::App &app);
/// quilmar import [--units feet|meters] [--json] DEED.txt|- [-o OUT.map]
Command setupImport(CLI::App &app);

} // namespace quilmar
