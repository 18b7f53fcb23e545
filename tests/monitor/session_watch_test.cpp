#include "monitor/session_watch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quelby {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::int64_t sessionStart = 1'700'000'000;

class SessionWatchTest : public testing::Test {
protected:
    // A cycle half a minute after the one before, which used 0.25 Wh.
    bool follow(std::optional<SessionKind> kind, Int percent, bool calibrating = false, double asleep = 0) {
        return watch_.follow({.kind = kind,
                              .calibrating = calibrating,
                              .now = static_cast<Date>(sessionStart + 30 * cycles_++),
                              .secondsSince = 30,
                              .percent = percent,
                              .wattHours = 0.25,
                              .wattHoursAsleep = asleep});
    }

    SessionWatch watch_{std::nullopt};
    std::int64_t cycles_ = 0;
};

TEST_F(SessionWatchTest, TellsFromWhenToWhenHowLongAndHowMuch) {
    EXPECT_TRUE(follow(SessionKind::discharge, 80));
    EXPECT_FALSE(follow(SessionKind::discharge, 79));
    EXPECT_FALSE(follow(SessionKind::discharge, 78));
    const Session whole{.kind = SessionKind::discharge,
                        .start = sessionStart,
                        .end = sessionStart + 60,
                        .seconds = 60,
                        .percentFrom = 80,
                        .percentTo = 78,
                        .wattHours = 0.75};
    EXPECT_THAT(watch_.takeChanged(), ElementsAre(whole)) << "while it goes on";
    EXPECT_FALSE(follow(SessionKind::charge, 78));
    EXPECT_THAT(watch_.takeChanged(), ElementsAre(whole)) << "when it has ended";
    EXPECT_THAT(watch_.takeChanged(), IsEmpty());
}

TEST_F(SessionWatchTest, ForgetsWhatLastsLessThanAMinute) {
    follow(SessionKind::charge, 80);
    follow(SessionKind::charge, 80);
    follow(std::nullopt, 80);
    EXPECT_THAT(watch_.takeChanged(), IsEmpty());
}

TEST_F(SessionWatchTest, BeginsAnewWithEachUnplugging) {
    EXPECT_TRUE(follow(SessionKind::discharge, 80));
    EXPECT_FALSE(follow(std::nullopt, 80));
    EXPECT_TRUE(follow(SessionKind::discharge, 80));
    EXPECT_FALSE(follow(SessionKind::charge, 80)) << "charging begins as well, but not on battery";
}

TEST_F(SessionWatchTest, FollowsACalibrationThroughChargesAndDischarges) {
    follow(SessionKind::discharge, 15, true);
    follow(SessionKind::charge, 15, true);
    follow(SessionKind::charge, 16, true);
    follow(SessionKind::charge, 17, false);
    const auto sessions = watch_.takeChanged();
    ASSERT_THAT(sessions, SizeIs(2));
    EXPECT_EQ(sessions[0].kind, SessionKind::calibration);
    EXPECT_EQ(sessions[0].seconds, 60);
    EXPECT_EQ(sessions[0].wattHours, 0.75);
    EXPECT_EQ(sessions[1].kind, SessionKind::charge);
}

TEST_F(SessionWatchTest, CountsWhatASleepTookWhileItWentOn) {
    follow(SessionKind::discharge, 80);
    follow(SessionKind::discharge, 70, false, 5);
    follow(SessionKind::discharge, 70, false, -1); // a battery that recovered
    EXPECT_EQ(watch_.takeChanged()[0].wattHours, 5.75);
    follow(SessionKind::charge, 75, false, -3);
    follow(SessionKind::charge, 79, false, -2);
    follow(SessionKind::charge, 79);
    EXPECT_EQ(watch_.takeChanged().back().wattHours, 2.75) << "and not what it took before";
}

class ResumedSession : public testing::Test {
protected:
    // Whether the session that ended at 50 % goes on with a cycle so much later.
    static bool goesOn(SessionKind before, SessionKind now, Int percent, double later) {
        SessionWatch watch(Session{before, sessionStart, sessionStart + 600, 600, 60, 50, 6});
        const SessionWatch::Cycle cycle{.kind = now,
                                        .now = static_cast<Date>(sessionStart + 600) + later,
                                        .percent = percent,
                                        .wattHours = 1};
        static_cast<void>(watch.follow(cycle));
        const auto sessions = watch.takeChanged();
        if (sessions.empty()) {
            return false; // it has just begun
        }
        EXPECT_EQ(sessions[0].start, sessionStart);
        EXPECT_EQ(sessions[0].seconds, 600 + static_cast<std::int64_t>(later));
        EXPECT_EQ(sessions[0].wattHours, 7);
        return true;
    }
};

TEST_F(ResumedSession, GoesOnWhereTheChargeSaysThatNothingCameInBetween) {
    EXPECT_TRUE(goesOn(SessionKind::discharge, SessionKind::discharge, 50, 60));
    EXPECT_TRUE(goesOn(SessionKind::discharge, SessionKind::discharge, 20, 43200));
    EXPECT_FALSE(goesOn(SessionKind::discharge, SessionKind::discharge, 51, 60)) << "it was charged";
    EXPECT_TRUE(goesOn(SessionKind::charge, SessionKind::charge, 50, 60));
    EXPECT_FALSE(goesOn(SessionKind::charge, SessionKind::charge, 49, 60));
}

TEST_F(ResumedSession, IsAnotherOneWhereItIsAnotherKindOrTooLongAgo) {
    EXPECT_FALSE(goesOn(SessionKind::discharge, SessionKind::charge, 50, 60));
    EXPECT_FALSE(goesOn(SessionKind::discharge, SessionKind::discharge, 50, 43201));
    EXPECT_FALSE(goesOn(SessionKind::discharge, SessionKind::discharge, 50, -1)) << "the clock was set back";
}

TEST(PresentSession, IsWhatTheBatteryDoes) {
    PublishedFields fields;
    EXPECT_EQ(presentSession(fields), SessionKind::discharge);
    fields.isPluggedIn = true;
    EXPECT_EQ(presentSession(fields), std::nullopt) << "held at a limit, or full";
    fields.isCharging = true;
    EXPECT_EQ(presentSession(fields), SessionKind::charge);
    fields.hasBattery = false;
    EXPECT_EQ(presentSession(fields), std::nullopt);
}

} // namespace
} // namespace quelby
