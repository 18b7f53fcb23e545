// Where the popover stands on the screen. All in the desktop's points.
#pragma once

#include <optional>

#include <QPoint>
#include <QRect>

namespace quelby::app {

struct PopoverScreen {
    QRect whole;
    QRect available; // without the panels
};

// At the item that was pressed, whole on its screen, off the edge where the item's panel is. Without a point,
// in the corner where trays mostly are: at the upper right, also where people read from right to left.
[[nodiscard]] QPoint popoverPlace(std::optional<QPoint> item, const PopoverScreen& screen, QSize size);

} // namespace quelby::app
