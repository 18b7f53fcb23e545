#pragma once

#include <optional>

#include <QPoint>

namespace quelby::app {

// Whether two presses, in pixels, may have been at the same place: the pointer goes on a little between them. A
// place that is not known may be any.
[[nodiscard]] inline bool mayBeOnePlace(std::optional<QPoint> one, std::optional<QPoint> other) {
    constexpr int farthestPixels = 32;
    return !one || !other || (*one - *other).manhattanLength() <= farthestPixels;
}

} // namespace quelby::app
