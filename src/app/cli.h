#pragma once
// The `quilmar` command line: one table of subcommands, one parser (CLI11) for
// all of them, `--help` for each. A subcommand writes its standard output and
// standard error into strings, so tests run it without a process; its result
// is the exit status (0 good, 1 bad arguments or a file that cannot be read or
// written, 2 a message the window would show; see each subcommand).
//
// Adding a subcommand (say `closure`):
//   1. write src/app/cli_closure.cpp with one function
//          Command setupClosure(CLI::App &app);
//      that declares the options on @p app (add_option/add_flag into a struct
//      it owns) and returns the Command: `run` does the work once the
//      arguments are parsed, `usageError` words a bad argument;
//   2. declare it in cli_commands.h and add one row to the table in cli.cpp:
//          {"closure", "closure [--json] FILE.map", "Closure analysis of a map file", setupClosure},
//   3. list the file in src/app/CMakeLists.txt.
// The usage text and every `quilmar NAME --help` come from the table.

#include <map>
#include <string>
#include <vector>

namespace quilmar {

using Args = std::vector<std::string>;

/// What a subcommand writes: standard output and standard error (UTF-8).
struct CommandIo {
    std::string out;
    std::string err;
};

/// Runs the command line @p args (without the program name): a subcommand and
/// its arguments; no arguments, "--help", "-h" or "help" print the usage.
/// @returns the exit status; an unknown subcommand gives 1 with the usage
int runCommandLine(const Args &args, CommandIo &io);

/// True when @p word names a subcommand of the table.
bool isSubcommandName(const std::string &word);

/// "usage:" and one line per subcommand, from the table.
std::string usageText();

} // namespace quilmar
