#pragma once

#include "monitor/published_fields.h"
#include "ui/presentation/elements/elements.h"

namespace quelby {

#define QUELBY_MEMBERS_OF_BatteryCard(MEMBER)                                                                \
    MEMBER(part, Symbol, symbol)                                                                             \
    MEMBER(part, Text, title)                                                                                \
    MEMBER(part, Text, level)                                                                                \
    MEMBER(part, Bar, bar)                                                                                   \
    MEMBER(part, Text, rate) /* empty while it is unknown */                                                 \
    MEMBER(part, Label, time)                                                                                \
    MEMBER(part, Label, health)

struct BatteryCard {
    QUELBY_RECORD(BatteryCard)
};

[[nodiscard]] BatteryCard batteryCard(const PublishedFields& fields);

} // namespace quelby
