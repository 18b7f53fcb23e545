// The battery's raw figures, with a short judgement beside some of them.
#pragma once

#include <optional>
#include <vector>

#include "monitor/published_fields.h"
#include "ui/presentation/elements.h"

namespace quelby {

struct DetailRow {
    Symbol symbol;
    Text label;
    Text value;
    std::optional<Text> note;

    bool operator==(const DetailRow&) const = default;
};

struct BatteryDetailsCard {
    Symbol symbol;
    Text title;
    std::vector<DetailRow> rows; // a figure without a reading has none

    bool operator==(const BatteryDetailsCard&) const = default;
};

[[nodiscard]] BatteryDetailsCard batteryDetailsCard(const PublishedFields& fields);

} // namespace quelby
