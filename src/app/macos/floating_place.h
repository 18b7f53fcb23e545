#pragma once

#include <optional>

#include <QPoint>
#include <QRect>

namespace quelby::app {

// Where the upper left corner of a window goes that hangs below a place, centred there, and whole between the
// left and the right of the room.
[[nodiscard]] QPoint cornerBelow(QPoint place, int width, const QRect& room);

// Where the window hangs that has no place of its own: right below the menu bar, where the room of the pointer's
// screen begins.
[[nodiscard]] QPoint cornerBelowMenuBar(QPoint pointer, int width, const QRect& room);

} // namespace quelby::app
