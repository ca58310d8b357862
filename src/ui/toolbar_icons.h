#pragma once
// The toolbar's pictures, drawn by the program itself on a 24-unit square at
// whatever size and pixel ratio the toolbar asks for, so they stay sharp at
// 200 % and cost no image or vector-graphics plugin at start-up.

#include <QIcon>

namespace quilmar {

/// The chevrons of a menu bar or toolbar too narrow for its entries.
constexpr int kMoreRightPicture = 7;
constexpr int kMoreDownPicture = 8;

/// The picture of toolbar button @p index (0 redraw, 1 clear line, 2 clear all,
/// 3 print map, 4 area, 5 perimeter, 6 gap) or of a chevron above. Any other
/// index: an empty icon.
QIcon toolbarIcon(int index);

} // namespace quilmar
