#include "base/time_of_day.h"

#include <cmath>

#include <gtest/gtest.h>

#include "support/time_zone.h"

namespace quelby {
namespace {

TEST(TimeOfDay, ShowsTwoDigitsOfEachPart) {
    const TimeZone zone("UTC0");
    EXPECT_EQ(timeOfDay(0), "00:00:00");
    EXPECT_EQ(timeOfDay(3 * 3600 + 4 * 60 + 5), "03:04:05");
    EXPECT_EQ(timeOfDay(86399), "23:59:59");
    EXPECT_EQ(timeOfDay(86400), "00:00:00");
    EXPECT_EQ(timeOfDay(1'700'000'000), "22:13:20");
}

TEST(TimeOfDay, HasNoSecondsWhereOnlyHourAndMinuteAreAskedFor) {
    const TimeZone zone("UTC0");
    EXPECT_EQ(hourAndMinute(3 * 3600 + 4 * 60 + 59), "03:04");
    EXPECT_EQ(hourAndMinute(86399), "23:59");
    EXPECT_EQ(hourAndMinute(1'700'000'000), "22:13");
}

TEST(TimeOfDay, IsThatOfASecondThatIsNotOver) {
    const TimeZone zone("UTC0");
    EXPECT_EQ(timeOfDay(59.999), "00:00:59");
    EXPECT_EQ(hourAndMinute(59.999), "00:00");
}

TEST(LocalDate, IsThatOfTheTimeZone) {
    const TimeZone zone("EST5");
    EXPECT_EQ(localDate(1'700'006'400), "2023-11-14"); // 2023-11-15 00:00 UTC
    EXPECT_EQ(localDate(1'700'006'400 + 5 * 3600), "2023-11-15");
    EXPECT_EQ(localDate(std::nan("")), "----------");
}

TEST(TimeOfDay, FollowsTheTimeZone) {
    {
        const TimeZone zone("EST5");
        EXPECT_EQ(timeOfDay(1'700'000'000), "17:13:20");
    }
    {
        const TimeZone zone("<+0545>-5:45");
        EXPECT_EQ(timeOfDay(1'700'000'000), "03:58:20");
        EXPECT_EQ(hourAndMinute(1'700'000'000), "03:58");
    }
}

TEST(TimeOfDay, FollowsAZoneThatIsChangedWhileTheProgramRuns) {
    const TimeZone zone("EST5");
    EXPECT_EQ(timeOfDay(1'700'000'000), "17:13:20");
    ::setenv("TZ", "<+0545>-5:45", 1); // of which nobody tells the program
    EXPECT_EQ(timeOfDay(1'700'000'000), "03:58:20");
}

TEST(TimeOfDay, FollowsTheChangeToSummerTime) {
    const TimeZone zone("CET-1CEST,M3.5.0,M10.5.0/3");
    constexpr double change = 1'679'792'400; // 2023-03-26 01:00 UTC
    EXPECT_EQ(timeOfDay(change - 1), "01:59:59");
    EXPECT_EQ(timeOfDay(change), "03:00:00");
    EXPECT_EQ(hourAndMinute(change), "03:00");
}

TEST(TimeOfDay, HasDashesForATimeBeyondTheCalendar) {
    for (const double time : {1e300, -1e300}) {
        EXPECT_EQ(timeOfDay(time), "--:--:--") << time;
        EXPECT_EQ(hourAndMinute(time), "--:--") << time;
    }
}

TEST(TimeOfDay, OfNoNumberIsUnknown) {
    EXPECT_EQ(timeOfDay(std::nan("")), "--:--:--");
    EXPECT_EQ(hourAndMinute(std::nan("")), "--:--");
}

} // namespace
} // namespace quelby
