#pragma once
// quilmar plot --page / --data: the map printout or the data printout written
// to a PDF file, with no display and no printer.

#include <optional>
#include <string>

#include "cli.h"
#include "cli_options.h"
#include "engine.h"

namespace quilmar {

struct PrintFlags {
    bool page = false;                  ///< --page: the map printout
    bool data = false;                  ///< --data: the data printout
    std::optional<std::string> options; ///< --options LIST ("" is a list: all off)
    std::string paper = "letter";       ///< --paper letter|a4
    bool paperGiven = false;
};

/// Checks that the printout flags go together.
/// @returns an error text, or "" when they are good
std::string checkPrintFlags(const PrintFlags &flags);

/// Reads a print option list: any of reference-points, reference-list,
/// description, frame, balance-gap, comma-separated; the options named are on,
/// the others off ("" turns all off).
/// @returns an error text naming the unknown word, or ""
std::string parsePrintOptionList(const std::string &list, PrintOptions &options);

/// Writes the printout that @p flags chooses for the map file in @p map to the
/// PDF file -o names.
/// @returns the exit status: 0, 1 when the map file cannot be read or the PDF
///          cannot be written, 2 for a bad option list
int runPrintToPdf(const PrintFlags &flags, const MapCommandOptions &map, CommandIo &io);

} // namespace quilmar
