// The moment in which a computer loses its power, at any place of what the history had written by then.

#include <algorithm>
#include <cstdlib>
#include <random>

#include <gtest/gtest.h>

#include "base/number_text.h"
#include "history/history_file.h"
#include "history/history_store.h"
#include "history/support/left_files.h"
#include "history/support/recorded_disk.h"
#include "history/support/set_clock.h"
#include "history/support/tables.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

constexpr int readings = 4000; // one a second, so that the log is copied several times

// QUELBY_POWER_LOSSES asks for more.
std::int64_t rounds() {
    const char* const asked = std::getenv("QUELBY_POWER_LOSSES");
    return asked == nullptr ? 100 : wholeNumber(asked).value_or(0);
}

class PowerLoss : public testing::Test {
protected:
    // All that happened until the power went, before anybody could tidy up.
    void record() {
        RecordedDisk disk;
        HistoryStore store(folder.path(), clock, HistoryAccess::recording);
        for (int i = 0; i < readings; ++i) {
            clock.time = noon + i;
            store.addReading(10 + i % 7, 50, false, 3);
            changesUntil.push_back(disk.changes().size());
        }
        changes = disk.changes();
    }

    // How many readings had been written wholly before this change.
    [[nodiscard]] int readingsBefore(std::size_t change) const {
        return static_cast<int>(std::upper_bound(changesUntil.begin(), changesUntil.end(), change) -
                                changesUntil.begin());
    }

    TemporaryFolder folder{inMemory()};
    SetClock clock;
    std::vector<DiskChange> changes;
    std::vector<std::size_t> changesUntil; // by the reading
};

TEST_F(PowerLoss, TakesNothingThatWasFlushedAndNeverTheDatabase) {
    record();
    std::mt19937 chance(1);
    ASSERT_GT(rounds(), 0);
    LeftFiles left;
    std::size_t next = 0;
    int safe = 0; // readings in what was flushed
    for (const auto loss : powerLosses(static_cast<std::size_t>(rounds()), changes.size(), chance)) {
        for (; next < loss; ++next) {
            const auto& change = changes[next];
            left.take(change);
            if (change.kind == DiskChange::Kind::flush && change.file == "history.db-wal") {
                safe = readingsBefore(next);
            }
        }
        SCOPED_TRACE(testing::Message() << "after " << loss << " changes, " << safe << " readings flushed");
        const TemporaryFolder after(inMemory());
        left.writeTo(after.path() / "Quelby", chance);
        HistoryStore store(after.path(), clock, HistoryAccess::recording);
        ASSERT_TRUE(store.opened());
        store.addReading(99, 50, false, 3); // and it goes on
        Database database(historyFile(after.path()));
        ASSERT_TRUE(database.isSound());
        const auto kept = database.tables().readings;
        EXPECT_EQ(kept.rbegin()->second.watts, 99);
        for (int i = 0; i < safe; ++i) {
            ASSERT_TRUE(kept.contains(noonSecond + i)) << i;
        }
    }
    EXPECT_GT(safe, readings / 2); // the log had been copied by then
}

} // namespace
} // namespace quelby
