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

TEST(AMonthOfEnergy, IsKeptWholeAndSmall) {
    const TimeZone utc("UTC0");
    const TemporaryFolder folder;
    LivingClock clock;
    const HistoryStore history(folder.path(), clock, HistoryAccess::recording);
    PublishedFields fields;
    fields.cpuPower = 4;
    double used = 0;
    {
        EnergyRecorder recorder(folder.path(), clock);
        for (int i = 0; i < 40 * 288; ++i) { // a cycle every five minutes of forty days
            fields.totalPower = 10 + i % 7;
            fields.isPluggedIn = i % 288 > 140;
            const auto listing =
                fmt::format("%CPU APPLICATION\n20.0 Browser\n{}.0 program {}\n", i % 13, i % 60);
            recorder.addCycle(fields, listing);
            used += i >= 10 * 288 ? fields.totalPower * 3 / 3600 : 0;
            clock.time += 300;
            clock.boot.awake += 300;
        }
    }
    const EnergyReader reader(folder.path(), clock);
    double kept = 0;
    for (const auto& app : reader.byApp(EnergyRange::thirtyDays)) {
        kept += app.wattHours;
    }
    EXPECT_NEAR(kept, used, used / 100);
    EXPECT_THAT(reader.byHour(EnergyRange::thirtyDays),
                SizeIs(testing::AllOf(testing::Ge(720), testing::Le(721))));
    EXPECT_THAT(byDay(reader.byHour(EnergyRange::thirtyDays), startOfLocalDay),
                SizeIs(31)); // two of them halves
    EXPECT_THAT(reader.sessions(), SizeIs(30));
    EXPECT_LT(std::filesystem::file_size(historyFile(folder.path())), 8'000'000U);
    EXPECT_TRUE(Database(historyFile(folder.path())).isSound());
}

} // namespace
} // namespace quelby
