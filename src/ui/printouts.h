#pragma once
// The window's two printouts, each one function over a PrintSheet, so the
// print dialog, the print preview and the tests' recorder get the same calls.
//
// The map page (twips from the top-left of the printable area):
//   heading      the property description from (360, 1080), word by word, a new
//                line when a word would pass the page width less 2400 twips
//   north arrow  its foot 780 below the heading, at x = 360 (the arrow's
//                shaft spans x 120..360, its tip 540 above the foot)
//   caption      "Scale = 1:..." two text lines below the arrow's foot
//   map          fitted and centred in the area from 360 below the caption to
//                360 above the reference list (or the bottom), 360 in from
//                either side, by the printing draw of the engine
//   list         the courses in words, two columns, below the map; when its
//                reserved height ((highest \ 2 + 2) lines) passes 4320 twips it
//                goes to a second page under the heading again and a rule as
//                long as the page width less 2520 twips

#include <string>

#include "dialogs.h"
#include "engine.h"

namespace quilmar {

/// "Scale = 1:" and the scale: the scale text's number when it has one
/// ("1000:1" gives 1000), else the part of @p autoScale after its "=" (with its
/// leading space), else nothing; then " (Feet)" or " (Meters)" when the
/// reference-list option is on (nothing for "Other"), deliberately tied to
/// that option.
std::string printedScaleCaption(const std::string &scaleText, const std::string &autoScale, Units units,
                                bool referenceList);

/// Prints the map page(s) for every copy of @p sheet: runs the printing draw
/// of @p engine (its canvas size is put back afterwards; the caller redraws
/// the screen).
void printMapSheets(Engine &engine, PrintSheet &sheet);

/// Prints the data listing: the description, the heading line, the rows up
/// to the highest used row at the fixed columns, and "end".
void printDataSheets(const Engine &engine, PrintSheet &sheet);

} // namespace quilmar
