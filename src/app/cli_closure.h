#pragma once
// quilmar closure [--json] FILE.map: the closure report of every lot of a deed.
// Exit status 0, 1 when the map file cannot be read, 2 for bad arguments.

#include <iosfwd>
#include <string>

namespace quilmar {

struct ClosureOptions {
    bool json = false;
    std::string file;
};

/// Opens the map file as "Open File..." does and writes the report to @p out:
/// text, or with `json` the JSON object described in the README.
/// @returns 0, or 1 when the file cannot be read (the reason goes to @p err)
int runClosure(const ClosureOptions &options, std::ostream &out, std::ostream &err);

} // namespace quilmar
