#pragma once

#include <limits>
#include <vector>

#include <gmock/gmock.h>

#include "ui/presentation/charts/chart_scale.h"

namespace quelby {

// Figures that no chart can show as they are.
inline std::vector<std::vector<double>> strangeFigures() {
    constexpr auto infinity = std::numeric_limits<double>::infinity();
    constexpr auto notANumber = std::numeric_limits<double>::quiet_NaN();
    return {{10, notANumber, 20},
            {notANumber, 10, 20},
            {10, 20, notANumber},
            {10, infinity, 20},
            {-infinity, 10, infinity},
            {-1e308, 0, 1e308},
            {notANumber, notANumber, notANumber}};
}

MATCHER_P2(LiesAt, x, y, "") {
    constexpr double tolerance = 1e-9;
    *result_listener << "lies at " << arg.x << ", " << arg.y;
    return std::abs(arg.x - x) < tolerance && std::abs(arg.y - y) < tolerance;
}

MATCHER_P2(LiesWithin, width, height, "") {
    *result_listener << "lies at " << arg.x << ", " << arg.y;
    return arg.x >= 0 && arg.x <= width && arg.y >= 0 && arg.y <= height;
}

} // namespace quelby
