#pragma once

#include <algorithm>

namespace quelby {

// Whether anything is seen of what is in a stretch of a column, be it its edge only. Its padding, at both ends,
// has nothing in it. All in points, from the top of the column.
[[nodiscard]] constexpr bool isInSight(double top, double height, double padding, double seenTop,
                                       double seenHeight) {
    const double empty = std::min(padding, height / 2);
    return top + empty <= seenTop + seenHeight && top + height - empty >= seenTop;
}

} // namespace quelby
