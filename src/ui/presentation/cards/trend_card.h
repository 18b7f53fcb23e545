#pragma once

#include <optional>

#include "monitor/published_fields.h"
#include "ui/presentation/elements/elements.h"

namespace quelby {

using Watts = double;

#define QUELBY_MEMBERS_OF_TrendCard(MEMBER)                                                                  \
    MEMBER(part, Symbol, symbol)                                                                             \
    MEMBER(part, Text, title)                                                                                \
    MEMBER(part, Text, now)                                                                                  \
    MEMBER(series, Watts, samples) /* newest last */                                                         \
    MEMBER(part, Text, min)                                                                                  \
    MEMBER(part, Text, avg)                                                                                  \
    MEMBER(part, Text, max)

struct TrendCard {
    QUELBY_RECORD(TrendCard)
};

// Nothing while there are fewer than 3 samples: two make no trend.
[[nodiscard]] std::optional<TrendCard> trendCard(const PublishedFields& fields);

} // namespace quelby
