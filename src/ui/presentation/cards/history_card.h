#pragma once

#include "monitor/published_fields.h"
#include "ui/presentation/elements/elements.h"

namespace quelby {

#define QUELBY_MEMBERS_OF_StatBadge(MEMBER)                                                                  \
    MEMBER(part, Text, label)                                                                                \
    MEMBER(part, Text, value)

struct StatBadge {
    QUELBY_RECORD(StatBadge)
};

#define QUELBY_MEMBERS_OF_HistoryCard(MEMBER)                                                                \
    MEMBER(part, Symbol, symbol)                                                                             \
    MEMBER(part, Text, title)                                                                                \
    MEMBER(part, Text, today)                                                                                \
    MEMBER(list, Choice, ranges)         /* one for each TimeRange */                                        \
    MEMBER(optional, Label, placeholder) /* in place of the curve, while there are fewer than 2 points */    \
    MEMBER(series, HistoryDataPoint, points) /* oldest first */                                              \
    MEMBER(list, StatBadge, badges)

struct HistoryCard {
    QUELBY_RECORD(HistoryCard)
};

[[nodiscard]] HistoryCard historyCard(const PublishedFields& fields);

} // namespace quelby
