#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "history/history_file.h"
#include "history/support/tables.h"
#include "monitor/power_monitor.h"
#include "support/assignments.h"
#include "support/fake_platform.h"
#include "support/file_size_limit.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

namespace fs = std::filesystem;

// A laptop that draws 12 W, with its monitor.
class MonitoredHistory : public testing::Test {
protected:
    MonitoredHistory() {
        computer.folders.support = folder.path();
        computer.battery.reading = PropertyTable{{"AppleRawMaxCapacity", 100},
                                                 {"AppleRawCurrentCapacity", 79},
                                                 {"ExternalConnected", false},
                                                 {"InstantAmperage", -1000},
                                                 {"Voltage", 12000}};
        computer.processes.cpu = "%CPU\n25.0\n";
    }

    void startMonitoring(std::optional<HistoryAccess> history = HistoryAccess::recording) {
        monitor = PowerMonitor::create(computer.platform(), {.history = history});
        monitor->startMonitoring();
    }

    void cycle(int count = 1) {
        for (; count > 0; --count) {
            computer.clock.time += 3;
            computer.runLoop.fireTimers();
        }
    }

    // The figures go on, whatever happens to their history.
    void expectLivingFields() {
        computer.processes.cpu = "%CPU\n50.0\n";
        cycle();
        EXPECT_EQ(monitor->cpuUsage, 50.0);
        computer.processes.cpu = "%CPU\n25.0\n";
        cycle();
        EXPECT_EQ(monitor->cpuUsage, 25.0);
        EXPECT_EQ(monitor->totalPower, 12.0);
        EXPECT_EQ(monitor->batteryPercent, 79);
    }

    [[nodiscard]] Readings readings() const { return Database(file).tables().readings; }

    TemporaryFolder folder;
    fs::path file = historyFile(folder.path());
    fake::Computer computer;
    std::shared_ptr<PowerMonitor> monitor;
};

TEST_F(MonitoredHistory, IsNotTouchedBeforeTheStart) {
    const auto unstarted = PowerMonitor::create(computer.platform(), {.history = HistoryAccess::recording});
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST_F(MonitoredHistory, GetsAReadingFromEachCycle) {
    startMonitoring();
    cycle(2);
    EXPECT_EQ(readings().size(), 3U);
    EXPECT_EQ(readings().begin()->second, (ReadingRow{12, 79, false, 25}));
}

TEST_F(MonitoredHistory, IsShownAfterTheFirstCycleAndWhenARangeIsSelected) {
    startMonitoring();
    EXPECT_THAT(monitor->historyData.get(), ElementsAre(HistoryDataPoint{1'700'000'000, 12}));
    EXPECT_EQ(monitor->historyAvg, 12.0);
    EXPECT_EQ(monitor->historyMin, 12.0);
    EXPECT_EQ(monitor->historyMax, 12.0);
    EXPECT_EQ(monitor->todayWh, 12 * 3.0 / 3600);
    cycle(5);
    EXPECT_EQ(monitor->historyData.get().size(), 1U);
    monitor->selectHistoryRange(monitor->historyRange); // the same again
    EXPECT_EQ(monitor->historyData.get().size(), 6U);
    EXPECT_DOUBLE_EQ(monitor->todayWh, 6 * 12 * 3.0 / 3600);
    monitor->selectHistoryRange(TimeRange::sevenDays);
    EXPECT_EQ(monitor->historyRange, TimeRange::sevenDays);
    EXPECT_EQ(monitor->historyData.get().size(), 1U);
    EXPECT_EQ(monitor->historyAvg, 12.0);
}

TEST_F(MonitoredHistory, FillsWithEachCycleOfADemonstration) {
    monitor = PowerMonitor::create(computer.platform(),
                                   {.history = HistoryAccess::recording, .renewsShownHistory = true});
    std::size_t pointsAtTheUpdate = 0;
    monitor->onUpdate = [&] { pointsAtTheUpdate = monitor->historyData.get().size(); };
    monitor->startMonitoring();
    for (const std::size_t points : {2U, 3U, 4U}) {
        cycle();
        EXPECT_EQ(pointsAtTheUpdate, points);
    }
    EXPECT_DOUBLE_EQ(monitor->todayWh, 4 * 12 * 3.0 / 3600);
    monitor->selectHistoryRange(TimeRange::oneHour);
    cycle();
    EXPECT_EQ(monitor->historyRange, TimeRange::oneHour);
    EXPECT_EQ(monitor->historyData.get().size(), 5U);
}

TEST_F(MonitoredHistory, RenewsItsFieldsInOrder) {
    startMonitoring();
    EXPECT_THAT(
        assignedDuring(*monitor, [this] { monitor->selectHistoryRange(TimeRange::oneHour); }),
        ElementsAre("historyRange", "historyData", "historyAvg", "historyMin", "historyMax", "todayWh"));
}

TEST_F(MonitoredHistory, IsEmptyWithoutAConnection) {
    startMonitoring();
    computer.folders.support = "/proc/nowhere";
    int updates = 0;
    monitor->onUpdate = [&] { ++updates; };
    monitor->startMonitoring();
    EXPECT_EQ(updates, 1);
    EXPECT_THAT(monitor->historyData.get(), IsEmpty());
    EXPECT_EQ(monitor->historyAvg, 0.0);
    EXPECT_EQ(monitor->historyMin, 0.0);
    EXPECT_EQ(monitor->historyMax, 0.0);
    EXPECT_EQ(monitor->todayWh, 0.0);
    monitor->todayWh = 5;
    monitor->selectHistoryRange(TimeRange::oneHour);
    EXPECT_EQ(monitor->historyRange, TimeRange::oneHour);
    EXPECT_THAT(monitor->historyData.get(), IsEmpty());
    EXPECT_EQ(monitor->todayWh, 0.0);
    expectLivingFields();
}

TEST_F(MonitoredHistory, IsReadBesideARecorderByAMonitorThatRecordsNothing) {
    startMonitoring();
    computer.clock.time += 3;
    const auto reader = PowerMonitor::create(computer.platform(), {.history = HistoryAccess::readOnly});
    reader->startMonitoring();
    EXPECT_EQ(reader->historyData.get().size(), 1U);
    EXPECT_EQ(readings().size(), 1U);
}

TEST_F(MonitoredHistory, GoesOnWhenTheMonitorStartsAgain) {
    startMonitoring();
    monitor->stopMonitoring();
    computer.clock.time += 3;
    monitor->startMonitoring();
    EXPECT_EQ(monitor->historyData.get().size(), 2U);
}

TEST_F(MonitoredHistory, HasNothingButItsRangeWithoutAStore) {
    startMonitoring(std::nullopt);
    monitor->historyAvg = 7;
    monitor->todayWh = 8;
    monitor->selectHistoryRange(TimeRange::oneHour);
    EXPECT_EQ(monitor->historyRange, TimeRange::oneHour);
    EXPECT_EQ(monitor->historyAvg, 7.0);
    EXPECT_EQ(monitor->todayWh, 8.0);
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST_F(MonitoredHistory, IsRecordedFromTheFirstCycleThatMayRecord) {
    bool free = false;
    int questions = 0;
    monitor =
        PowerMonitor::create(computer.platform(), {.history = HistoryAccess::readOnly, .mayRecordNow = [&] {
                                                       ++questions;
                                                       return free;
                                                   }});
    monitor->startMonitoring();
    cycle(2);
    EXPECT_EQ(questions, 3);
    EXPECT_TRUE(fs::is_empty(folder.path())) << "a reader makes nothing";
    free = true;
    cycle(2);
    EXPECT_EQ(questions, 4) << "no more once it records";
    EXPECT_EQ(readings().size(), 2U);
    monitor->selectHistoryRange(TimeRange::thirtyMinutes);
    EXPECT_EQ(monitor->historyData.get().size(), 2U);
}

TEST_F(MonitoredHistory, IsOnlyReadForEverWhereNobodySaysOtherwise) {
    startMonitoring(HistoryAccess::readOnly);
    cycle(2);
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST_F(MonitoredHistory, OfAReaderIsWhatARecorderHasBegunSince) {
    startMonitoring(HistoryAccess::readOnly);
    const auto reader = monitor;
    EXPECT_THAT(reader->historyData.get(), IsEmpty());
    startMonitoring(HistoryAccess::recording);
    monitor->stopMonitoring();
    reader->selectHistoryRange(TimeRange::thirtyMinutes);
    EXPECT_THAT(reader->historyData.get(), ElementsAre(HistoryDataPoint{1'700'000'000, 12}));
    EXPECT_GT(reader->todayWh, 0.0);
}

TEST_F(MonitoredHistory, GoesOnAfterAFullDiskHasRoomAgain) {
    startMonitoring();
    cycle(30);
    {
        const FileSizeLimit full(fs::file_size(file.string() + "-wal"));
        cycle(30);
        expectLivingFields();
        EXPECT_EQ(readings().size(), 31U);
        monitor->selectHistoryRange(TimeRange::oneHour);
        EXPECT_EQ(monitor->historyData.get().size(), 31U);
    }
    cycle(30);
    EXPECT_EQ(readings().size(), 61U);
    EXPECT_TRUE(Database(file).isSound());
}

TEST_F(MonitoredHistory, StartsOnAFullDiskWithoutOne) {
    {
        const FileSizeLimit full(0);
        startMonitoring();
        expectLivingFields();
    }
    startMonitoring();
    EXPECT_EQ(readings().size(), 1U);
}

TEST_F(MonitoredHistory, EndsWithItsFolderUntilTheNextStart) {
    startMonitoring();
    fs::remove_all(folder.path() / "Quelby");
    expectLivingFields();
    EXPECT_TRUE(fs::is_empty(folder.path()));
    monitor->stopMonitoring();
    monitor->startMonitoring();
    EXPECT_EQ(readings().size(), 1U);
}

TEST_F(MonitoredHistory, LeavesAFileInItsFoldersPlaceAsItIs) {
    startMonitoring();
    fs::remove_all(folder.path() / "Quelby");
    folder.write("Quelby", "mine");
    expectLivingFields();
    monitor->startMonitoring();
    expectLivingFields();
    EXPECT_EQ(folder.read("Quelby"), "mine");
}

} // namespace
} // namespace quelby
