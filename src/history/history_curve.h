// The curve of a range, from all its rows: thinned for the chart, with its statistics.
#pragma once

#include <vector>

#include "history/history_data_point.h"

namespace quelby {

// An empty result has no points and statistics of 0.
struct HistoryResult {
    std::vector<HistoryDataPoint> points; // oldest first
    double avg = 0;                       // W; the statistics are those of the points
    double min = 0;
    double max = 0;

    bool operator==(const HistoryResult&) const = default;
};

// Every n-th point from the first on, where n is a 300th of their number (so up to 599 points all stay), and
// always the last one.
[[nodiscard]] std::vector<HistoryDataPoint> thinned(std::vector<HistoryDataPoint> points);

[[nodiscard]] HistoryResult withStatistics(std::vector<HistoryDataPoint> points);

} // namespace quelby
