#include <gmock/gmock.h>

#include "history/support/history_fixture.h"

namespace quelby {
namespace {

using testing::ElementsAre;

class HistoryQueries : public HistoryTest {
protected:
    // A row of the table that a range reads, written past the store.
    void insert(TimeRange range, std::int64_t second, double watts) const {
        const bool raw = range == TimeRange::thirtyMinutes || range == TimeRange::oneHour;
        const auto* const averages = range == TimeRange::twentyFourHours ? "minute_avg" : "hour_avg";
        Database(file).execute("INSERT INTO " + std::string(raw ? "readings" : averages) +
                               " (timestamp, watts) VALUES (" + std::to_string(second) + ", " +
                               std::to_string(watts) + ")");
    }

    void insertReadings(int count) const {
        Database(file).execute(
            "WITH RECURSIVE row(n) AS (VALUES(0) UNION ALL SELECT n + 1 FROM row WHERE n < " +
            std::to_string(count - 1) + ") INSERT INTO readings (timestamp, watts) SELECT " +
            std::to_string(noonSecond - count) + " + n, n FROM row");
    }
};

TEST_F(HistoryQueries, OfAnEmptyRangeAreEmpty) {
    for (const auto range : allTimeRanges) {
        EXPECT_EQ(store->loadData(range), HistoryResult{}) << label(range);
    }
}

TEST_F(HistoryQueries, LeaveOutTheSecondOfTheCutoff) {
    for (const auto range : allTimeRanges) {
        const auto cutoff = noonSecond - static_cast<std::int64_t>(seconds(range));
        insert(range, cutoff, 1);
        insert(range, cutoff + 1, 2);
        insert(range, noonSecond, 3);
        clock.time = noon + 0.999; // the cutoff's fraction goes
        EXPECT_THAT(store->loadData(range).points,
                    ElementsAre(HistoryDataPoint{cutoff + 1, 2}, HistoryDataPoint{noonSecond, 3}))
            << label(range);
        Database(file).execute("DELETE FROM readings; DELETE FROM minute_avg; DELETE FROM hour_avg");
    }
}

TEST_F(HistoryQueries, ReadTheTableOfTheRange) {
    insert(TimeRange::oneHour, noonSecond - 1, 1);
    insert(TimeRange::twentyFourHours, noonSecond - 1, 2);
    insert(TimeRange::sevenDays, noonSecond - 1, 3);
    const std::vector<std::pair<TimeRange, double>> expected = {{TimeRange::thirtyMinutes, 1},
                                                                {TimeRange::oneHour, 1},
                                                                {TimeRange::twentyFourHours, 2},
                                                                {TimeRange::sevenDays, 3}};
    for (const auto& [range, watts] : expected) {
        const auto result = store->loadData(range);
        EXPECT_THAT(result.points, ElementsAre(HistoryDataPoint{noonSecond - 1, watts})) << label(range);
        EXPECT_EQ(result.avg, watts);
    }
}

TEST_F(HistoryQueries, ReachIntoAFutureThatTheClockHasLeft) {
    insert(TimeRange::oneHour, noonSecond + 86'400, 1);
    EXPECT_EQ(store->loadData(TimeRange::thirtyMinutes).points.size(), 1U);
}

TEST_F(HistoryQueries, ThinForTheChartAndTakeTheStatisticsOverWhatIsLeft) {
    insertReadings(600); // of 0 to 599 W
    Database(file).execute("UPDATE readings SET watts = 1000000 WHERE timestamp % 2 <> " +
                           std::to_string(noonSecond % 2) + " AND watts < 599");
    const auto result = store->loadData(TimeRange::oneHour);
    EXPECT_EQ(result.points.size(), 301U);
    EXPECT_EQ(result.points.front().id, noonSecond - 600);
    EXPECT_EQ(result.points.back().id, noonSecond - 1);
    EXPECT_EQ(result.max, 599);
    EXPECT_EQ(result.min, 0);
    EXPECT_DOUBLE_EQ(result.avg, (299 * 300 + 599) / 301.0);
}

} // namespace
} // namespace quelby
