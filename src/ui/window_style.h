#pragma once
// The window's style: the platform's own (Fusion where there is none), with
// these drawn by the program instead:
// - the group-box frame and the chevron of a menu bar or toolbar too narrow for
//   its entries, which the style would read from image files at start-up;
//   reading any image makes Qt load every image plugin (JPEG, GIF, ICO, SVG...),
//   start-up time and memory spent on two small pictures;
// - the frame of a text field, square and without antialiasing: the grid shows
//   a hundred fields at once, and rounded antialiased frames were the largest
//   part of the window's first paint;
// - the scroll bar and the toolbar's band, flat: the platform paints them with
//   gradients, which cost the first paint more than the hundred fields together.
// Everything is drawn in filled rectangles, the cheapest thing a painter draws,
// and where the platform's style lays the parts out, so clicks land as before.

namespace quilmar {

/// Makes the application's style the window style, once; later calls do nothing.
/// Call before the first widget is made, so every widget starts with it.
void useWindowStyle();

} // namespace quilmar
