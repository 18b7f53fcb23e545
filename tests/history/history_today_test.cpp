#include <gmock/gmock.h>

#include "history/support/history_fixture.h"
#include "platform/local_day.h"
#include "support/time_zone.h"

namespace quelby {
namespace {

constexpr double tickWh = 10 * 3.0 / 3600;    // of one reading of 10 W
constexpr double minuteWh = 10 * 60.0 / 3600; // of one minute of 10 W

class EnergyToday : public HistoryTest {
protected:
    // 10 W up to this moment, a reading each minute: few enough to be quick, and energy that is counted from
    // readings is easily told from that of minutes.
    void recordSince(double start, double until) {
        recordEvery(minute, start, until);
        clock.time = until;
        clock.dayStart = startOfLocalDay(until);
    }
};

TEST_F(EnergyToday, CountsThreeSecondsForEachReading) {
    recordAt(noon - 6, 10);
    recordAt(noon - 3, 20);
    recordAt(noon, 30);
    EXPECT_DOUBLE_EQ(store->todayWh(), 60 * 3.0 / 3600);
}

TEST_F(EnergyToday, LeavesOutTheSecondOfMidnight) {
    recordAt(noon);
    recordAt(noon + 1);
    clock.dayStart = noon;
    EXPECT_DOUBLE_EQ(store->todayWh(), tickWh);
    clock.dayStart = noon + 0.9; // its fraction goes
    EXPECT_DOUBLE_EQ(store->todayWh(), tickWh);
    clock.dayStart = noon + 1;
    EXPECT_EQ(store->todayWh(), 0.0);
}

TEST_F(EnergyToday, CountsOnlyReadingsWithinTwoHoursOfMidnight) {
    recordAt(noon);
    Database(file).execute("UPDATE minute_avg SET watts = 1000000");
    clock.dayStart = noon - 60;
    clock.time = noon - 60 + 7200; // midnight is just where the raw readings start
    EXPECT_DOUBLE_EQ(store->todayWh(), tickWh);
    clock.time += 1;
    EXPECT_DOUBLE_EQ(store->todayWh(), tickWh); // the minute is not older than the raw readings reach
    clock.time += 59.5;
    EXPECT_DOUBLE_EQ(store->todayWh(), tickWh);
    clock.time += 0.5;
    EXPECT_GT(store->todayWh(), 1000.0);
}

TEST_F(EnergyToday, CountsReadingsThatAreNotYetDeletedTwice) {
    recordAt(noon);
    clock.dayStart = noon - hour;
    clock.time = noon + 2 * hour;
    EXPECT_DOUBLE_EQ(store->todayWh(), tickWh);
    clock.time = noon + 2 * hour + 1;
    EXPECT_DOUBLE_EQ(store->todayWh(), tickWh + minuteWh);
    recordAt(noon + 2 * hour + 61); // and now it is deleted
    EXPECT_DOUBLE_EQ(store->todayWh(), minuteWh + tickWh);
}

TEST_F(EnergyToday, LeavesOutAMinuteThatBeganBeforeMidnight) {
    recordAt(noon + 30);
    recordAt(noon + 3 * hour); // only the minute of 12:00 is left of it
    recordAt(noon + 3 * hour + 60);
    clock.dayStart = noon;
    EXPECT_DOUBLE_EQ(store->todayWh(), minuteWh + 2 * tickWh);
    clock.dayStart = noon + 1;
    EXPECT_DOUBLE_EQ(store->todayWh(), 2 * tickWh);
}

// Recording runs through from the evening before. The oldest raw reading is that of the last run's two hours
// ago, and the minutes reach up to two hours before now.
TEST_F(EnergyToday, StartsAtMidnightOfTheUsersZoneAndFollowsItsClocks) {
    struct Case {
        const char* zone;
        double midnight; // seconds since 1970
        double hours;    // since then
    };

    const char* const berlin = "CET-1CEST,M3.5.0,M10.5.0/3";
    const std::vector<Case> cases = {
        {"UTC0", 1'704'067'200, 5},                           // 2024-01-01
        {"JST-9", 1'704'034'800, 6},                          // 2024-01-01 in Tokyo
        {"PST8PDT,M3.2.0,M11.1.0", 1'704'009'600, 4},         // 2023-12-31 in Los Angeles
        {"<+0545>-5:45", 1'704'046'500, 3},                   // 2024-01-01 in Kathmandu
        {berlin, 1'711'839'600, 4.5},                         // 2024-03-31: the clocks go forward
        {berlin, 1'729'980'000, 24.5},                        // 2024-10-27: the clocks go back
        {berlin, 1'729'980'000, 3.5},                         // within the day's doubled hour
        {"<-03>3<-02>,M10.3.0/0,M2.3.0/0", 1'729'393'200, 4}, // a day without its midnight
    };
    for (const auto& [rule, midnight, hours] : cases) {
        const TimeZone zone(rule);
        openAgain();
        Database(file).execute("DELETE FROM readings; DELETE FROM minute_avg; DELETE FROM hour_avg");
        recordSince(midnight - hour, midnight + hours * hour);
        ASSERT_EQ(clock.dayStart, midnight) << rule;
        const double minutes = (hours - 2) * 60;
        const double rawReadings = 120 + 1; // one is to be deleted with the next run
        EXPECT_NEAR(store->todayWh(), minutes * minuteWh + rawReadings * tickWh, 1e-9) << rule << hours;
    }
}

TEST_F(EnergyToday, IsOfRawReadingsAloneShortlyAfterMidnight) {
    const TimeZone zone("JST-9");
    const double midnight = 1'704'034'800;
    recordSince(midnight - 3 * hour, midnight + 1.5 * hour);
    EXPECT_NEAR(store->todayWh(), (90 - 1) * tickWh, 1e-9); // that of midnight itself is left out
}

} // namespace
} // namespace quelby
