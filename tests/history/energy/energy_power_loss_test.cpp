// The moment in which a computer loses its power, for the tables that tell where the energy went: whatever is
// left, they all tell of the same moment.
#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "energy_fixture.h"
#include "history/support/left_files.h"

namespace quelby {
namespace {

constexpr int minutesWritten = 500; // so that the log is copied several times
constexpr std::size_t energyLosses = 60;

// A minute's batch: 3 Wh, a sleep, a session that goes on, and the battery of a day of twenty minutes.
EnergyBatch batchOf(std::int64_t number) {
    const auto now = noonSecond + number * 60;
    return {.hours = {{.hour = now / 3600 * 3600,
                       .apps = {{number % 2 == 0 ? "editor" : "browser", 1}, {"system", 2}},
                       .components = {{"cpu", 1}, {"rest", 2}}}},
            .sleeps = {{.start = now, .end = now + 1, .seconds = 1}},
            .sessions = {{.kind = SessionKind::discharge,
                          .start = noonSecond,
                          .end = now,
                          .seconds = number * 60,
                          .wattHours = 3.0 * static_cast<double>(number + 1)}},
            .days = {{.day = number / 20 * 86'400, .fullCapacity = 4600, .cycleCount = number}}};
}

class EnergyAfterPowerLoss : public testing::Test {
protected:
    void record() {
        RecordedDisk disk;
        HistoryStore store(folder.path(), clock, HistoryAccess::recording);
        EnergyWriter writer(folder.path());
        for (int i = 0; i < minutesWritten; ++i) {
            clock.time = noon + i * 60;
            store.addReading(12, 50, false, 3);
            ASSERT_TRUE(writer.write(batchOf(i), clock.time));
            changesUntil.push_back(disk.changes().size());
        }
        changes = disk.changes();
    }

    [[nodiscard]] int batchesBefore(std::size_t change) const {
        return static_cast<int>(std::upper_bound(changesUntil.begin(), changesUntil.end(), change) -
                                changesUntil.begin());
    }

    // How many batches are in the tables, which must agree.
    static int batchesIn(const std::filesystem::path& file) {
        Database database(file);
        EXPECT_TRUE(database.isSound());
        const auto count = database.number("SELECT SUM(watt_hours) FROM app_energy") / 3;
        EXPECT_EQ(database.number("SELECT SUM(watt_hours) FROM component_energy"), count * 3);
        EXPECT_EQ(database.number("SELECT COUNT(*) FROM sleeps"), std::min<std::int64_t>(count, 30));
        if (count > 0) {
            EXPECT_EQ(database.number("SELECT MAX(start) FROM sleeps"), noonSecond + (count - 1) * 60);
            EXPECT_EQ(database.number("SELECT watt_hours FROM sessions"), count * 3);
            EXPECT_EQ(database.number("SELECT MAX(cycles) FROM battery_days"), count - 1);
            EXPECT_EQ(database.number("SELECT COUNT(*) FROM battery_days"), (count + 19) / 20);
        }
        return static_cast<int>(count);
    }

    TemporaryFolder folder{inMemory()};
    SetClock clock;
    std::vector<DiskChange> changes;
    std::vector<std::size_t> changesUntil; // by the batch
};

TEST_F(EnergyAfterPowerLoss, HasAllThatWasFlushedAndNoBatchByHalves) {
    record();
    std::mt19937 chance(1);
    LeftFiles left;
    std::size_t next = 0;
    int safe = 0;
    for (const auto loss : powerLosses(energyLosses, changes.size(), chance)) {
        for (; next < loss; ++next) {
            const auto& change = changes[next];
            left.take(change);
            if (change.kind == DiskChange::Kind::flush && change.file == "history.db-wal") {
                safe = batchesBefore(next);
            }
        }
        SCOPED_TRACE(testing::Message() << "after " << loss << " changes, " << safe << " batches flushed");
        const TemporaryFolder after(inMemory());
        left.writeTo(after.path() / "Quelby", chance);
        const HistoryStore store(after.path(), clock, HistoryAccess::recording);
        ASSERT_TRUE(store.opened());
        EnergyWriter writer(after.path());
        const auto file = historyFile(after.path());
        const int kept = batchesIn(file);
        ASSERT_GE(kept, safe);
        ASSERT_TRUE(writer.write(batchOf(kept), clock.time)); // and it goes on
        ASSERT_EQ(batchesIn(file), kept + 1);
    }
    EXPECT_GT(safe, minutesWritten / 2); // the log had been copied by then
}

} // namespace
} // namespace quelby
