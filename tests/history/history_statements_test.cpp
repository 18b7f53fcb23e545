#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "history/history_store.h"
#include "history/support/set_clock.h"
#include "history/support/statement_log.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

using testing::ElementsAre;

class HistoryStatements : public testing::Test {
protected:
    StatementLog log; // before the store, whose connection it is to see
    TemporaryFolder folder;
    SetClock clock;
    HistoryStore store{folder.path(), clock, HistoryAccess::recording};
};

TEST_F(HistoryStatements, OfAnOpeningMakeTheTables) {
    EXPECT_THAT(log.take(), ElementsAre("PRAGMA page_size=512;", "PRAGMA journal_mode=WAL;",
                                        "PRAGMA synchronous=NORMAL;", "PRAGMA wal_autocheckpoint=400;",
                                        "CREATE TABLE IF NOT EXISTS readings (\n"
                                        "    timestamp INTEGER PRIMARY KEY,\n"
                                        "    watts REAL NOT NULL,\n"
                                        "    battery_pct INTEGER,\n"
                                        "    is_charging INTEGER,\n"
                                        "    cpu_usage REAL\n"
                                        ");",
                                        "CREATE TABLE IF NOT EXISTS minute_avg (\n"
                                        "    timestamp INTEGER PRIMARY KEY,\n"
                                        "    watts REAL NOT NULL,\n"
                                        "    battery_pct REAL\n"
                                        ");",
                                        "CREATE TABLE IF NOT EXISTS hour_avg (\n"
                                        "    timestamp INTEGER PRIMARY KEY,\n"
                                        "    watts REAL NOT NULL,\n"
                                        "    battery_pct REAL\n"
                                        ");"));
}

TEST_F(HistoryStatements, OfAReadingThatAggregatesHaveWholeSecondsAsBounds) {
    static_cast<void>(log.take());
    clock.time = 1'700'007'200.5;
    store.addReading(12.5, 79, true, 33.25);
    EXPECT_THAT(log.take(),
                ElementsAre("INSERT OR REPLACE INTO readings (timestamp, watts, battery_pct, is_charging, "
                            "cpu_usage) VALUES (1700007200, 12.5, 79, 1, 33.25)",
                            "BEGIN",
                            "INSERT OR REPLACE INTO minute_avg (timestamp, watts, battery_pct)\n"
                            "SELECT (timestamp / 60) * 60, AVG(watts), AVG(battery_pct)\n"
                            "FROM readings\n"
                            "WHERE timestamp > 1699834400\n"
                            "GROUP BY timestamp / 60",
                            "INSERT OR REPLACE INTO hour_avg (timestamp, watts, battery_pct)\n"
                            "SELECT (timestamp / 3600) * 3600, AVG(watts), AVG(battery_pct)\n"
                            "FROM minute_avg\n"
                            "WHERE timestamp > 1697415200\n"
                            "GROUP BY timestamp / 3600",
                            "DELETE FROM readings WHERE timestamp < 1700000000;",
                            "DELETE FROM minute_avg WHERE timestamp < 1699834400;",
                            "DELETE FROM hour_avg WHERE timestamp < 1697415200;", "COMMIT"));
}

TEST_F(HistoryStatements, HaveAMinusSignForBoundsBefore1970AndNoneForZero) {
    static_cast<void>(log.take());
    clock.time = 7200.25;
    store.addReading(10, 50, false, 25);
    const auto statements = log.take();
    ASSERT_EQ(statements.size(), 8U);
    EXPECT_EQ(statements[4], "DELETE FROM readings WHERE timestamp < 0;");
    EXPECT_EQ(statements[5], "DELETE FROM minute_avg WHERE timestamp < -165599;"); // toward zero
}

TEST_F(HistoryStatements, OfAReadingWithinTheMinuteAreItsInsertion) {
    store.addReading(10, 50, false, 25);
    static_cast<void>(log.take());
    clock.time += 59.75;
    store.addReading(10, 50, false, 25);
    EXPECT_EQ(log.take().size(), 1U);
    clock.time += 0.25;
    store.addReading(10, 50, false, 25);
    EXPECT_EQ(log.take().size(), 8U);
}

TEST_F(HistoryStatements, OfARangeAskForWhatIsLaterThanItsStart) {
    const std::vector<std::pair<TimeRange, const char*>> expected = {
        {TimeRange::thirtyMinutes, "SELECT timestamp, watts FROM readings WHERE timestamp > 1699961400 "},
        {TimeRange::oneHour, "SELECT timestamp, watts FROM readings WHERE timestamp > 1699959600 "},
        {TimeRange::twentyFourHours, "SELECT timestamp, watts FROM minute_avg WHERE timestamp > 1699876800 "},
        {TimeRange::sevenDays, "SELECT timestamp, watts FROM hour_avg WHERE timestamp > 1699358400 "}};
    clock.time = noon + 0.5;
    for (const auto& [range, text] : expected) {
        static_cast<void>(log.take());
        static_cast<void>(store.loadData(range));
        EXPECT_THAT(log.take(), ElementsAre(std::string(text) + "ORDER BY timestamp"));
    }
}

TEST_F(HistoryStatements, OfTheEnergyTodayAskForMinutesOnlyOfADayOfMoreThanTwoHours) {
    static_cast<void>(log.take());
    clock.dayStart = noon + 0.5;
    clock.time = noon + 7200.75;
    EXPECT_EQ(store.todayWh(), 0.0);
    EXPECT_THAT(log.take(),
                ElementsAre("SELECT SUM(watts * 3.0 / 3600.0) FROM readings WHERE timestamp > 1699963200"));
    clock.time = noon + 7201;
    EXPECT_EQ(store.todayWh(), 0.0);
    EXPECT_THAT(log.take(),
                ElementsAre("SELECT SUM(watts * 3.0 / 3600.0) FROM readings WHERE timestamp > 1699963200",
                            "SELECT SUM(watts * 60.0 / 3600.0) FROM minute_avg WHERE timestamp >= 1699963200 "
                            "AND timestamp < 1699963201"));
}

TEST_F(HistoryStatements, OfAReaderChangeNothing) {
    static_cast<void>(log.take());
    HistoryStore reader(folder.path(), clock, HistoryAccess::readOnly);
    reader.addReading(10, 50, false, 25);
    EXPECT_THAT(log.take(), testing::Each(testing::StartsWith("SELECT")));
}

} // namespace
} // namespace quelby
