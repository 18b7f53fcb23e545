// A recorder that is killed at each single change that it makes of the disk, aggregations included. What
// stands between two changes leaves nothing that could be lost.

#include <csignal>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "history/history_file.h"
#include "history/history_store.h"
#include "history/support/recorded_disk.h"
#include "history/support/set_clock.h"
#include "history/support/tables.h"
#include "support/started.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

constexpr int readings = 12;
constexpr int step = 20; // seconds: every third reading aggregates

// Gives how many changes there had been after each reading.
std::vector<std::size_t> recordAll(const std::filesystem::path& folder,
                                   const std::function<int(std::size_t)>& outcome) {
    SetClock clock;
    RecordedDisk disk;
    disk.outcome = outcome;
    HistoryStore store(folder, clock, HistoryAccess::recording);
    std::vector<std::size_t> changes;
    for (int i = 0; i < readings; ++i) {
        clock.time = noon + i * step;
        store.addReading(i, 50, false, 3);
        changes.push_back(disk.changes().size());
    }
    return changes;
}

int killedAt(std::size_t change, const std::filesystem::path& folder) {
    const pid_t victim = started(::fork());
    if (victim == 0) {
        static_cast<void>(recordAll(folder, [change](std::size_t number) {
            return number == change ? ::kill(::getpid(), SIGKILL) : SQLITE_OK;
        }));
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(victim, &status, 0);
    return status;
}

TEST(KilledAtEachChange, ARecorderLosesOnlyTheReadingInFlight) {
    const TemporaryFolder undisturbed(inMemory());
    const auto changes = recordAll(undisturbed.path(), nullptr);
    ASSERT_GT(changes.back(), 30U);
    for (std::size_t change = 0; change < changes.back(); ++change) {
        SCOPED_TRACE(change);
        const TemporaryFolder folder(inMemory());
        ASSERT_TRUE(WIFSIGNALED(killedAt(change, folder.path())));
        SetClock clock;
        clock.time = noon + readings * step;
        HistoryStore next(folder.path(), clock, HistoryAccess::recording);
        next.addReading(99, 50, false, 3);
        Database database(historyFile(folder.path()));
        ASSERT_TRUE(database.isSound());
        const auto [kept, minutes, hours] = database.tables();
        EXPECT_EQ(kept.rbegin()->second.watts, 99);
        for (int i = 0; i < readings && changes[static_cast<std::size_t>(i)] <= change; ++i) {
            EXPECT_TRUE(kept.contains(noonSecond + std::int64_t{i} * step)) << i;
        }
        EXPECT_EQ(minutes.at(noonSecond + std::int64_t{readings} * step / 60 * 60).watts, 99); // made up for
        EXPECT_EQ(hours.size(), 1U);
    }
}

} // namespace
} // namespace quelby
