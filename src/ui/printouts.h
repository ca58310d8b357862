#pragma once
// The window's two printouts over a PrintSheet, so the print dialog, the print
// preview and the tests' recorder get the same calls. The page itself (heading,
// north arrow, caption, map, reference list, their places on Letter and A4) is
// laid out by the printed page of src/render and run by src/engine's printouts.

#include "dialogs.h"
#include "engine.h"

namespace quilmar {

/// Prints the map page(s) for every copy of @p sheet through the printing draw
/// of @p engine (its canvas size is put back afterwards; the caller redraws
/// the screen).
/// @returns "" or the description of a fault that ended the job
std::string printMapSheets(Engine &engine, PrintSheet &sheet);

/// Prints the data listing: the description, the heading line, the rows up
/// to the highest used row at the fixed columns, and "end".
void printDataSheets(const Engine &engine, PrintSheet &sheet);

} // namespace quilmar
