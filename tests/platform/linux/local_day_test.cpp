#include "platform/local_day.h"

#include <cstdlib>
#include <ctime>

#include <gtest/gtest.h>

#include "platform/host/system_clock.h"
#include "support/time_zone.h"

namespace quelby {
namespace {

constexpr double hour = 3600;
constexpr double day = 24 * hour;
constexpr double newYear2024 = 1704067200; // 2024-01-01 00:00 UTC

constexpr const char* berlin = "CET-1CEST,M3.5.0,M10.5.0/3";

TEST(StartOfLocalDay, IsUtcMidnightInUtc) {
    const TimeZone utc("UTC0");
    EXPECT_EQ(startOfLocalDay(newYear2024), newYear2024);
    EXPECT_EQ(startOfLocalDay(newYear2024 + day - 0.5), newYear2024);
    EXPECT_EQ(startOfLocalDay(newYear2024 - 0.5), newYear2024 - day);
}

TEST(StartOfLocalDay, FollowsZonesEastAndWestOfUtc) {
    {
        const TimeZone tokyo("JST-9");
        EXPECT_EQ(startOfLocalDay(newYear2024 + 12 * hour), newYear2024 - 9 * hour);
        EXPECT_EQ(startOfLocalDay(newYear2024 + 16 * hour), newYear2024 + 15 * hour);
    }
    const TimeZone losAngeles("PST8PDT,M3.2.0,M11.1.0");
    EXPECT_EQ(startOfLocalDay(newYear2024), newYear2024 - day + 8 * hour);
}

TEST(StartOfLocalDay, FollowsAZoneThatIsChangedWhileTheProgramRuns) {
    const TimeZone utc("UTC0");
    EXPECT_EQ(startOfLocalDay(newYear2024 + 12 * hour), newYear2024);
    ::setenv("TZ", "JST-9", 1); // of which nobody tells the program
    EXPECT_EQ(startOfLocalDay(newYear2024 + 12 * hour), newYear2024 - 9 * hour);
}

TEST(StartOfLocalDay, HoldsOnTheDaysWhenTheClocksChange) {
    const TimeZone zone(berlin);
    const double forward = 1711839600;                        // 2024-03-31 00:00 in Berlin, still winter time
    EXPECT_EQ(startOfLocalDay(forward + 22 * hour), forward); // 23:00 of a day of 23 hours
    const double back = 1729980000;                           // 2024-10-27 00:00 in Berlin, still summer time
    EXPECT_EQ(startOfLocalDay(back + 24.5 * hour), back);     // 23:30 of a day of 25 hours
}

TEST(StartOfLocalDay, IsTheFirstMomentWhereMidnightIsSkipped) {
    const TimeZone zone("<-03>3<-02>,M10.3.0/0,M2.3.0/0"); // clocks go from 00:00 to 01:00
    const double firstMoment = 1729393200;                 // 2024-10-20 01:00 there, 03:00 UTC
    EXPECT_EQ(startOfLocalDay(firstMoment + 5 * hour), firstMoment);
}

TEST(StartOfLocalDay, IsTheFirstOfTwoMidnights) {
    const TimeZone zone("<-05>5<-04>,M3.2.0/0,M11.1.0/1"); // clocks go from 01:00 back to 00:00
    const double first = 1730606400;                       // 2024-11-03 00:00 there, 04:00 UTC
    for (const double hoursLater : {0.0, 0.5, 1.0, 1.5, 24.9}) {
        EXPECT_EQ(startOfLocalDay(first + hoursLater * hour), first) << hoursLater;
    }
    EXPECT_EQ(startOfLocalDay(first - 1), first - day);
    EXPECT_EQ(startOfLocalDay(first + 25 * hour), first + 25 * hour);
}

TEST(SystemClock, TellsThePresentAndItsDay) {
    SystemClock clock;
    const auto before = static_cast<double>(std::time(nullptr));
    const double now = clock.now();
    EXPECT_GE(now, before - 1);
    EXPECT_LE(now, before + 5);
    EXPECT_LE(clock.startOfDay(), now);
    EXPECT_GT(clock.startOfDay(), now - 26 * hour);
}

} // namespace
} // namespace quelby
