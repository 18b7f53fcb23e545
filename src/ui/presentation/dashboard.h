// The whole dashboard: which cards there are, in the order in which they are shown.
#pragma once

#include <optional>

#include "monitor/published_fields.h"
#include "ui/presentation/battery_card.h"
#include "ui/presentation/battery_details_card.h"
#include "ui/presentation/charge_limit_card.h"
#include "ui/presentation/component_card.h"
#include "ui/presentation/efficiency_card.h"
#include "ui/presentation/header.h"
#include "ui/presentation/history_card.h"
#include "ui/presentation/power_badge.h"
#include "ui/presentation/process_card.h"
#include "ui/presentation/trend_card.h"

namespace quelby {

struct Dashboard {
    Header header;
    std::optional<ChargeLimitCard> chargeLimit; // none on a machine without a battery
    PowerBadge powerBadge;
    std::optional<BatteryCard> battery; // none on a machine without a battery
    ComponentCard components;
    ProcessCard processes;
    std::optional<TrendCard> trend; // none until there is a trend
    HistoryCard history;
    EfficiencyCard efficiency;
    std::optional<BatteryDetailsCard> details; // none on a machine without a battery
    Label quit;

    bool operator==(const Dashboard&) const = default;
};

[[nodiscard]] Dashboard dashboard(const PublishedFields& fields, Date now);

} // namespace quelby
