#include "ui/presentation/cards/history_card.h"

#include <fmt/format.h>

namespace quelby {

namespace {

constexpr std::size_t fewestPoints = 2;

StatBadge statBadge(const char* label, double watts, ColorName color) {
    return {secondary(label), {fmt::format("{:.1f}W", watts), color}};
}

} // namespace

HistoryCard historyCard(const PublishedFields& fields) {
    HistoryCard card{.symbol = {"chart.bar.fill", ColorName::primary},
                     .title = primary("Consumption History"),
                     .today = secondary(fmt::format("{:.1f} Wh today", fields.todayWh.get())),
                     .points = fields.historyData,
                     .badges = {statBadge("Avg", fields.historyAvg, ColorName::blue),
                                statBadge("Min", fields.historyMin, ColorName::green),
                                statBadge("Max", fields.historyMax, ColorName::red)}};
    for (const auto range : allTimeRanges) {
        card.ranges.push_back({std::string(rawValue(range)), range == fields.historyRange.get()});
    }
    if (card.points.size() < fewestPoints) {
        card.placeholder = {{"chart.line.uptrend.xyaxis", ColorName::secondary},
                            secondary("Collecting data...")};
    }
    return card;
}

} // namespace quelby
