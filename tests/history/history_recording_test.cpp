#include <gmock/gmock.h>

#include "history/support/history_fixture.h"

namespace quelby {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

using HistoryRecording = HistoryTest;

TEST_F(HistoryRecording, KeepsEveryColumnOfAReading) {
    store->addReading(12.5, 79, true, 33.25);
    EXPECT_THAT(tables().readings, ElementsAre(Pair(noonSecond, ReadingRow{12.5, 79, true, 33.25})));
}

TEST_F(HistoryRecording, CutsTheTimeToWholeSeconds) {
    recordAt(noon + 0.999);
    recordAt(noon + 1.0);
    recordAt(noon + 2.5);
    std::vector<std::int64_t> seconds;
    for (const auto& [second, row] : tables().readings) {
        seconds.push_back(second - noonSecond);
    }
    EXPECT_THAT(seconds, ElementsAre(0, 1, 2));
}

TEST_F(HistoryRecording, KeepsTheLaterOfTwoReadingsInOneSecond) {
    recordAt(noon + 0.1, 10, 50);
    recordAt(noon + 0.9, 20, 49);
    EXPECT_THAT(tables().readings, ElementsAre(Pair(noonSecond, ReadingRow{20, 49, false, 25})));
}

TEST_F(HistoryRecording, KeepsEveryFinitePowerAsItIs) {
    for (const double watts : {0.0, -3.5, 0.1 + 0.2, 1e-300, 1e300}) {
        recordAt(noon, watts);
        EXPECT_EQ(tables().readings.at(noonSecond).watts, watts);
    }
}

TEST_F(HistoryRecording, PassesOverAPowerThatIsNotANumber) {
    recordAt(noon, 10);
    recordAt(noon, std::nan(""));
    EXPECT_EQ(tables().readings.at(noonSecond).watts, 10);
}

TEST_F(HistoryRecording, GoesOnWhereTheStoreBeforeEnded) {
    recordAt(noon);
    openAgain();
    recordAt(noon + 3);
    EXPECT_EQ(tables().readings.size(), 2U);
}

TEST_F(HistoryRecording, IsOverWithTheStoreAndLeavesOneFile) {
    recordAt(noon);
    store.reset();
    EXPECT_THAT(folder.names("Quelby"), ElementsAre("history.db"));
}

TEST_F(HistoryRecording, GoesThroughAWriteAheadLog) {
    recordAt(noon);
    EXPECT_TRUE(std::filesystem::exists(file.string() + "-wal"));
    EXPECT_EQ(Database(file).number("SELECT COUNT(*) FROM pragma_journal_mode WHERE journal_mode = 'wal'"),
              1);
}

TEST_F(HistoryRecording, IsNotForReaders) {
    recordAt(noon);
    HistoryStore reader(folder.path(), clock, HistoryAccess::readOnly);
    clock.time = noon + 600;
    reader.addReading(10, 50, false, 25);
    EXPECT_EQ(tables().readings.size(), 1U);
}

TEST_F(HistoryRecording, LeavesTablesOfOtherShapesAsTheyAre) {
    store.reset();
    Database(file).execute("DROP TABLE readings; CREATE TABLE readings (timestamp INTEGER PRIMARY KEY)");
    openAgain();
    recordAt(noon);
    EXPECT_EQ(Database(file).number("SELECT COUNT(*) FROM readings"), 0);
    EXPECT_THAT(store->loadData(TimeRange::oneHour).points, IsEmpty());
}

} // namespace
} // namespace quelby
