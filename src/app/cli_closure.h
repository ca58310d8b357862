#pragma once
// quilmar closure [--json] FILE.map: the closure report of every lot of a deed.

#include <iosfwd>
#include <string>
#include <vector>

namespace quilmar {

struct ClosureOptions {
    bool json = false;
    std::string file;
};

/// Parses the arguments after "closure". @returns "" or what is wrong with them.
std::string parseClosureArgs(const std::vector<std::string> &args, ClosureOptions &options);

/// Opens the map file as "Open File..." does and writes the report to @p out.
/// @returns 0, or 1 when the file cannot be read (the reason goes to @p err)
int runClosure(const ClosureOptions &options, std::ostream &out, std::ostream &err);

/// The whole subcommand: 0 done, 1 unreadable file, 2 bad arguments.
int runClosureCommand(const std::vector<std::string> &args, std::string &out, std::string &err);

} // namespace quilmar
