#pragma once
// The subcommands of the `quilmar` command line. Each takes the arguments after
// its name and writes its standard output and standard error into strings, so
// that tests run them without a process; the return value is the exit status.

#include <string>
#include <vector>

namespace quilmar {

using Args = std::vector<std::string>;

/// quilmar report [--json] [--scale TEXT] [--units feet|meters|other] [--canvas WxH] FILE.map
int runReportCommand(const Args &args, std::string &out, std::string &err);
/// quilmar plot [--scale TEXT] [--units U] [--canvas WxH] -o OUT.png|OUT.svg FILE.map
int runPlotCommand(const Args &args, std::string &out, std::string &err);
/// quilmar sample N [-o OUT.map]
int runSampleCommand(const Args &args, std::string &out, std::string &err);

/// The usage text.
std::string usageText();

} // namespace quilmar
