#include "app/macos/floating_place.h"

#include <algorithm>

namespace quelby::app {

QPoint cornerBelow(QPoint place, int width, const QRect& room) {
    const int rightmost = std::max(room.left(), room.right() + 1 - width);
    return {std::clamp(place.x() - width / 2, room.left(), rightmost), place.y()};
}

QPoint cornerBelowMenuBar(QPoint pointer, int width, const QRect& room) {
    return cornerBelow({pointer.x(), room.top()}, width, room);
}

} // namespace quelby::app
