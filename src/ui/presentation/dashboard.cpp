#include "ui/presentation/dashboard.h"

namespace quelby {

Dashboard dashboard(const PublishedFields& fields, Date now, const SystemWords& words) {
    const auto ifBattery = [&](auto card) {
        return fields.hasBattery ? std::optional(card(fields)) : std::nullopt;
    };
    return {.header = dashboardHeader(now),
            .chargeLimit = ifBattery([&](const PublishedFields& all) { return chargeLimitCard(all, words); }),
            .powerBadge = powerBadge(fields),
            .battery = ifBattery(batteryCard),
            .components = componentCard(fields),
            .processes = processCard(fields),
            .trend = trendCard(fields),
            .history = historyCard(fields),
            .efficiency = efficiencyCard(fields),
            .details = ifBattery(batteryDetailsCard),
            .quit = quitButton()};
}

} // namespace quelby
