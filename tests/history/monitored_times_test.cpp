// A monitor with its history, whose wall clock is set by years, and whose computer sleeps for a week.

#include <cmath>

#include "history/energy/monitored_energy.h"

namespace quelby {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

constexpr double aDay = 86400;
constexpr double tenYears = 3652 * aDay;

class MonitoredTimes : public MonitoredEnergy {
protected:
    // Every number that is shown is one, the figures follow the computer, and the present is recorded.
    void expectLife() {
        computer.processes.cpu = computer.processes.cpu == "%CPU\n50.0\n" ? "%CPU\n20.0\n" : "%CPU\n50.0\n";
        cycle();
        EXPECT_EQ(monitor->cpuUsage, computer.processes.cpu == "%CPU\n50.0\n" ? 50 : 20);
        EXPECT_EQ(monitor->totalPower, 12);
        for (const auto range : allTimeRanges) {
            monitor->selectHistoryRange(range);
            for (const double figure : {monitor->historyAvg.get(), monitor->historyMin.get(),
                                        monitor->historyMax.get(), monitor->todayWh.get()}) {
                EXPECT_TRUE(std::isfinite(figure) && figure >= 0) << figure;
            }
        }
        const auto readings = Database(historyFile(folder.path())).tables().readings;
        EXPECT_TRUE(readings.contains(static_cast<std::int64_t>(clock.time)));
        EXPECT_THAT(monitor->predictedTime.get() + monitor->batteryRateStr.get(),
                    Not(testing::AnyOf(HasSubstr("nan"), HasSubstr("inf"))));
    }
};

TEST_F(MonitoredTimes, MaySpringByYearsAheadAndBack) {
    start();
    cycle(30);
    for (const double jump : {tenYears, -tenYears, -tenYears, tenYears}) {
        clock.time += jump;
        cycle(30);
        expectLife();
    }
    const auto reader = kept();
    EXPECT_THAT(reader.sleeps(), testing::IsEmpty());
    EXPECT_THAT(reader.sessions(), SizeIs(1)) << "the cable was pulled all the time";
}

TEST_F(MonitoredTimes, MayBeginAtTheEpochUntilSomebodyKnowsBetter) {
    const double known = clock.time;
    clock.time = 12; // as after a night without a clock's battery
    start();
    cycle(30);
    expectLife();
    clock.time = known;
    cycle(30);
    expectLife();
    monitor->selectHistoryRange(TimeRange::thirtyMinutes);
    EXPECT_THAT(monitor->historyData.get(), SizeIs(31)); // none of 1970
}

TEST_F(MonitoredTimes, MayHaveAWeekOfSleepBetweenThem) {
    start();
    cycle(30);
    pass(0, 7 * aDay);
    setBattery(2200, false);
    fire();
    expectLife();
    cycle(30);
    expectLife();
    const auto reader = kept();
    ASSERT_THAT(reader.sleeps(), SizeIs(1));
    EXPECT_EQ(reader.sleeps()[0].seconds, 7 * static_cast<std::int64_t>(aDay));
    EXPECT_EQ(reader.sleeps()[0].percentBefore - reader.sleeps()[0].percentAfter, 6);
    EXPECT_THAT(reader.sessions(), SizeIs(1));
    const auto [readings, minutes, hours] = Database(historyFile(folder.path())).tables();
    EXPECT_EQ(hours.size(), 2U) << "of before, and of now";
    EXPECT_NEAR(sumOf(reader.byApp(EnergyRange::thirtyDays)), used, 1e-9)
        << "sleep is no use of the computer";
}

} // namespace
} // namespace quelby
