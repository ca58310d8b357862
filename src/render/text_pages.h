#pragma once
// Lines of text printed down the pages of a printer: the data printout. The
// lines are printed a quarter inch in from the left of the printable area and
// half an inch below its top; a line that would end within half an inch of the
// bottom starts a new page.

#include <string>
#include <vector>

#include "print_page.h"
#include "surface.h"

namespace quilmar {

/// The data printout's font: fixed pitch, so that the columns line up.
inline const TextFont kDataFont{"Courier", 12.0f, false};

/// How many characters of the current font's "M" fit across @p page between
/// the margins; at least 1.
int charsPerLine(const Surface &surface, PageSize page);

/// Prints @p lines in the current font, one a text line, starting new pages as
/// they fill. An empty list prints nothing.
/// @returns the number of pages used (1 for an empty list)
int paintTextPages(Surface &surface, PageSize page, const std::vector<std::string> &lines);

} // namespace quilmar
