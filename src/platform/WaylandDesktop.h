#pragma once

namespace WaylandDesktop {

/// Whether the windows stand on a Wayland desktop, which alone decides on their places and on who gets the keys.
bool isHere();

} // namespace WaylandDesktop
