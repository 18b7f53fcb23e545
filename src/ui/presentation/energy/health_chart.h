// The curve of a battery's health over its days, and the line through it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ui/presentation/charts/chart_scale.h"
#include "ui/presentation/energy/energy_panel.h"

namespace quelby {

// A point for each day, oldest first, at its place in time. Two or more make a curve.
[[nodiscard]] std::vector<ChartPoint> healthCurve(const std::vector<HealthPoint>& days, ChartSize size);

// The ends of the line through these days, in the same chart. May lie a little outside of it.
[[nodiscard]] std::vector<ChartPoint> healthLine(const std::vector<HealthPoint>& line,
                                                 const std::vector<HealthPoint>& days, ChartSize size);

// The largest and the smallest health, at the top and at the bottom of the chart: "96%".
struct HealthLabels {
    std::string maximum;
    std::string minimum;

    bool operator==(const HealthLabels&) const = default;
};

[[nodiscard]] HealthLabels healthLabels(const std::vector<HealthPoint>& days);

// The day's health and its date; nothing where there is no such day.
[[nodiscard]] std::optional<HoverReadOut> healthReadOut(const std::vector<HealthPoint>& days, ChartSize size,
                                                        std::size_t index);

} // namespace quelby
