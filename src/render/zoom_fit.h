#pragma once
// The zoom window's own fit: the same walk over the computed courses and the
// same extents as the main canvas's fit, but no size level and no printing
// branch: the map fills 95 % of the zoom picture, and a redraw may magnify it
// further from the same origin (so a magnified map grows to the right and down
// and the scroll bars reach it).

#include <string_view>

#include "leg_table.h"
#include "traverse_state.h"

namespace quilmar {

struct ZoomFit {
    float scaleFactor = 0.0f; ///< twips per ground unit: fit x 0.95
    float scaleLeft = 0.0f;   ///< drawing point at the picture's left edge, whole twips
    float scaleTop = 0.0f;    ///< drawing point at the picture's top edge, whole twips
    bool failed = false;      ///< a fault ended the fit: show "Error in rescaling"
};

/// Fits @p legs to a picture of @p width x @p height twips: factor =
/// min(width / extX, height / extY) x 0.95 (a zero extent counts as 1), origin
/// Int(factor x min - (size - factor x extent) / 2) each way (toward minus
/// infinity). Reads and writes the point of beginning and origin of @p state
/// as the main fit does (ground units). On a fault the factor is that of the
/// extents reached so far (0 when no row was reached).
ZoomFit zoomFit(const LegTable &legs, float width, float height, TraverseState &state);

/// The magnification of the zoom window's redraw button: the entered number
/// (leading-number rule) over 6.3, so "6" is about the default 0.95.
/// Empty, cancelled or non-numeric answers give 0.95.
double redrawButtonMagnification(std::string_view answer);

/// The magnification of the zoom window's Redraw menu: the entered number
/// itself ("1" is the fit exactly); empty or non-numeric answers give 0.95.
double redrawMenuMagnification(std::string_view answer);

/// The redraw's scale factor: the fit's factor (already x 0.95) times
/// @p magnification; the origin stays that of the fit.
float magnifiedScaleFactor(const ZoomFit &fit, double magnification);

/// The zoom picture: a square twice the screen's height (twips), and its
/// scroll bars' maximum (0.7 of the side, as a 16-bit integer) and small
/// change (a tenth of the maximum, truncated). A maximum beyond the 16-bit
/// range is held at its end and flagged: making the window then faults with
/// "Overflow" (a screen taller than 23405 twips).
struct ZoomPicture {
    float side = 0.0f;
    int scrollMax = 0;
    int smallChange = 0;
    bool overflow = false;
};
ZoomPicture zoomPicture(float screenHeightTwips);

/// Where the zoom picture's left (or top) edge goes for a scroll bar value
/// (twips): -value while the thumb is dragged, 60 - value when the scroll ends.
/// Deliberate: the picture jumps 60 twips when a drag is released.
/// Results beyond the 16-bit range are held at its ends.
int zoomPictureOffset(int scrollValue, bool scrollEnded);

/// The zoom window on a screen (twips): as high as the screen less 720, as wide
/// as it is high, centred across, 240 from the top.
struct ZoomWindowPlacement {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};
ZoomWindowPlacement zoomWindowPlacement(int screenWidthTwips, int screenHeightTwips);

} // namespace quilmar
