#pragma once
// The printouts and the copied map as the engine runs them: the map page (the
// printing draw through the one walk, painted with the page's additions), the
// data listing, and the double-size draw behind Copy Map to Clipboard. Every
// output goes through a Surface, so the window's printer, a PDF file and a
// test's recorder receive the same calls.

#include <string>
#include <vector>

#include "engine.h"
#include "figure.h"
#include "print_page.h"
#include "surface.h"

namespace quilmar {

/// The reference list's entries: for each row 0 to `highest` - 1 that holds
/// anything, its course label (the course number), two spaces and the course
/// in words; a new-lot row is "New". Reads the courses the last draw computed.
std::vector<std::string> referenceListEntries(const Engine &engine);

/// Prints the map page @p copies times (below 1 counts as 1), each copy from a
/// new page with its own arrow and caption. For each copy the map is fitted to
/// the page's map area (the canvas is set to half the area for the printing
/// draw) and drawn by a printing draw, so reference labels and the balanced
/// gap reach the page. The canvas size (also on a fault) and the surface's
/// font are put back at the end; the engine keeps the printing draw as its
/// last draw, as the canvas shows the printed figure afterwards.
/// @returns "" or the description of a fault that ended the job
std::string printMapPage(Engine &engine, Surface &surface, PageSize page, int copies = 1);

/// The scale caption of the page: the scale text's number, or at a size level
/// the window's AutoScale caption as it stands (never the printing draw's).
std::string printedScaleCaption(const Engine &engine);

/// Prints the data listing in the fixed-pitch font: the description, the
/// heading, the used rows and "end", over as many pages as it takes. The
/// surface's font is put back at the end.
void printDataPages(const Engine &engine, Surface &surface, PageSize page);

/// What Copy Map to Clipboard paints: the figure drawn on a canvas twice the
/// size each way, with that canvas's view (origin and size, twips).
struct CanvasDraw {
    Figure figure;
    CanvasView view;
};

/// Doubles the canvas, draws, keeps that draw, halves the canvas and redraws
/// (as Re-draw Map does), so the engine ends drawn on its own canvas again.
CanvasDraw drawDoubleSize(Engine &engine);

} // namespace quilmar
