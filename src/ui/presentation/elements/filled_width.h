#pragma once

#include <cmath>

namespace quelby {

// How far a bar of this width is filled, in points: up to the nearest pixel. Fractions that differ by less than
// anybody sees look the same, and are no reason to draw it anew. `pixelRatio` is the pixels to a point.
[[nodiscard]] inline double filledWidth(double fraction, double width, double pixelRatio) {
    return std::round(fraction * width * pixelRatio) / pixelRatio;
}

} // namespace quelby
