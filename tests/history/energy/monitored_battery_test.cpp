// What the battery does over time, as a whole monitor keeps it beside the energy.
#include "monitored_energy.h"

#include <fmt/format.h>

namespace quelby {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST_F(MonitoredEnergy, CountsNothingForASleepAcrossMidnightAndTellsWhatItCost) {
    clock.time = midnight - 1800;
    start();
    cycle(100);
    const auto asleepAt = static_cast<std::int64_t>(clock.time);
    setBattery(2300, false);
    pass(3, 8 * 3600 - 3);
    used = 0;
    fire();
    cycle(100);
    const auto reader = kept();
    expectTodayOf(reader, used);
    expectTheHistorysToday(reader);
    EXPECT_THAT(reader.sleeps(), ElementsAre(Sleep{.start = asleepAt,
                                                   .end = asleepAt + 28'800,
                                                   .seconds = 28'797,
                                                   .percentBefore = 50,
                                                   .percentAfter = 46,
                                                   .wattHours = 2500 * 12.0 / 1000 - 2300 * 12.0 / 1000}));
    const auto sessions = reader.sessions();
    ASSERT_THAT(sessions, SizeIs(1)) << "the battery gave all the time";
    EXPECT_EQ(sessions[0].seconds, 8 * 3600 + 600);
    EXPECT_NEAR(sessions[0].wattHours, 202 * 12.0 * 3 / 3600 + 2.4, 1e-9);
}

TEST_F(MonitoredEnergy, SurvivesJumpsOfTheClock) {
    start();
    cycle(100);
    clock.time += 3 * 86400; // set ahead
    cycle(100);
    clock.time -= 3 * 86400; // and back
    cycle(100);
    const auto reader = kept();
    EXPECT_NEAR(sumOf(reader.byApp(EnergyRange::thirtyDays)), used, 1e-9);
    EXPECT_THAT(reader.sleeps(), IsEmpty());
    ASSERT_THAT(reader.sessions(), SizeIs(1));
    EXPECT_EQ(reader.sessions()[0].seconds, 900) << "by the computer's own clock";
}

TEST_F(MonitoredEnergy, GoesOnAfterTheRecorderWasOff) {
    start();
    cycle(100);
    monitor->stopMonitoring();
    pass(7200);
    clock.boot = {.awake = 20, .asleep = 0}; // after a restart
    setBattery(2400, false);
    start();
    cycle(99);
    const auto reader = kept();
    expectTodayOf(reader, used);
    EXPECT_NEAR(sumOf(reader.byApp(EnergyRange::sinceUnplugged)), used, 1e-9)
        << "still the same time on battery";
    EXPECT_THAT(reader.sleeps(), IsEmpty());
    ASSERT_THAT(reader.sessions(), SizeIs(1));
    EXPECT_EQ(reader.sessions()[0].seconds, 300 + 7200 + 297);
}

TEST_F(MonitoredEnergy, SinceTheCableWasPulledIsExactToTheCycle) {
    start();
    cycle(50);
    setBattery(2500, true, true);
    cycle(70);
    setBattery(2500, false);
    used = 0;
    cycle(30);
    const auto reader = kept();
    EXPECT_NEAR(sumOf(reader.byApp(EnergyRange::sinceUnplugged)), used, 1e-9);
    EXPECT_NEAR(sumOf(reader.byComponent(EnergyRange::sinceUnplugged)), used, 1e-9);
    std::vector<SessionKind> kinds;
    for (const auto& session : reader.sessions()) {
        kinds.push_back(session.kind);
    }
    EXPECT_THAT(kinds, ElementsAre(SessionKind::discharge, SessionKind::charge, SessionKind::discharge));
    EXPECT_EQ(reader.sessions()[1].percentFrom, 50);
    EXPECT_EQ(reader.sessions()[1].seconds, 69 * 3);
    EXPECT_NEAR(reader.sessions()[1].wattHours, 70 * 12.0 * 3 / 3600, 1e-9);
    setBattery(2500, true);
    start();
    cycle(30);
    EXPECT_NEAR(sumOf(kept().byApp(EnergyRange::sinceUnplugged)), used - 31 * monitor->totalPower * 3 / 3600,
                1e-9)
        << "plugged in, it is that of the last time on battery";
}

TEST_F(MonitoredEnergy, OfAComputerWithoutABatteryHasNeitherSessionsNorDays) {
    computer.battery.reading = NoBattery{};
    start();
    cycle(50);
    pass(3, 3600);
    fire();
    const auto reader = kept();
    expectTodayOf(reader, used);
    EXPECT_THAT(reader.byApp(EnergyRange::sinceUnplugged), IsEmpty());
    EXPECT_THAT(reader.sessions(), IsEmpty());
    EXPECT_THAT(reader.sleeps(), IsEmpty());
    EXPECT_THAT(reader.batteryDays(), IsEmpty());
}

TEST_F(MonitoredEnergy, TellsTheBatteryOfEachDay) {
    clock.time = midnight - 300;
    start();
    cycle(50);
    computer.battery.reading =
        PropertyTable{{"AppleRawMaxCapacity", 4990}, {"CycleCount", 31}, {"Temperature", 4125}};
    cycle(100);
    const auto eve = static_cast<std::int64_t>(midnight) - 86400;
    EXPECT_THAT(kept().batteryDays(), ElementsAre(BatteryDay{eve, 4990, std::nullopt, 31, 41.25},
                                                  BatteryDay{eve + 86400, 4990, std::nullopt, 31, 41.25}));
}

TEST_F(MonitoredEnergy, TellsASleepInWhichTheComputerTravelledToAnotherZone) {
    start();
    cycle(1200);
    const auto asleepAt = static_cast<std::int64_t>(clock.time);
    setBattery(2400, false);
    const TimeZone farther("EET-2");
    pass(3, 7197);
    fire();
    cycle(1200);
    const auto reader = kept();
    expectTodayOf(reader, used);
    expectTheHistorysToday(reader);
    ASSERT_THAT(reader.sleeps(), SizeIs(1));
    EXPECT_EQ(reader.sleeps()[0].start, asleepAt);
    EXPECT_EQ(reader.sleeps()[0].seconds, 7197);
}

TEST_F(MonitoredEnergy, KeepsTheLastMinuteOfADayWhoseTemperatureIsItsHighest) {
    clock.time = midnight - 24;
    start();
    cycle(6);
    computer.battery.reading = PropertyTable{{"AppleRawMaxCapacity", 4990}, {"Temperature", 4125}};
    cycle();
    computer.battery.reading = PropertyTable{{"AppleRawMaxCapacity", 4980}, {"Temperature", 2900}};
    cycle(5);
    const auto days = kept().batteryDays();
    ASSERT_THAT(days, SizeIs(2));
    EXPECT_EQ(days[0].maxTemperature, 41.25);
    EXPECT_EQ(days[1].maxTemperature, 29);
}

} // namespace
} // namespace quelby
