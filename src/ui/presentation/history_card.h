#pragma once

#include <array>
#include <optional>
#include <vector>

#include "monitor/published_fields.h"
#include "ui/presentation/elements.h"

namespace quelby {

struct StatBadge {
    Text label;
    Text value;

    bool operator==(const StatBadge&) const = default;
};

struct HistoryCard {
    Symbol symbol;
    Text title;
    Text today;
    std::array<Choice, allTimeRanges.size()> ranges;
    std::optional<Label> placeholder;     // in place of the curve, while there are fewer than 2 points
    std::vector<HistoryDataPoint> points; // oldest first
    std::array<StatBadge, 3> badges;

    bool operator==(const HistoryCard&) const = default;
};

[[nodiscard]] HistoryCard historyCard(const PublishedFields& fields);

} // namespace quelby
