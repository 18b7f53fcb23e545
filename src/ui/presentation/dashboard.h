// The whole dashboard: which cards there are, in the order in which they are shown.
#pragma once

#include "monitor/published_fields.h"
#include "ui/presentation/cards/battery_card.h"
#include "ui/presentation/cards/battery_details_card.h"
#include "ui/presentation/cards/charge_limit_card.h"
#include "ui/presentation/cards/component_card.h"
#include "ui/presentation/cards/efficiency_card.h"
#include "ui/presentation/cards/header.h"
#include "ui/presentation/cards/history_card.h"
#include "ui/presentation/cards/power_badge.h"
#include "ui/presentation/cards/process_card.h"
#include "ui/presentation/cards/trend_card.h"

namespace quelby {

#define QUELBY_CARDS(MEMBER)                                                                                 \
    MEMBER(optional, ChargeLimitCard, chargeLimit) /* none on a machine without a battery */                 \
    MEMBER(part, PowerBadge, powerBadge)                                                                     \
    MEMBER(optional, BatteryCard, battery) /* none on a machine without a battery */                         \
    MEMBER(part, ComponentCard, components)                                                                  \
    MEMBER(part, ProcessCard, processes)                                                                     \
    MEMBER(optional, TrendCard, trend) /* none until there is a trend */                                     \
    MEMBER(part, HistoryCard, history)                                                                       \
    MEMBER(part, EfficiencyCard, efficiency)                                                                 \
    MEMBER(optional, BatteryDetailsCard, details) /* none on a machine without a battery */

#define QUELBY_MEMBERS_OF_Dashboard(MEMBER)                                                                  \
    MEMBER(part, Header, header)                                                                             \
    QUELBY_CARDS(MEMBER)                                                                                     \
    MEMBER(part, Label, quit)

struct Dashboard {
    QUELBY_RECORD(Dashboard)
};

[[nodiscard]] Dashboard dashboard(const PublishedFields& fields, Date now, const SystemWords& words);

} // namespace quelby
