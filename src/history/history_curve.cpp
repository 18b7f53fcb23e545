#include "history/history_curve.h"

#include <algorithm>
#include <numeric>

namespace quelby {

namespace {

constexpr std::size_t chartPoints = 300; // about one for each point of the chart's width

bool lessWatts(const HistoryDataPoint& left, const HistoryDataPoint& right) {
    return left.watts < right.watts;
}

} // namespace

std::vector<HistoryDataPoint> thinned(std::vector<HistoryDataPoint> points) {
    if (points.size() <= chartPoints) {
        return points;
    }
    const auto stride = points.size() / chartPoints;
    std::vector<HistoryDataPoint> kept;
    kept.reserve(points.size() / stride + 2);
    for (std::size_t position = 0; position < points.size(); position += stride) {
        kept.push_back(points[position]);
    }
    if (kept.back().id != points.back().id) {
        kept.push_back(points.back());
    }
    return kept;
}

HistoryResult withStatistics(std::vector<HistoryDataPoint> points) {
    if (points.empty()) {
        return {};
    }
    const double sum = std::accumulate(points.begin(), points.end(), 0.0,
                                       [](double total, const auto& point) { return total + point.watts; });
    const double average = sum / static_cast<double>(points.size());
    const double least = std::min_element(points.begin(), points.end(), lessWatts)->watts;
    const double most = std::max_element(points.begin(), points.end(), lessWatts)->watts;
    return {std::move(points), average, least, most};
}

} // namespace quelby
