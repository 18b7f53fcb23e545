// A disk that is full for a moment, or gone for good, at each single change that the history makes of it.

#include <optional>

#include <gtest/gtest.h>

#include "history/history_file.h"
#include "history/history_store.h"
#include "history/support/recorded_disk.h"
#include "history/support/set_clock.h"
#include "history/support/tables.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

constexpr int readings = 25;
constexpr int step = 6; // seconds: a minute's means are computed more than once

class FailingDisk : public testing::Test {
protected:
    using Outcome = std::function<int(std::size_t number)>;

    struct Left {
        Readings kept;
        std::size_t changes = 0;
        std::vector<std::size_t> changesUntil; // by the reading
        bool isSound = false;
    };

    [[nodiscard]] static Left record(const Outcome& outcome) {
        const TemporaryFolder folder(inMemory());
        SetClock clock;
        Left left;
        {
            RecordedDisk disk;
            disk.outcome = outcome;
            HistoryStore store(folder.path(), clock, HistoryAccess::recording);
            for (int i = 0; i < readings; ++i) {
                clock.time = noon + i * step;
                store.addReading(i, 50, false, 3);
                left.changesUntil.push_back(disk.changes().size());
            }
            static_cast<void>(store.loadData(TimeRange::thirtyMinutes));
            left.changes = disk.changes().size();
        }
        const HistoryStore again(folder.path(), clock, HistoryAccess::recording);
        Database database(historyFile(folder.path()));
        left.isSound = database.isSound();
        left.kept = database.tables().readings;
        return left;
    }

    [[nodiscard]] static bool has(const Left& left, int reading) {
        return left.kept.contains(noonSecond + std::int64_t{reading} * step);
    }

    Left whole = record(nullptr);
};

TEST_F(FailingDisk, CostsAtMostTheReadingThatItHadNoRoomFor) {
    ASSERT_EQ(whole.kept.size(), readings);
    ASSERT_GT(whole.changes, 60U);
    // A quota that is used up looks otherwise to SQLite than a full disk does. The first changes make the
    // tables; without these there is no history, and that is tested elsewhere.
    for (const int reason : {SQLITE_FULL, SQLITE_IOERR_WRITE}) {
        for (std::size_t full = whole.changesUntil.front(); full < whole.changesUntil.back(); ++full) {
            SCOPED_TRACE(testing::Message() << reason << " at " << full);
            const auto left = record([&](std::size_t number) { return number == full ? reason : SQLITE_OK; });
            EXPECT_TRUE(left.isSound);
            EXPECT_GE(left.kept.size(), readings - 1U);
            EXPECT_TRUE(has(left, readings - 1) || full >= whole.changesUntil[readings - 2]);
        }
    }
}

TEST_F(FailingDisk, KeepsWhatItHadWhereItIsGoneForGood) {
    for (std::size_t end = whole.changesUntil.front(); end < whole.changesUntil.back(); ++end) {
        SCOPED_TRACE(end);
        const auto left =
            record([&](std::size_t number) { return number >= end ? SQLITE_IOERR : SQLITE_OK; });
        EXPECT_TRUE(left.isSound);
        for (int i = 0; i < readings && whole.changesUntil[static_cast<std::size_t>(i)] <= end; ++i) {
            EXPECT_TRUE(has(left, i)) << i;
        }
    }
}

} // namespace
} // namespace quelby
