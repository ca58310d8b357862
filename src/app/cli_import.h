#pragma once
// quilmar import: a deed's legal description (text) to a map file.
//
//   quilmar import [--units feet|meters] [--json] DEED.txt|- [-o OUT.map]
//
// Writes the map file that "Save As..." would write for the rows read (unit
// digit from the description, or from --units; the "Standard" scale; no
// property description), to OUT.map or to standard output. Each flagged call
// goes to standard error as "line:column: reason: quoted call". --json prints
// the rows with their source spans and the flags instead of the map file
// (the map file is still written when -o is given).
// Exit status: 0 nothing flagged, 3 some call flagged (the file is still
// written), 1 bad arguments, or the text could not be read or the file not
// written.

#include <iosfwd>
#include <string>

namespace quilmar {

struct ImportOptions {
    std::string units;  ///< "", "feet" or "meters"
    bool json = false;
    std::string input;  ///< a file name, or "-" for standard input
    std::string output; ///< -o; empty: standard output
};

/// Runs the import with parsed @p options. @p in is read when options.input
/// is "-". The paste-deed dialog and the tests call the parser directly; this
/// is the command line's part: reading, the map file, the messages.
int runImport(const ImportOptions &options, std::istream &in, std::ostream &out, std::ostream &err);

} // namespace quilmar
