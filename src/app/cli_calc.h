#pragma once
// The calculator subcommands of the `quilmar` command line: one converter or
// curve calculator of the Conversions menu run on one typed answer, and the
// global conversion of a whole map file to feet (or metres). Like the other
// subcommands they take the arguments after their name and return the exit
// status, writing standard output and standard error into strings.

#include <string>
#include <vector>

namespace quilmar {

/// quilmar calc [--json] NAME ANSWER
///
/// NAME: chains, links, rods, perches, furlongs, varas, yards, feet2meters,
/// meters2feet, arc, chord, angle, tangent, reciprocal. ANSWER is the whole
/// answer typed into the input box, as one argument ("150.35 250.50").
/// Plain output: the new `Acresbox` text + "\n"; a message the window would
/// show goes to @p err (text + "\n") with status 2; an answer that changes
/// nothing (empty, blanks, not a number for a converter) prints nothing, status 0.
/// --json: one object {"acresbox": text|null, "clipboard": text|null,
/// "messages": [texts]} + "\n" on @p out, UTF-8; status 2 when a message was shown.
/// @returns 0, 2 as above; 1 with the usage on @p err for an unknown NAME or a
///          wrong number of arguments
int runCalcCommand(const std::vector<std::string> &args, std::string &out, std::string &err);

/// quilmar convert FROM FILE.map [-o OUT.map]
///
/// Opens FILE.map as "Open File..." does, runs the global conversion FROM
/// (meters, chains or links, rods or perches, furlongs, varas, yards: to feet;
/// feet: to metres) as if the question were answered Yes, selects the unit it
/// selects, and writes the map file that "Save As..." would write: to OUT.map,
/// or to @p out without -o. As with the window, opening keeps the line break
/// before the tail line in the description, so the description gains one trailing
/// line break.
/// @returns 0 on success; 1 with a reason on @p err for bad arguments or a file
///          that cannot be read or written; 2 with the fault's text (e.g.
///          "Type mismatch") on @p err when a cell is not a number, and then
///          nothing is written
int runConvertCommand(const std::vector<std::string> &args, std::string &out, std::string &err);

} // namespace quilmar
