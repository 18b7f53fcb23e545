#pragma once

namespace quelby::app {

// What the Wayland compositor that the environment names offers to this program.
struct WaylandOffer {
    bool answers = false;
    bool desktopWindows = false; // that belong to the desktop, at an edge and in front (wlr-layer-shell)
};

[[nodiscard]] WaylandOffer askWayland();

} // namespace quelby::app
