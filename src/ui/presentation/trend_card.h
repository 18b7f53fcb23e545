#pragma once

#include <optional>
#include <vector>

#include "monitor/published_fields.h"
#include "ui/presentation/elements.h"

namespace quelby {

struct TrendCard {
    Symbol symbol;
    Text title;
    Text now;
    std::vector<double> samples; // W, newest last
    Text min;
    Text avg;
    Text max;

    bool operator==(const TrendCard&) const = default;
};

// Nothing while there are fewer than 3 samples: two make no trend.
[[nodiscard]] std::optional<TrendCard> trendCard(const PublishedFields& fields);

} // namespace quelby
