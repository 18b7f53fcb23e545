#include "ui/presentation/charts/chart_scale.h"

#include <algorithm>
#include <cmath>

namespace quelby {

namespace {

constexpr double smallestRange = 0.1; // W; a flat curve is no reason to divide by zero
constexpr double labelCeiling = 10;   // points

// The dashboard's inner width in points. The pointer is measured against this and not against the chart.
constexpr double hoverWidth = 376;

} // namespace

ChartScale::ChartScale(const std::vector<double>& values) {
    bool first = true;
    for (const double value : values) {
        if (std::isfinite(value)) {
            minimum_ = first ? value : std::min(minimum_, value);
            maximum_ = first ? value : std::max(maximum_, value);
            first = false;
        }
    }
}

double ChartScale::normalised(double value) const {
    const double height = (value - minimum_) / std::max(maximum_ - minimum_, smallestRange);
    return std::isfinite(height) ? height : 0;
}

std::optional<std::size_t> hoverIndex(double x, std::size_t count) {
    if (count == 0 || std::isnan(x)) {
        return std::nullopt;
    }
    const double fraction = std::clamp(x / hoverWidth, 0.0, 1.0);
    const auto index = static_cast<std::size_t>(std::llround(fraction * static_cast<double>(count - 1)));
    return std::min(index, count - 1);
}

ChartPoint labelCentre(ChartPoint point, double width, double margin, double above) {
    return {std::max(margin, std::min(point.x, width - margin)), std::max(labelCeiling, point.y - above)};
}

} // namespace quelby
