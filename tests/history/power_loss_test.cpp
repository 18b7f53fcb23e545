// The moment in which a computer loses its power, at any place of what the history had written by then.

#include <algorithm>
#include <cstdlib>
#include <map>
#include <random>

#include <gtest/gtest.h>

#include "base/number_text.h"
#include "history/history_file.h"
#include "history/history_store.h"
#include "history/support/recorded_disk.h"
#include "history/support/set_clock.h"
#include "history/support/tables.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

namespace fs = std::filesystem;

constexpr int readings = 4000; // one a second, so that the log is copied several times

// QUELBY_POWER_LOSSES asks for more.
std::int64_t rounds() {
    const char* const asked = std::getenv("QUELBY_POWER_LOSSES");
    return asked == nullptr ? 100 : wholeNumber(asked).value_or(0);
}

void apply(const DiskChange& change, std::string& content) {
    const auto place = static_cast<std::size_t>(change.place);
    if (change.kind == DiskChange::Kind::truncate) {
        content.resize(place);
    } else if (change.kind == DiskChange::Kind::write) {
        content.resize(std::max(content.size(), place + change.bytes.size()));
        content.replace(place, change.bytes.size(), change.bytes);
    }
}

// What is left of a file: all until its last flush, and of what came then whatever the disk got round to, in
// any order.
struct LeftFile {
    std::string flushed;
    std::vector<const DiskChange*> pending;

    void take(const DiskChange& change) {
        pending.push_back(&change);
        if (change.kind == DiskChange::Kind::flush) {
            for (const auto* const one : pending) {
                apply(*one, flushed);
            }
            pending.clear();
        }
    }

    [[nodiscard]] std::string afterPowerLoss(std::mt19937& chance) const {
        auto content = flushed;
        const double kept = std::uniform_real_distribution(0.0, 1.0)(chance);
        for (const auto* const one : pending) {
            if (std::bernoulli_distribution(kept)(chance)) {
                apply(*one, content);
            }
        }
        return content;
    }
};

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
    std::vector<std::size_t> losses(static_cast<std::size_t>(rounds()));
    ASSERT_FALSE(losses.empty());
    std::generate(losses.begin(), losses.end(),
                  [&] { return std::uniform_int_distribution<std::size_t>(1, changes.size())(chance); });
    std::sort(losses.begin(), losses.end());
    std::map<std::string, LeftFile> left{{"history.db", {}}, {"history.db-wal", {}}};
    std::size_t next = 0;
    int safe = 0; // readings in what was flushed
    for (const auto loss : losses) {
        for (; next < loss; ++next) {
            const auto& change = changes[next];
            left.at(change.file).take(change);
            if (change.kind == DiskChange::Kind::flush && change.file == "history.db-wal") {
                safe = readingsBefore(next);
            }
        }
        SCOPED_TRACE(testing::Message() << "after " << loss << " changes, " << safe << " readings flushed");
        const TemporaryFolder after(inMemory());
        for (const auto& [name, file] : left) {
            after.write(fs::path("Quelby") / name, file.afterPowerLoss(chance));
        }
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
