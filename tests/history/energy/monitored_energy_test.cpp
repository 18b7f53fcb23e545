// Where the energy went, as a whole monitor keeps it: each sum is made a second time here, from what the computer was
// made to do.
#include <cmath>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "history/energy/energy_reader.h"
#include "history/history_file.h"
#include "history/support/tables.h"
#include "monitor/power_monitor.h"
#include "platform/local_day.h"
#include "support/fake_platform.h"
#include "support/file_size_limit.h"
#include "support/temporary_folder.h"
#include "support/time_zone.h"

namespace quelby {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr double midnight = 1'700'006'400; // 2023-11-15 00:00 UTC

// Sleeps, is set, and travels.
struct LivingClock final : Clock {
    Date time = midnight + 9 * 3600;
    TimeSinceBoot boot{.awake = 1000, .asleep = 0};

    Date now() override { return time; }

    Date startOfDay() override { return startOfLocalDay(time); }

    std::optional<TimeSinceBoot> sinceBoot() override { return boot; }
};

// A laptop on battery that draws 12 W, half of its processor for a browser.
class MonitoredEnergy : public testing::Test {
protected:
    MonitoredEnergy() {
        computer.folders.support = folder.path();
        computer.processes.cpu = "%CPU\n25.0\n25.0\n";
        computer.processes.top = "%CPU COMM\n25.0 browser\n25.0 editor\n";
        setBattery(2500, false);
    }

    void setBattery(Int milliampereHours, bool pluggedIn, bool charging = false) {
        computer.battery.reading =
            PropertyTable{{"DesignCapacity", 5200},
                          {"AppleRawMaxCapacity", 5000},
                          {"AppleRawCurrentCapacity", milliampereHours},
                          {"CycleCount", 30},
                          {"ExternalConnected", pluggedIn},
                          {"IsCharging", charging},
                          {"InstantAmperage", pluggedIn ? (charging ? 1000 : 0) : -1000},
                          {"Voltage", 12000},
                          {"Temperature", 3050}};
    }

    void start() {
        auto platform = computer.platform();
        platform.clock = clock;
        monitor.reset();
        computer.runLoop = fake::Loop();
        monitor = PowerMonitor::create(platform, {.history = HistoryAccess::recording});
        monitor->startMonitoring();
        used += monitor->totalPower * 3 / 3600;
    }

    void pass(double awake, double asleep = 0) {
        clock.time += awake + asleep;
        clock.boot.awake += awake;
        clock.boot.asleep += asleep;
    }

    void cycle(int count = 1) {
        for (; count > 0; --count) {
            pass(3);
            fire();
        }
    }

    void fire() {
        computer.runLoop.fireTimers();
        used += monitor->totalPower * 3 / 3600;
    }

    // Ends with what has been added up.
    [[nodiscard]] EnergyReader kept() {
        monitor->stopMonitoring();
        return {folder.path(), clock};
    }

    static double sumOf(const std::vector<NamedEnergy>& energy) {
        double sum = 0;
        for (const auto& part : energy) {
            sum += part.wattHours;
        }
        return sum;
    }

    void expectTodayOf(const EnergyReader& reader, double wattHours, double tolerance = 1e-9) {
        EXPECT_NEAR(sumOf(reader.byApp(EnergyRange::today)), wattHours, tolerance);
        EXPECT_NEAR(sumOf(reader.byComponent(EnergyRange::today)), wattHours, tolerance);
    }

    void expectTheHistorysToday(const EnergyReader& reader) {
        monitor->selectHistoryRange(TimeRange::oneHour);
        const double today = monitor->todayWh;
        EXPECT_GT(today, 0.009);
        expectTodayOf(reader, today, today / 100);
    }

    TimeZone utc{"UTC0"};
    TemporaryFolder folder;
    fake::Computer computer;
    LivingClock clock;
    std::shared_ptr<PowerMonitor> monitor;
    double used = 0; // Wh, since the test began
};

TEST_F(MonitoredEnergy, IsSplitByTheShareOfTheProcessorsPart) {
    start();
    cycle(99);
    const auto apps = kept().byApp(EnergyRange::today);
    // 50 % of one processor: of the weights 20.5, 7, 3, 1.5, 1 and 5 the first is the processor's.
    const double processor = 12 * 20.5 / 38 * 300 / 3600;
    ASSERT_THAT(apps, SizeIs(3));
    EXPECT_EQ(apps[0].name, "system");
    EXPECT_NEAR(apps[0].wattHours, 1 - processor, 1e-9);
    EXPECT_EQ(apps[1].name, "browser");
    EXPECT_NEAR(apps[1].wattHours, processor / 2, 1e-9);
    EXPECT_NEAR(apps[2].wattHours, processor / 2, 1e-9);
}

TEST_F(MonitoredEnergy, AgreesWithTheEnergyOfTodayAlsoBeyondTheReachOfReadings) {
    start();
    for (int i = 0; i < 5 * 1200; ++i) { // five hours
        computer.processes.cpu = fmt::format("%CPU\n{}\n", i % 97);
        setBattery(2500, i % 1000 > 600, i % 1000 > 800);
        cycle();
    }
    const auto reader = kept();
    expectTodayOf(reader, used);
    expectTheHistorysToday(reader);
    EXPECT_THAT(reader.byHour(EnergyRange::today), SizeIs(6));
}

TEST_F(MonitoredEnergy, OfADayEndsAtLocalMidnightInEveryTimeZone) {
    for (const auto* zone : {"UTC0", "IST-5:30", "NPT-5:45", "NST3:30"}) {
        SCOPED_TRACE(zone);
        const TimeZone local(zone);
        const TemporaryFolder another;
        computer.folders.support = another.path();
        clock.time = startOfLocalDay(midnight + 40'000) - 1800;
        start();
        cycle(599); // half an hour, up to midnight
        used = 0;
        cycle(400); // and 20 minutes
        monitor->stopMonitoring();
        const EnergyReader reader(another.path(), clock);
        expectTodayOf(reader, used);
        expectTheHistorysToday(reader);
        EXPECT_THAT(byDay(reader.byHour(EnergyRange::twentyFourHours), startOfLocalDay), SizeIs(2));
    }
}

TEST_F(MonitoredEnergy, AgreesWithTheEnergyOfTodayAcrossAChangeOfZone) {
    start();
    cycle(1200);
    const TimeZone farther("EET-2");
    cycle(1200);
    const auto reader = kept();
    expectTodayOf(reader, used);
    expectTheHistorysToday(reader);
}

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
                                                   .end = asleepAt + 8 * 3600,
                                                   .seconds = 8 * 3600 - 3,
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

TEST_F(MonitoredEnergy, CountsOneOfSeveralCyclesWithinASecondAsTheHistoryDoes) {
    start();
    for (int i = 0; i < 10; ++i) {
        pass(0.05);
        computer.runLoop.fireTimers();
    }
    expectTodayOf(kept(), used);
    expectTheHistorysToday({folder.path(), clock});
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

TEST_F(MonitoredEnergy, NamesAProcessThatLivesForOneCycle) {
    start();
    cycle(10);
    computer.processes.top = "%CPU COMM\n25.0 browser\n25.0 flash\n";
    cycle();
    computer.processes.top = "%CPU COMM\n25.0 browser\n25.0 editor\n";
    cycle(10);
    const auto apps = kept().byApp(EnergyRange::today);
    ASSERT_THAT(apps, SizeIs(4));
    EXPECT_EQ(apps[3].name, "flash");
    EXPECT_NEAR(apps[3].wattHours, 12 * 20.5 / 38 / 2 * 3 / 3600, 1e-12);
}

TEST_F(MonitoredEnergy, KeepsItsSumWithTenThousandNames) {
    std::string crowd = "%CPU COMM\n";
    for (int i = 0; i < 10'000; ++i) {
        crowd += fmt::format("0.01 program {}\n", i);
    }
    computer.processes.top = crowd;
    start();
    cycle(40);
    const auto reader = kept();
    expectTodayOf(reader, used);
    EXPECT_THAT(reader.byApp(EnergyRange::today), SizeIs(202));
}

TEST_F(MonitoredEnergy, IsWrittenOnceAMinute) {
    start();
    cycle(19);
    EXPECT_NEAR(sumOf(EnergyReader(folder.path(), clock).byApp(EnergyRange::today)), 12 * 3.0 / 3600, 1e-12);
    cycle();
    EXPECT_NEAR(sumOf(EnergyReader(folder.path(), clock).byApp(EnergyRange::today)), used, 1e-12);
}

TEST_F(MonitoredEnergy, IsNotLostWhileTheDiskIsFull) {
    start();
    cycle(30);
    {
        const FileSizeLimit full(std::filesystem::file_size(historyFile(folder.path()).string() + "-wal"));
        cycle(60);
    }
    cycle(30);
    const auto reader = kept();
    expectTodayOf(reader, used);
    EXPECT_TRUE(Database(historyFile(folder.path())).isSound());
}

TEST_F(MonitoredEnergy, IsSilentWithoutAHistory) {
    computer.folders.support = "/proc/nowhere";
    start();
    cycle(50);
    EXPECT_EQ(monitor->totalPower, 12.0);
    EXPECT_THAT(EnergyReader("/proc/nowhere", clock).byApp(EnergyRange::today), IsEmpty());
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
        for (int i = 0; i < 40 * 1440; ++i) { // a cycle each minute of forty days
            fields.totalPower = 10 + i % 7;
            fields.isPluggedIn = i % 1440 > 700;
            const auto listing =
                fmt::format("%CPU APPLICATION\n20.0 Browser\n{}.0 program {}\n", i % 13, i % 60);
            recorder.addCycle(fields, listing);
            used += i >= 10 * 1440 ? fields.totalPower * 3 / 3600 : 0;
            clock.time += 60;
            clock.boot.awake += 60;
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
