#pragma once

#include "monitor/published_fields.h"
#include "ui/presentation/elements.h"

namespace quelby {

struct BatteryCard {
    Symbol symbol;
    Text title;
    Text level;
    Bar bar;
    Text rate; // empty while it is unknown
    Label time;
    Label health;

    bool operator==(const BatteryCard&) const = default;
};

[[nodiscard]] BatteryCard batteryCard(const PublishedFields& fields);

} // namespace quelby
