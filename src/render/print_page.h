#pragma once
// The printed map page: the property description as a heading, the north
// arrow, the scale caption, the map (the figure a printing draw produced, on
// the same Surface as the screen's) and the reference list, which moves to a
// second page when it needs more room than the first page keeps for it.
//
// Page positions are twips measured from the top-left corner of the printer's
// printable area, x to the right, y down the page. North is always the top of
// the page. The page's fixed points (all twips):
//
//   text origin       (360, 1080)  a quarter inch in, three quarters of an inch down
//   heading           from the text origin, 12 pt bold, wrapped word by word when a
//                     word would pass the page width less 2400 twips
//   north arrow       its tip 240 below the heading (at the text origin without one),
//                     its foot 540 below the tip, at the left edge of the area
//   scale caption     7.8 pt, two empty caption lines below the arrow's foot
//   map area          from 360 below the caption to 360 above the bottom (or above
//                     the reference list kept on the first page), 360 in from either
//                     side; the printed map is fitted and centred in it (a map larger
//                     than the area, at a numeric scale, starts at its top and left)
//   reference list    7.8 pt, two columns; kept on the first page when its reserved
//                     height ((highest \ 2 + 2) lines of "ABC") is at most 4320
//                     twips, else on a second page under the heading again and a
//                     rule as long as the page width less 2520 twips

#include <string>
#include <vector>

#include "figure.h"
#include "rescaling.h"
#include "surface.h"

namespace quilmar {

/// The printable area of a sheet, in twips.
struct PageSize {
    float width = 0.0f;
    float height = 0.0f;
};
/// A quarter inch that no printer reaches is left all round the sheet.
inline constexpr float kUnprintableEdge = 360.0f;
/// US Letter (8.5 x 11 in) and A4 (210 x 297 mm) less the unprintable edge.
inline constexpr PageSize kLetterPage{12240.0f - 2 * kUnprintableEdge, 15840.0f - 2 * kUnprintableEdge};
inline constexpr PageSize kA4Page{11906.0f - 2 * kUnprintableEdge, 16838.0f - 2 * kUnprintableEdge};

/// The fonts of the printout.
inline const TextFont kHeadingFont{"Arial", 12.0f, true};
inline const TextFont kCaptionFont{"Arial", 7.8f, false};

/// Where the reference list may take the first page's room (twips).
inline constexpr float kFirstPageListRoom = 4320.0f;

/// What the page prints besides the map; the options are the print options.
struct MapPageText {
    bool description = false;   ///< print the heading (property-description option)
    bool referenceList = false; ///< print the list (reference-list option)
    std::string heading;        ///< the property description, UTF-8; "\n" breaks a line
    std::string scaleCaption;   ///< the complete caption, units suffix included
    std::vector<std::string> listEntries; ///< one entry a course row, in table order
    int highest = 10;           ///< one past the last used row: sizes the list's room
};

/// A rectangle on the page (twips).
struct PageRect {
    float left = 0.0f;
    float top = 0.0f;
    float width = 0.0f;
    float height = 0.0f;
};

/// One word of the heading and where it is printed.
struct PlacedWord {
    PointF at; ///< top-left, page twips
    std::string text; ///< the word and its trailing space
};

struct MapPageLayout {
    std::vector<PlacedWord> heading; ///< empty when the option is off
    float headingBottom = 1080.0f;   ///< below the heading's last line
    float arrowFoot = 0.0f;          ///< y of the arrow's foot (its shaft's bottom)
    float captionTop = 0.0f;         ///< top of the caption's line
    PageRect mapArea;                ///< where the map is fitted and centred
    bool listOnFirstPage = false;
    bool listOnSecondPage = false;
    float listReserved = 0.0f; ///< (highest \ 2 + 2) list lines, twips
    float listTop = 0.0f;      ///< top of the list block on the first page
};

/// The heading's words placed from @p top: split at every single space (two
/// spaces give an empty word), "\n" starting a new line; a word starts a new
/// line when x plus the word's width would pass the page width less 2400
/// twips, even at a line's start (a too-wide first word starts one line down).
/// Measured in @p surface's current font.
std::vector<PlacedWord> wrapHeading(const Surface &surface, PageSize page, float top, const std::string &heading);

/// Lays the page out. Measures with @p surface's fonts: it sets them and puts
/// the font it found back before returning.
MapPageLayout planMapPage(Surface &surface, PageSize page, const MapPageText &text);

/// The seven steps of the north arrow and the three of its "N", drawn with
/// the arrow's foot at page (360, @p footY).
void paintNorthArrow(Surface &surface, float footY);

/// "Scale = 1:" and the scale: the scale text's number when it has one (a
/// numeric or customized scale, "1000:1" counts as 1000), otherwise the part of
/// the AutoScale caption after its "=" (with its leading space), or nothing
/// when the caption holds no "=". Then " (Feet)" or " (Meters)" when the
/// reference-list option is on (nothing for "Other"): deliberate, the suffix
/// follows the list option and not the units.
std::string scaleCaption(std::string_view scaleText, std::string_view autoScaleCaption, Units units,
                         bool referenceList);

/// The printing canvas for @p area: half its size each way, because a printing
/// fit centres the map on twice the canvas.
inline PageRect printCanvas(const PageRect &area) { return {0, 0, area.width / 2, area.height / 2}; }

/// The scale origin that puts @p figure in @p area: the drawing point
/// (@p fitLeft, @p fitTop) (the printing fit's origin, which centres the map)
/// at the area's top-left; but a map wider or taller than the area (a numeric
/// scale too large for the paper) starts at the area's left or top edge, so
/// that it runs off the right or the bottom and never over the heading.
PointF figureOrigin(const PageRect &area, const Figure &figure, float fitLeft, float fitTop);

/// Paints one copy of the page (and its list pages): heading, arrow, caption,
/// the printer's items of @p figure placed by figureOrigin(), and the
/// reference list. Leaves the caption font set.
void paintMapPage(Surface &surface, PageSize page, const MapPageLayout &layout, const MapPageText &text,
                  const Figure &figure, float fitLeft, float fitTop);

} // namespace quilmar
