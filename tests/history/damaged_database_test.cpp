// A history that a newer program made, one of whose pages is rotten, and one that somebody reads for long.

#include <gmock/gmock.h>

#include "history/support/history_fixture.h"

namespace quelby {
namespace {

using testing::SizeIs;

class DamagedHistory : public HistoryTest {
protected:
    static constexpr std::size_t page = 512; // bytes

    // Two hours of readings and their means, in a file at rest.
    void recordAFewHours() {
        recordEvery(30, noon - 2 * hour, noon);
        recordAt(noon);
        store.reset();
    }

    void alter(const std::string& script) { Database(file).execute(script); }

    // Of the table's tree: its root, by which all of it is found.
    void spoilRootOf(const std::string& table) {
        const auto root = static_cast<std::size_t>(
            Database(file).number("SELECT rootpage FROM sqlite_schema WHERE name = '" + table + "'"));
        spoilPage(root - 1);
    }

    void spoilPage(std::size_t number) {
        auto bytes = folder.read("Quelby/history.db");
        bytes.replace(number * page, page, std::string(page, '\xA5'));
        folder.write("Quelby/history.db", bytes);
    }

    [[nodiscard]] std::size_t pointsOf(TimeRange range) { return store->loadData(range).points.size(); }
};

TEST_F(DamagedHistory, OfANewerProgramIsGoneOnWith) {
    recordAFewHours();
    alter("PRAGMA user_version = 99;"
          "ALTER TABLE readings ADD COLUMN fan REAL DEFAULT 7;"
          "CREATE TABLE fans (name TEXT PRIMARY KEY);"
          "CREATE INDEX by_watts ON readings (watts);");
    openAgain();
    const auto before = pointsOf(TimeRange::oneHour);
    recordAt(noon + 3);
    EXPECT_EQ(pointsOf(TimeRange::oneHour), before + 1);
    store.reset();
    EXPECT_EQ(Database(file).number("PRAGMA user_version"), 99);
    EXPECT_EQ(
        Database(file).number("SELECT fan FROM readings WHERE timestamp = " + std::to_string(noonSecond + 3)),
        7);
}

TEST_F(DamagedHistory, ThatWantsMoreOfAReadingThanIsKnownIsOnlyRead) {
    recordAFewHours();
    alter("DROP TABLE readings; CREATE TABLE readings (timestamp INTEGER PRIMARY KEY, watts REAL NOT NULL,"
          "battery_pct INTEGER, is_charging INTEGER, cpu_usage REAL, fan REAL NOT NULL);"
          "INSERT INTO readings VALUES (" +
          std::to_string(noonSecond - 60) + ", 12, 50, 0, 1, 2);");
    openAgain();
    recordAt(noon + 3);
    EXPECT_EQ(pointsOf(TimeRange::oneHour), 1U);
    EXPECT_GT(pointsOf(TimeRange::twentyFourHours), 100U);
}

TEST_F(DamagedHistory, InAFormOfANewerDatabaseIsLeftAsItIs) {
    recordAFewHours();
    const auto written = folder.read("Quelby/history.db");
    for (const std::size_t version : {18U, 19U}) { // of whom may write it, and of whom may read it
        auto newer = written;
        newer[version] = 3;
        folder.write("Quelby/history.db", newer);
        openAgain();
        recordAt(noon + 60);
        static_cast<void>(pointsOf(TimeRange::oneHour));
        static_cast<void>(store->todayWh());
        store.reset();
        EXPECT_EQ(folder.read("Quelby/history.db"), newer) << version;
    }
}

TEST_F(DamagedHistory, WithARottenTableHasTheOthers) {
    recordAFewHours();
    const auto whole = folder.read("Quelby/history.db");
    spoilRootOf("minute_avg");
    openAgain();
    recordAt(noon + 60); // and its aggregation
    recordAt(noon + 63);
    const auto points = store->loadData(TimeRange::oneHour).points;
    EXPECT_GT(points.size(), 100U);
    EXPECT_EQ(points.back().id, noonSecond + 63);
    EXPECT_EQ(pointsOf(TimeRange::twentyFourHours), 0U);
    EXPECT_GT(store->todayWh(), 0);
    store.reset();
    folder.write("Quelby/history.db", whole);
    spoilRootOf("readings");
    openAgain();
    recordAt(noon + 60);
    EXPECT_EQ(pointsOf(TimeRange::oneHour), 0U);
    EXPECT_GT(pointsOf(TimeRange::twentyFourHours), 100U);
    EXPECT_GT(pointsOf(TimeRange::sevenDays), 1U);
}

TEST_F(DamagedHistory, WithAnyPageRottenEndsNothing) {
    recordAFewHours();
    const auto whole = folder.read("Quelby/history.db");
    ASSERT_GE(whole.size(), 6 * page);
    for (std::size_t number = 0; number < whole.size() / page; ++number) {
        folder.write("Quelby/history.db", whole);
        spoilPage(number);
        for (const auto access : {HistoryAccess::recording, HistoryAccess::readOnly}) {
            store.emplace(folder.path(), clock, access);
            recordAt(noon + 60);
            for (const auto range : allTimeRanges) {
                static_cast<void>(store->loadData(range));
            }
            EXPECT_GE(store->todayWh(), 0) << number;
            store.reset();
        }
    }
}

TEST_F(DamagedHistory, ThatSomebodyReadsForAMinuteIsRecordedAllTheSame) {
    recordAt(noon);
    {
        Database reader(file);
        reader.execute("BEGIN");
        EXPECT_EQ(reader.number("SELECT COUNT(*) FROM readings"), 1);
        recordEvery(3, noon + 3, noon + 66);
        EXPECT_EQ(reader.number("SELECT COUNT(*) FROM readings"), 1); // what it saw when it began
        EXPECT_THAT(tables().readings, SizeIs(22));
        EXPECT_THAT(tables().minutes, SizeIs(2));
    }
    store.reset();
    EXPECT_EQ(folder.names("Quelby"), std::vector<std::string>{"history.db"}); // the log is in it, too
    EXPECT_THAT(tables().readings, SizeIs(22));
}

TEST_F(DamagedHistory, HasALogOfItsOldSizeOnceAReaderIsGone) {
    const auto log = [&] { return std::filesystem::file_size(file.string() + "-wal"); };
    recordEvery(1, noon, noon + 1500);
    const auto usual = log();
    {
        Database reader(file);
        reader.execute("BEGIN");
        EXPECT_GT(reader.number("SELECT COUNT(*) FROM readings"), 0);
        recordEvery(1, noon + 1500, noon + 4500);
        EXPECT_GT(log(), usual);
    }
    recordEvery(1, noon + 4500, noon + 6500);
    const auto grown = log(); // a file that became longer stays so, but is begun anew
    recordEvery(1, noon + 6500, noon + 8500);
    EXPECT_EQ(log(), grown);
}

} // namespace
} // namespace quelby
