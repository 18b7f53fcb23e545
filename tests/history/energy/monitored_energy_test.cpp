// Where the energy went, as a whole monitor keeps it: each sum is made a second time here, from what the
// computer was made to do.
#include "monitored_energy.h"

#include <fmt/format.h>

#include "support/file_size_limit.h"

namespace quelby {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

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

TEST_F(MonitoredEnergy, CountsOneOfSeveralCyclesWithinASecondAsTheHistoryDoes) {
    start();
    for (int i = 0; i < 10; ++i) {
        pass(0.05);
        computer.runLoop.fireTimers();
    }
    expectTodayOf(kept(), used);
    expectTheHistorysToday({folder.path(), clock});
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

TEST_F(MonitoredEnergy, KeepsTheLatestThirtySleepsOfATimeWithoutRoom) {
    start();
    cycle(30);
    const auto first = clock.time;
    {
        const FileSizeLimit full(std::filesystem::file_size(historyFile(folder.path()).string() + "-wal"));
        for (int i = 0; i < 31; ++i) {
            pass(3, 3600);
            fire();
        }
    }
    cycle(30);
    const auto sleeps = kept().sleeps();
    ASSERT_THAT(sleeps, SizeIs(30));
    EXPECT_GT(sleeps.back().start, first + 3600);
}

TEST_F(MonitoredEnergy, IsSilentWithoutAHistory) {
    computer.folders.support = "/proc/nowhere";
    start();
    cycle(50);
    EXPECT_EQ(monitor->totalPower, 12.0);
    EXPECT_THAT(EnergyReader("/proc/nowhere", clock).byApp(EnergyRange::today), IsEmpty());
}

} // namespace
} // namespace quelby
