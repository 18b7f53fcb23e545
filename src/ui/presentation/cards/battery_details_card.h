// The battery's raw figures, with a short judgement beside some of them.
#pragma once

#include "monitor/published_fields.h"
#include "ui/presentation/elements/elements.h"

namespace quelby {

#define QUELBY_MEMBERS_OF_DetailRow(MEMBER)                                                                  \
    MEMBER(part, Symbol, symbol)                                                                             \
    MEMBER(part, Text, label)                                                                                \
    MEMBER(part, Text, value)                                                                                \
    MEMBER(optional, Text, note)

struct DetailRow {
    QUELBY_RECORD(DetailRow)
};

#define QUELBY_MEMBERS_OF_BatteryDetailsCard(MEMBER)                                                         \
    MEMBER(part, Symbol, symbol)                                                                             \
    MEMBER(part, Text, title)                                                                                \
    MEMBER(list, DetailRow, rows) /* a figure without a reading has none */

struct BatteryDetailsCard {
    QUELBY_RECORD(BatteryDetailsCard)
};

[[nodiscard]] BatteryDetailsCard batteryDetailsCard(const PublishedFields& fields);

} // namespace quelby
