// A disk that is full for a moment, or gone for good, at each single change that the tables of energy make of
// it.
#include <optional>

#include <gtest/gtest.h>

#include "history/history_file.h"
#include "history/history_store.h"
#include "history/support/recorded_disk.h"
#include "history/support/tables.h"
#include "monitored_energy.h"

namespace quelby {
namespace {

constexpr int cyclesRecorded = 4 * 20; // so that four minutes are written

class EnergyOnAFailingDisk : public testing::Test {
protected:
    using Outcome = std::function<int(std::size_t number)>;

    struct Left {
        double wattHours = 0;
        double ofComponents = 0;
        bool isSound = false;
        std::size_t sleeps = 0;
        std::vector<Session> sessions;
        std::vector<BatteryDay> days;
        std::size_t opened = 0;  // changes until the tables were there
        std::size_t changes = 0; // all
    };

    [[nodiscard]] static Left record(const Outcome& outcome) {
        const TemporaryFolder folder(inMemory());
        LivingClock clock;
        PublishedFields fields;
        fields.totalPower = 12;
        fields.cpuPower = 6;
        fields.hasBattery = true;
        fields.rawMaxCapacity = 4600;
        fields.rawCurrentCapacity = 2300;
        fields.voltage = 12;
        Left left;
        {
            RecordedDisk disk;
            disk.outcome = outcome;
            const HistoryStore store(folder.path(), clock, HistoryAccess::recording);
            EnergyRecorder recorder(folder.path(), clock);
            left.opened = disk.changes().size();
            for (int i = 0; i < cyclesRecorded; ++i) {
                clock.boot.asleep += i == cyclesRecorded / 2 ? 600 : 0;
                clock.time += i == cyclesRecorded / 2 ? 603 : 3;
                clock.boot.awake += 3;
                recorder.addCycle(fields, "%CPU APPLICATION\n5.0 browser\n5.0 editor\n");
            }
            recorder.write(); // once more, where the last failed
            recorder.write();
            left.changes = disk.changes().size();
        }
        const HistoryStore again(folder.path(), clock, HistoryAccess::recording);
        left.isSound = Database(historyFile(folder.path())).isSound();
        const EnergyReader reader(folder.path(), clock);
        left.wattHours = sum(reader.byApp(EnergyRange::thirtyDays));
        left.ofComponents = sum(reader.byComponent(EnergyRange::thirtyDays));
        left.sleeps = reader.sleeps().size();
        left.sessions = reader.sessions();
        left.days = reader.batteryDays();
        return left;
    }

    static double sum(const std::vector<NamedEnergy>& energy) {
        double sum = 0;
        for (const auto& part : energy) {
            sum += part.wattHours;
        }
        return sum;
    }

    Left whole = record(nullptr);
};

TEST_F(EnergyOnAFailingDisk, LosesNothingWhereItIsFullForAMoment) {
    ASSERT_NEAR(whole.wattHours, cyclesRecorded * 12 * 3.0 / 3600, 1e-9);
    ASSERT_EQ(whole.sleeps, 1U);
    ASSERT_EQ(whole.sessions.size(), 1U);
    ASSERT_EQ(whole.days.size(), 1U);
    ASSERT_GT(whole.changes, whole.opened + 20);
    for (std::size_t full = whole.opened; full < whole.changes; ++full) {
        SCOPED_TRACE(full);
        const auto left =
            record([&](std::size_t number) { return number == full ? SQLITE_FULL : SQLITE_OK; });
        EXPECT_TRUE(left.isSound);
        EXPECT_NEAR(left.wattHours, whole.wattHours, 1e-9);
        EXPECT_NEAR(left.ofComponents, whole.wattHours, 1e-9);
        EXPECT_EQ(left.sleeps, 1U);
        EXPECT_EQ(left.sessions, whole.sessions);
        EXPECT_EQ(left.days, whole.days);
    }
}

TEST_F(EnergyOnAFailingDisk, KeepsWhatItHadWhereItIsGoneForGood) {
    double before = 0;
    for (std::size_t end = whole.opened; end <= whole.changes; ++end) {
        SCOPED_TRACE(end);
        const auto left =
            record([&](std::size_t number) { return number >= end ? SQLITE_IOERR : SQLITE_OK; });
        EXPECT_TRUE(left.isSound);
        EXPECT_NEAR(left.ofComponents, left.wattHours, 1e-9) << "all of a minute or nothing";
        EXPECT_GE(left.wattHours, before - 1e-9);
        before = left.wattHours;
    }
    EXPECT_NEAR(before, whole.wattHours, 1e-9);
}

} // namespace
} // namespace quelby
