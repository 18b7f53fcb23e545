// Where windows that belong to the desktop are, in the words of their protocol: by what they are tied to, and how far they
// are from it.
#pragma once

#include <cstdint>

#include <QMargins>
#include <QSize>

#include "app/linux/popover/layer_protocol.h"
#include "app/linux/popover/popover_place.h"

namespace quelby::app {

struct LayerPlace {
    std::uint32_t anchors = 0;
    QMargins margins;
    QSize size = {0, 0};      // a zero: from anchor to anchor
    bool amongPanels = false; // instead of beside them
    layer::Keyboard keyboard = layer::Keyboard::none;

    bool operator==(const LayerPlace&) const = default;
};

// All of the screen.
[[nodiscard]] LayerPlace everywhere();

// All that the compositor keeps no panel's, but for some air: to see how much that is.
[[nodiscard]] LayerPlace betweenPanels();

// The popover at its place on a screen (in points), of which the compositor has found so much to be free between the
// panels. Some keep windows off every panel; for others panels are windows of yet another kind, and then the place tells
// how far they reach.
[[nodiscard]] LayerPlace besidePanel(const PopoverPlace& place, QRect screen, QSize free, QSize wanted);

} // namespace quelby::app
