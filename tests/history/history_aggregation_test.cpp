#include <gmock/gmock.h>

#include "history/support/history_fixture.h"

namespace quelby {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

using HistoryAggregation = HistoryTest;

TEST_F(HistoryAggregation, RunsWithTheFirstReading) {
    recordAt(noon + 61, 10, 50);
    EXPECT_THAT(tables().minutes, ElementsAre(Pair(noonSecond + 60, MeanRow{10, 50})));
    EXPECT_THAT(tables().hours, ElementsAre(Pair(noonSecond, MeanRow{10, 50})));
}

TEST_F(HistoryAggregation, RunsAgainAfterSixtySecondsAndNotBefore) {
    recordAt(noon + 0.5, 10);
    recordAt(noon + 59.5, 20);
    EXPECT_THAT(tables().minutes, ElementsAre(Pair(noonSecond, MeanRow{10, 50})));
    recordAt(noon + 60.25, 30);
    EXPECT_THAT(tables().minutes, ElementsAre(Pair(noonSecond, MeanRow{10, 50})));
    recordAt(noon + 60.5, 40); // replaces the 30 W of this second
    EXPECT_THAT(tables().minutes,
                ElementsAre(Pair(noonSecond, MeanRow{15, 50}), Pair(noonSecond + 60, MeanRow{40, 50})));
}

TEST_F(HistoryAggregation, CountsItsSixtySecondsFromTheLastRun) {
    recordAt(noon);
    recordAt(noon + 90);
    recordAt(noon + 149);
    EXPECT_EQ(tables().minutes.size(), 2U);
    recordAt(noon + 150);
    EXPECT_EQ(tables().minutes.size(), 3U);
}

TEST_F(HistoryAggregation, RunsWithTheFirstReadingOfEveryStore) {
    recordAt(noon, 10);
    openAgain();
    recordAt(noon + 1, 30);
    EXPECT_THAT(tables().minutes, ElementsAre(Pair(noonSecond, MeanRow{20, 50})));
}

TEST_F(HistoryAggregation, DividesTimeAtTheStartsOfMinutes) {
    recordAt(noon + 59);
    recordAt(noon + 60);
    openAgain();
    recordAt(noon + 60, 30);
    EXPECT_THAT(tables().minutes,
                ElementsAre(Pair(noonSecond, MeanRow{10, 50}), Pair(noonSecond + 60, MeanRow{30, 50})));
}

TEST_F(HistoryAggregation, DividesTimeAtTheStartsOfHours) {
    recordAt(noon - 1);
    openAgain();
    recordAt(noon, 30);
    EXPECT_THAT(tables().hours,
                ElementsAre(Pair(noonSecond - 3600, MeanRow{10, 50}), Pair(noonSecond, MeanRow{30, 50})));
}

TEST_F(HistoryAggregation, AveragesAnHourOverItsMinutesAndNotOverItsReadings) {
    for (const double second : {0, 1, 2}) {
        recordAt(noon + second, 10, 40);
    }
    recordAt(noon + 60, 20, 41);
    EXPECT_THAT(tables().hours, ElementsAre(Pair(noonSecond, MeanRow{15, 40.5})));
}

TEST_F(HistoryAggregation, KeepsARawReadingThroughItsLastSecond) {
    recordAt(noon + 0.9);
    recordAt(noon + 7200.99);
    EXPECT_TRUE(tables().readings.contains(noonSecond));
    openAgain();
    recordAt(noon + 7201);
    EXPECT_FALSE(tables().readings.contains(noonSecond));
}

TEST_F(HistoryAggregation, KeepsAMinuteThroughItsLastSecond) {
    recordAt(noon);
    recordAt(noon + 2 * day + 0.99);
    EXPECT_TRUE(tables().minutes.contains(noonSecond));
    openAgain();
    recordAt(noon + 2 * day + 1);
    EXPECT_FALSE(tables().minutes.contains(noonSecond));
}

TEST_F(HistoryAggregation, KeepsAnHourThroughItsLastSecond) {
    recordAt(noon);
    recordAt(noon + 30 * day + 0.99);
    EXPECT_TRUE(tables().hours.contains(noonSecond));
    openAgain();
    recordAt(noon + 30 * day + 1);
    EXPECT_FALSE(tables().hours.contains(noonSecond));
}

TEST_F(HistoryAggregation, FoldsAReadingIntoItsMinuteBeforeItGoes) {
    recordAt(noon, 10);
    recordAt(noon + 1, 30); // no run before the next reading, for which both are too old
    recordAt(noon + 3 * hour, 50);
    EXPECT_THAT(tables().readings, ElementsAre(Pair(noonSecond + 10'800, ReadingRow{50, 50, false, 25})));
    EXPECT_EQ(tables().minutes.at(noonSecond), (MeanRow{20, 50}));
}

TEST_F(HistoryAggregation, LeavesOutReadingsThatAreTooOldForAMinute) {
    recordAt(noon, 10);
    recordAt(noon + 1, 30);
    recordAt(noon + 3 * day, 50);
    EXPECT_THAT(tables().minutes, ElementsAre(Pair(noonSecond + 259'200, MeanRow{50, 50})));
    EXPECT_EQ(tables().hours.at(noonSecond), (MeanRow{10, 50})); // from when 30 W was not there yet
}

TEST_F(HistoryAggregation, KeepsTwoHoursOfReadingsAndAllTheirMinutes) {
    recordEvery(3, noon, noon + 3 * hour);
    const auto [readings, minutes, hours] = tables();
    const auto lastRun = noonSecond + 10'740;
    EXPECT_EQ(readings.begin()->first, lastRun - 7200);
    EXPECT_EQ(readings.rbegin()->first, noonSecond + 10'797);
    EXPECT_EQ(minutes.size(), 180U);
    EXPECT_EQ(hours.size(), 3U);
}

TEST_F(HistoryAggregation, OverwritesTheOldestMinuteWithTheMeanOfItsRest) {
    recordAt(noon, 10);
    recordAt(noon + 30, 40);
    recordAt(noon + 60, 0);
    EXPECT_EQ(tables().minutes.at(noonSecond), (MeanRow{25, 50}));
    recordAt(noon + 7210, 0); // prunes the reading of 12:00:00
    EXPECT_EQ(tables().minutes.at(noonSecond), (MeanRow{25, 50}));
    recordAt(noon + 7270, 0);
    EXPECT_EQ(tables().minutes.at(noonSecond), (MeanRow{40, 50}));
}

TEST_F(HistoryAggregation, OverwritesTheOldestHourWithTheMeanOfItsRest) {
    recordAt(noon, 10);
    recordAt(noon + 60, 40);
    EXPECT_EQ(tables().hours.at(noonSecond), (MeanRow{25, 50}));
    recordAt(noon + 2 * day + 30, 0); // prunes the minute of 12:00
    EXPECT_EQ(tables().hours.at(noonSecond), (MeanRow{25, 50}));
    recordAt(noon + 2 * day + 90, 0);
    EXPECT_EQ(tables().hours.at(noonSecond), (MeanRow{40, 50}));
}

TEST_F(HistoryAggregation, WaitsForAClockThatWasSetBack) {
    recordAt(noon);
    recordAt(noon - hour);
    recordAt(noon - hour + 120);
    EXPECT_EQ(tables().minutes.size(), 1U);
    recordAt(noon + 60);
    EXPECT_EQ(tables().minutes.size(), 4U);
}

TEST_F(HistoryAggregation, FollowsAClockThatWasSetForward) {
    recordAt(noon);
    recordAt(noon + 365 * day);
    EXPECT_EQ(tables().readings.size(), 1U);
    EXPECT_EQ(tables().minutes.size(), 1U);
    EXPECT_EQ(tables().hours.size(), 1U);
}

TEST_F(HistoryAggregation, KeepsReadingsOfAFutureThatWasTakenBack) {
    recordAt(noon + 365 * day);
    openAgain();
    recordAt(noon);
    EXPECT_EQ(tables().readings.size(), 2U);
    EXPECT_EQ(tables().hours.size(), 2U);
}

TEST_F(HistoryAggregation, NeedsAReading) {
    clock.time = noon + hour;
    EXPECT_THAT(store->loadData(TimeRange::twentyFourHours).points, IsEmpty());
    EXPECT_EQ(store->todayWh(), 0.0);
    EXPECT_THAT(tables().minutes, IsEmpty());
}

} // namespace
} // namespace quelby
