// The history of a range for people and for programs.
#pragma once

#include <string>

#include "history/history_curve.h"
#include "history/time_range.h"

namespace quelby::cli {

struct HistoryView {
    TimeRange range = TimeRange::thirtyMinutes;
    double now = 0; // seconds since 1970: where the range ends
    HistoryResult result;
    double todayWh = 0;
};

// One object on one line.
[[nodiscard]] std::string historyAsJson(const HistoryView& view);

// A heading, then a line for each point, oldest first.
[[nodiscard]] std::string historyAsCsv(const HistoryView& view);

// A curve in block characters, this many columns wide (20 or more), with its statistics. Where nothing was
// recorded the curve has a gap.
[[nodiscard]] std::string historyAsText(const HistoryView& view, int columns);

} // namespace quelby::cli
