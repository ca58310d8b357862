#pragma once
// The window's style: the platform's own (Fusion where there is none), with the
// two things it would otherwise read from image files at start-up drawn by the
// program instead: the group-box frame and the chevron of a menu bar or toolbar
// too narrow for its entries. Reading any image makes Qt load every image
// plugin (JPEG, GIF, ICO, SVG...), which costs start-up time and memory for two
// small pictures.

namespace quilmar {

/// Makes the application's style the window style, once; later calls do nothing.
/// Call before the first widget is made, so every widget starts with it.
void useWindowStyle();

} // namespace quilmar
