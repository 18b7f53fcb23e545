// How a popover comes onto the screen, stays in front and learns that a person went elsewhere: each kind of
// desktop has its own way.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QQuickWindow>

#include "app/linux/popover/edge_panels.h"
#include "app/linux/popover/popover_place.h"

namespace quelby::app {

// For as long as this object is there, the window is shown; with it the window leaves the screen.
class PopoverStage {
public:
    struct Listener {
        // How large the popover is, and where it comes from. Told once, before the first picture; on Wayland
        // after the event loop was back.
        std::function<void(QSize size, Qt::Edge panel)> placed;

        // Where the pointer was at the press of the item, in pixels, if that was not known before.
        std::function<void(QPoint pointer)> itemFound;

        // A person pressed outside the popover. The pointer's place in pixels, where the display server knows
        // it. The listener may end the stage.
        std::function<void(std::optional<QPoint> pointer)> pressedOutside;

        // The same, but nobody else is told of that press; or the desktop took the popover away.
        std::function<void()> dismissed;
    };

    virtual ~PopoverStage() = default;

    // The window is about to leave: from now on it keeps nothing from anybody, neither presses nor keys.
    virtual void letGo() = 0;
};

// The size is the one that it has where there is room for it. The window and the panels outlive the stage.
[[nodiscard]] std::unique_ptr<PopoverStage> enterStage(QQuickWindow& window, EdgePanels& panels,
                                                       const ItemPress& press, QSize size,
                                                       PopoverStage::Listener listener);

} // namespace quelby::app
