#pragma once

#include <optional>
#include <vector>

#include "ui/presentation/charts/chart_scale.h"
#include "ui/presentation/elements/color.h"

namespace quelby {

// A point for each sample (W, newest last), from edge to edge.
[[nodiscard]] std::vector<ChartPoint> sparkline(const std::vector<double>& samples, ChartSize size);

struct NewestDot {
    ChartPoint point;
    Color color;

    bool operator==(const NewestDot&) const = default;
};

// Marks the newest sample while the pointer is elsewhere; nothing where there are no samples.
[[nodiscard]] std::optional<NewestDot> newestDot(const std::vector<double>& samples, ChartSize size);

// The sample's power and its age, at 3 seconds a sample; nothing where there is no such sample.
[[nodiscard]] std::optional<HoverReadOut> sparklineReadOut(const std::vector<double>& samples, ChartSize size,
                                                           std::size_t index);

} // namespace quelby
