#pragma once

namespace quelby::app {

// What the Wayland compositor that the environment names offers to this program.
struct WaylandOffer {
    bool answers = false;
    bool desktopWindows = false; // that belong to the desktop, at an edge and in front (wlr-layer-shell)
};

[[nodiscard]] WaylandOffer askWayland();

// Qt ends the program as failed as soon as it has lost the compositor, without a chance for anything else. From now on it
// ends by exit(0) instead. Needs Qt's application object, on Wayland.
void exitWithCompositor();

} // namespace quelby::app
