#pragma once

#include <gmock/gmock.h>

#include "ui/presentation/charts/chart_scale.h"

namespace quelby {

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
