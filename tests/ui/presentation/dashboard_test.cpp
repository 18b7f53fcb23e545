#include "ui/presentation/dashboard.h"

#include <gtest/gtest.h>

#include "printing.h"

namespace quelby {
namespace {

constexpr Date now = 1'700'000'000;

TEST(Dashboard, HasTheBatterysCardsOnlyWithABatteryAndTheTrendOnlyFromTheThirdSampleOn) {
    for (const bool battery : {false, true}) {
        for (std::size_t samples = 0; samples <= 3; ++samples) {
            PublishedFields fields;
            fields.hasBattery = battery;
            fields.powerHistory = std::vector<double>(samples, 12.0);
            const auto shown = dashboard(fields, now, linuxWords);
            SCOPED_TRACE(testing::Message() << (battery ? "battery, " : "no battery, ") << samples);
            EXPECT_EQ(shown.chargeLimit.has_value(), battery);
            EXPECT_EQ(shown.battery.has_value(), battery);
            EXPECT_EQ(shown.details.has_value(), battery);
            EXPECT_EQ(shown.trend.has_value(), samples == 3);
        }
    }
}

TEST(Dashboard, IsMadeOfItsCards) {
    PublishedFields fields;
    fields.batteryPercent = 42;
    fields.totalPower = 12;
    fields.chargeLimitEnabled = true;
    fields.powerHistory = std::vector{10.0, 11.0, 12.0};
    fields.topProcesses = std::vector<ProcessInfo_Energy>{{"editor", 25, 10}};
    fields.historyData = std::vector<HistoryDataPoint>{{1, 10}, {2, 20}};
    const Dashboard expected{.header = dashboardHeader(now),
                             .chargeLimit = chargeLimitCard(fields, linuxWords),
                             .powerBadge = powerBadge(fields),
                             .battery = batteryCard(fields),
                             .components = componentCard(fields),
                             .processes = processCard(fields),
                             .trend = trendCard(fields),
                             .history = historyCard(fields),
                             .efficiency = efficiencyCard(fields),
                             .details = batteryDetailsCard(fields),
                             .quit = {{"xmark.circle", ColorName::secondary}, secondary("Quit Quelby")}};
    EXPECT_EQ(dashboard(fields, now, linuxWords), expected);
}

// Without a battery the other cards say what they would say with one.
TEST(Dashboard, OfAMachineWithoutABatteryKeepsItsOtherCards) {
    PublishedFields fields;
    fields.totalPower = 12;
    fields.powerHistory = std::vector{10.0, 11.0, 12.0};
    auto expected = dashboard(fields, now, linuxWords);
    expected.chargeLimit.reset();
    expected.battery.reset();
    expected.details.reset();
    fields.hasBattery = false;
    expected.powerBadge = powerBadge(fields);
    expected.efficiency = efficiencyCard(fields);
    EXPECT_EQ(dashboard(fields, now, linuxWords), expected);
}

} // namespace
} // namespace quelby
