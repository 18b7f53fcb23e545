#include "app/linux/popover/layer_place.h"

#include <algorithm>

namespace quelby::app {

namespace {

// From the area to the ends of the screen.
QMargins around(QRect area, QRect screen) {
    return {area.left() - screen.left(), area.top() - screen.top(), screen.right() - area.right(),
            screen.bottom() - area.bottom()};
}

// In the panel's direction.
bool keepsPanelsFree(Qt::Edge panel, QRect screen, QSize free) {
    return isHorizontal(panel) ? free.height() + 2 * popoverGap < screen.height()
                               : free.width() + 2 * popoverGap < screen.width();
}

void tie(LayerPlace& place, Qt::Edge edge, int distance) {
    switch (edge) {
    case Qt::TopEdge:
        place.anchors |= layer::top;
        place.margins.setTop(distance);
        break;
    case Qt::BottomEdge:
        place.anchors |= layer::bottom;
        place.margins.setBottom(distance);
        break;
    case Qt::LeftEdge:
        place.anchors |= layer::left;
        place.margins.setLeft(distance);
        break;
    case Qt::RightEdge:
        place.anchors |= layer::right;
        place.margins.setRight(distance);
        break;
    }
}

int distanceTo(Qt::Edge edge, const QMargins& distances) {
    switch (edge) {
    case Qt::TopEdge:
        return distances.top();
    case Qt::BottomEdge:
        return distances.bottom();
    case Qt::LeftEdge:
        return distances.left();
    case Qt::RightEdge:
        break;
    }
    return distances.right();
}

} // namespace

LayerPlace everywhere() {
    return {.anchors = layer::top | layer::bottom | layer::left | layer::right, .amongPanels = true};
}

LayerPlace betweenPanels() {
    return {.anchors = layer::top | layer::bottom | layer::left | layer::right,
            .margins = {popoverGap, popoverGap, popoverGap, popoverGap}};
}

// Along its panel it is counted from the nearer end of the screen, so that it is whole on the screen whatever there is at
// the other.
LayerPlace besidePanel(const PopoverPlace& place, QRect screen, QSize free, QSize wanted) {
    const bool horizontal = isHorizontal(place.panel);
    const bool kept = keepsPanelsFree(place.panel, screen, free);
    const bool keptAbove = free.height() + 2 * popoverGap < screen.height();
    const int room = keptAbove ? free.height() : std::min(free.height(), place.area.height());
    const auto distances = around(place.area, screen);
    LayerPlace result{.margins = {popoverGap, popoverGap, popoverGap, popoverGap},
                      .size = QSize(wanted.width(), std::min(wanted.height(), room)),
                      .keyboard = layer::Keyboard::exclusive};
    tie(result, place.panel, kept ? popoverGap : std::max(popoverGap, distanceTo(place.panel, distances)));
    const auto first = horizontal ? Qt::LeftEdge : Qt::TopEdge;
    const auto last = horizontal ? Qt::RightEdge : Qt::BottomEdge;
    const auto nearer = distanceTo(first, distances) < distanceTo(last, distances) ? first : last;
    tie(result, nearer,
        horizontal ? distanceTo(nearer, distances) : std::max(popoverGap, distanceTo(nearer, distances)));
    return result;
}

} // namespace quelby::app
