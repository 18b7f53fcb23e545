#include "app/linux/popover/popover_place.h"

#include <algorithm>
#include <array>

namespace quelby::app {

namespace {

constexpr int gap = 6; // between the popover and the edges of its screen

int within(int wanted, int from, int to) {
    return std::max(from, std::min(wanted, to));
}

} // namespace

QPoint popoverPlace(std::optional<QPoint> item, const PopoverScreen& screen, QSize size) {
    const QRect room = screen.available.adjusted(gap, gap, -gap, -gap);
    const QPoint last(room.right() + 1 - size.width(), room.bottom() + 1 - size.height());
    if (!item) {
        return {within(last.x(), room.x(), last.x()), room.y()};
    }
    // The panel is at the edge that the item is nearest to.
    const QRect& whole = screen.whole;
    const std::array distances{item->y() - whole.top(), whole.bottom() - item->y(), item->x() - whole.left(),
                               whole.right() - item->x()};
    const auto nearest = std::min_element(distances.begin(), distances.end()) - distances.begin();
    const int centredX = item->x() - size.width() / 2;
    const int centredY = item->y() - size.height() / 2;
    const std::array wanted{QPoint(centredX, room.y()), QPoint(centredX, last.y()),
                            QPoint(room.x(), centredY), QPoint(last.x(), centredY)};
    const QPoint place = wanted.at(static_cast<std::size_t>(nearest));
    return {within(place.x(), room.x(), last.x()), within(place.y(), room.y(), last.y())};
}

} // namespace quelby::app
