#include <gmock/gmock.h>

#include "history/support/history_fixture.h"

namespace quelby {
namespace {

using testing::SizeIs;

namespace fs = std::filesystem;

void expectNothing(HistoryStore& store) {
    store.addReading(10, 50, false, 25);
    for (const auto range : allTimeRanges) {
        EXPECT_EQ(store.loadData(range), HistoryResult{}) << label(range);
    }
    EXPECT_EQ(store.todayWh(), 0.0);
}

TEST(HistoryWithoutDatabase, RecordsNothingWhereNoFolderCanBeMade) {
    const TemporaryFolder folder;
    const auto regularFile = folder.write("file", "mine");
    SetClock clock;
    for (const fs::path& support : {regularFile, regularFile / "below", fs::path("/proc/nowhere")}) {
        HistoryStore store(support, clock, HistoryAccess::recording);
        EXPECT_EQ(store.opened().error().sentence, "cannot open the history \"" +
                                                       historyFile(support).string() +
                                                       "\": unable to open database file");
        expectNothing(store);
        EXPECT_FALSE(fs::exists(historyFile(support)));
    }
    EXPECT_EQ(folder.read("file"), "mine");
}

TEST(HistoryWithoutDatabase, RecordsNothingWhereAFileIsInTheFoldersPlace) {
    const TemporaryFolder folder;
    SetClock clock;
    folder.write("Quelby", "mine");
    HistoryStore store(folder.path(), clock, HistoryAccess::recording);
    expectNothing(store);
    EXPECT_EQ(folder.read("Quelby"), "mine");
}

TEST(HistoryWithoutDatabase, RecordsNothingWhereAFolderIsInTheFilesPlace) {
    const TemporaryFolder folder;
    SetClock clock;
    fs::create_directories(historyFile(folder.path()));
    HistoryStore store(folder.path(), clock, HistoryAccess::recording);
    expectNothing(store);
    EXPECT_TRUE(fs::is_empty(historyFile(folder.path())));
}

TEST(HistoryWithoutDatabase, IsEmptyForAReaderAndStaysAway) {
    const TemporaryFolder folder;
    SetClock clock;
    HistoryStore reader(folder.path(), clock, HistoryAccess::readOnly);
    EXPECT_THAT(reader.opened().error().sentence, testing::HasSubstr("there is no history yet"));
    expectNothing(reader);
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

using HistoryAtRest = HistoryTest;

// At rest it is read as a file that nobody writes to.
TEST_F(HistoryAtRest, IsLeftByAReaderWhereARecorderBeginsAndTakenUpAgain) {
    recordAt(noon);
    store.reset();
    HistoryStore reader(folder.path(), clock, HistoryAccess::readOnly);
    EXPECT_EQ(reader.loadData(TimeRange::oneHour).points.size(), 1U);
    for (int readings = 2; readings < 6; ++readings) {
        openAgain();
        recordAt(noon + 3 * readings);
        EXPECT_EQ(reader.loadData(TimeRange::oneHour).points.size(), static_cast<std::size_t>(readings));
        EXPECT_DOUBLE_EQ(reader.todayWh(), store->todayWh());
        store.reset();
        EXPECT_EQ(reader.loadData(TimeRange::oneHour).points.size(), static_cast<std::size_t>(readings));
    }
    EXPECT_FALSE(fs::exists(file.string() + "-wal")) << "the recorder was the last to leave";
}

TEST_F(HistoryAtRest, IsReadAnewWhereAnotherHasTakenItsPlace) {
    recordEvery(3, noon, noon + 30);
    HistoryStore reader(folder.path(), clock, HistoryAccess::readOnly);
    EXPECT_GT(reader.loadData(TimeRange::oneHour).points.size(), 9U);
    store.reset();
    fs::remove_all(file.parent_path());
    EXPECT_THAT(reader.loadData(TimeRange::oneHour).points, testing::IsEmpty());
    openAgain();
    recordAt(noon + 60);
    EXPECT_EQ(reader.loadData(TimeRange::oneHour).points.size(), 1U);
}

using HistoryWithABadDatabase = HistoryTest;

TEST_F(HistoryWithABadDatabase, LeavesAFileOfAnotherKindAsItIs) {
    store.reset();
    const std::string text = "Dear diary,\n" + std::string(10'000, '.');
    folder.write("Quelby/history.db", text);
    for (const auto access : {HistoryAccess::recording, HistoryAccess::readOnly}) {
        HistoryStore other(folder.path(), clock, access);
        expectNothing(other);
    }
    EXPECT_EQ(folder.read("Quelby/history.db"), text);
}

TEST_F(HistoryWithABadDatabase, LeavesADatabaseThatWasCutOffAsItIs) {
    recordEvery(3, noon - hour, noon);
    store.reset();
    const auto whole = folder.read("Quelby/history.db");
    for (const auto length : {std::size_t{100}, std::size_t{4096}, std::size_t{5000}, whole.size() / 2}) {
        folder.write("Quelby/history.db", whole.substr(0, length));
        for (const auto access : {HistoryAccess::recording, HistoryAccess::readOnly}) {
            HistoryStore cut(folder.path(), clock, access);
            expectNothing(cut);
        }
        EXPECT_EQ(folder.read("Quelby/history.db"), whole.substr(0, length)) << length;
    }
}

TEST_F(HistoryWithABadDatabase, BeginsInAnEmptyFile) {
    store.reset();
    folder.write("Quelby/history.db", "");
    openAgain();
    EXPECT_TRUE(store->opened());
    recordAt(noon);
    EXPECT_EQ(tables().readings.size(), 1U);
}

TEST_F(HistoryWithABadDatabase, SkipsWhatComesWhileAnotherHoldsTheLock) {
    recordAt(noon);
    Database other(file);
    other.execute("BEGIN EXCLUSIVE");
    recordAt(noon + 60); // and its aggregation
    EXPECT_EQ(store->loadData(TimeRange::oneHour).points.size(), 1U);
    other.execute("COMMIT");
    recordAt(noon + 63);
    EXPECT_THAT(tables().minutes, SizeIs(1)); // the run was due at 12:01 and is not made up for
    recordAt(noon + 120);
    const auto [readings, minutes, hours] = tables();
    EXPECT_THAT(readings, SizeIs(3));
    EXPECT_THAT(minutes, SizeIs(3));
}

// Without the write-ahead log a reader keeps the recorder from committing.
TEST_F(HistoryWithABadDatabase, LeavesNothingOpenThatItCouldNotCommit) {
    recordAt(noon);
    store.reset();
    Database other(file);
    other.execute("PRAGMA journal_mode=DELETE");
    other.execute("BEGIN; SELECT * FROM readings");
    openAgain();
    recordAt(noon + 60);
    other.execute("COMMIT");
    recordAt(noon + 63);
    const auto [readings, minutes, hours] = tables();
    EXPECT_THAT(readings, SizeIs(2));
    EXPECT_THAT(minutes, SizeIs(1)); // the run of 12:01 was taken back
}

TEST_F(HistoryWithABadDatabase, IsReadBesideALock) {
    recordAt(noon);
    Database other(file);
    other.execute("BEGIN EXCLUSIVE");
    HistoryStore reader(folder.path(), clock, HistoryAccess::readOnly);
    EXPECT_EQ(reader.loadData(TimeRange::oneHour).points.size(), 1U);
    EXPECT_GT(reader.todayWh(), 0.0);
    other.execute("COMMIT");
}

} // namespace
} // namespace quelby
