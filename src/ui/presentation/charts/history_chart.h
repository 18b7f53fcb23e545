#pragma once

#include <optional>
#include <string>
#include <vector>

#include "history/history_data_point.h"
#include "ui/presentation/charts/chart_scale.h"

namespace quelby {

// A point of the curve for each of the history, oldest first. Two or more make a curve.
[[nodiscard]] std::vector<ChartPoint> historyCurve(const std::vector<HistoryDataPoint>& data, ChartSize size);

// The curve's largest and smallest value, at the top and at the bottom of the chart.
struct AxisLabels {
    std::string maximum;
    std::string minimum;

    bool operator==(const AxisLabels&) const = default;
};

[[nodiscard]] AxisLabels historyAxisLabels(const std::vector<HistoryDataPoint>& data);

// The point's power and its local time of day; nothing where there is no such point.
[[nodiscard]] std::optional<HoverReadOut> historyReadOut(const std::vector<HistoryDataPoint>& data,
                                                         ChartSize size, std::size_t index);

} // namespace quelby
