#pragma once

#include <functional>
#include <memory>

namespace quelby::app {

// What the Wayland compositor that the environment names offers to this program.
struct WaylandOffer {
    bool answers = false;
    bool desktopWindows = false; // that belong to the desktop, at an edge and in front (wlr-layer-shell)
};

[[nodiscard]] WaylandOffer askWayland();

// Notices when that compositor is gone. Qt ends the program then, without a chance for anything else, as soon as it hears
// of it; who was connected first hears of it first, so this is made before Qt's application object.
class CompositorWatch {
public:
    // Nothing where there is none.
    [[nodiscard]] static std::unique_ptr<CompositorWatch> connect();

    virtual ~CompositorWatch() = default;

    // Needs Qt's application object. Told once.
    virtual void follow(std::function<void()> gone) = 0;
};

} // namespace quelby::app
