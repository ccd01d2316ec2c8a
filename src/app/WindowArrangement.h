#pragma once

#include <QRect>

#include <vector>

/// How the Window menu lays out the document windows.
enum class WindowArrangement { Cascade, TileHorizontally, TileVertically, ArrangeIcons };

namespace WindowLayout {

/// The places of count windows that share an area as non-overlapping tiles: one below the other when horizontal, else
/// side by side. The last tile takes what the division leaves.
std::vector<QRect> tiles(const QRect &area, int count, bool horizontal);

/// The place of a new window in an area: three quarters of its size, a step (pixels) further down and to the right than
/// the window made before it; number counts the windows from 0. Steps that would leave the area begin again at its
/// corner.
QRect nextPlace(const QRect &area, int number, int step);

/// The places of count windows that overlap so that every title bar can be seen.
std::vector<QRect> cascade(const QRect &area, int count, int step);

/// The places of count minimised windows of one size, in rows from the area's lower left corner upwards.
std::vector<QRect> icons(const QRect &area, int count, const QSize &size);

/// Whether files dropped at a height (pixels from the top of the main window) fall into the document area: below the
/// toolbars, and well above the status bar.
bool acceptsDrop(int y, int toolbarHeight, int windowHeight, int statusBarHeight);

} // namespace WindowLayout
