// A helper that is killed at any moment of a calibration, while an application changes settings.

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <random>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/number_text.h"
#include "limiter/files/limiter_state.h"
#include "limiter/program/clock.h"
#include "limiter/support/limiter_program.h"
#include "platform/posix/shared_file.h"
#include "support/running_program.h"

namespace quelby::limiter {
namespace {

namespace fs = std::filesystem;

constexpr int hurry = 10'000; // an hour at full charge takes 0.4 seconds, a regular round 0.8 ms
constexpr double longAgo = 1'600'000'000;

// QUELBY_KILL_ROUNDS asks for more.
std::int64_t rounds() {
    const char* const asked = std::getenv("QUELBY_KILL_ROUNDS");
    return asked == nullptr ? 25 : wholeNumber(asked).value_or(0);
}

class KilledLimiter : public testing::Test, protected LimiterProgram {
protected:
    KilledLimiter() {
        hurryUp();
        setAttribute("BAT0/status", "Full");
        setAttribute("BAT0/capacity", "100");
    }

    [[nodiscard]] LimiterState kept() const { return decodeLimiterState(outer.read("state/state.json")); }

    // As the application does at each change of a setting, with its own old time of the last calibration.
    void change(std::int64_t percent) {
        wished = {.chargeLimitEnabled = true,
                  .chargeLimitPercent = percent,
                  .calibrationEnabled = true,
                  .calibrationIntervalDays = 365,
                  .lastCalibrationTimestamp = longAgo};
        ASSERT_TRUE(writeSharedFile(shared / "config.json", encode(wished).value()));
    }

    // The application's setting, with its own time or the true one.
    [[nodiscard]] bool settingsAreWhole() const {
        auto found = config();
        if (!found || (found->lastCalibrationTimestamp != longAgo &&
                       found->lastCalibrationTimestamp != kept().lastCalibration)) {
            return false;
        }
        found->lastCalibrationTimestamp = longAgo;
        return found == wished;
    }

    DaemonConfig wished;
};

TEST_F(KilledLimiter, LosesNothingOfItsCalibrationsNorOfTheSettings) {
    std::mt19937 chance(1);
    const auto upTo = [&](int most) { return std::uniform_int_distribution(0, most)(chance); };
    ASSERT_GT(rounds(), 0);
    change(80);
    double held = 0;
    int calibrating = 0;
    int finished = 0;
    int laidAside = 0;
    for (std::int64_t round = 1; round <= rounds() && !HasFailure(); ++round) {
        SCOPED_TRACE(testing::Message() << "round " << round);
        SystemClock clock;
        const double begin = clock.awake();
        RunningProgram helper(words(), hurried(hurry));
        for (int changes = upTo(20); changes > 0; --changes) {
            change(20 + upTo(80));
        }
        helper.signal(SIGKILL);
        ASSERT_EQ(helper.end().exitStatus, 128 + SIGKILL);
        if (!settingsAreWhole()) { // it had just laid one aside
            ++laidAside;
            EXPECT_EQ(runProgram(words({"--once"}), hurried(hurry)).exitStatus, 0);
        }
        EXPECT_TRUE(settingsAreWhole()) << outer.read("shared/config.json");
        EXPECT_TRUE(!fs::exists(shared / "status.json") || status().has_value());
        if (!fs::exists(state / "state.json")) {
            continue; // it was killed before its first round
        }
        const auto left = kept();
        if (attribute(bat0End) != "100" || left.calibration) {
            EXPECT_EQ(left.found.at("BAT0").end, 100);
        }
        if (left.calibration) {
            ++calibrating;
            EXPECT_GE(left.calibration->heldSeconds, held);
            held = left.calibration->heldSeconds;
        }
        if (left.lastCalibration > longAgo) {
            ++finished;
            EXPECT_GE(held + (clock.awake() - begin) * hurry,
                      Calibration::holdSeconds); // not before its time
            fs::remove_all(state);               // and another one
            setAttribute(bat0End, "100");
            held = 0;
            change(80);
        }
    }
    std::cout << rounds() << " sudden ends, " << calibrating << " in the middle of a calibration; "
              << finished << " calibrations finished between them\n";
    EXPECT_GT(calibrating + finished, rounds() / 4); // the others were killed before their first round
    // And in the end, undisturbed, it finishes what it began.
    change(70);
    RunningProgram helper(words(), hurried(hurry));
    waitForLevel("70");
    helper.signal(SIGTERM);
    EXPECT_EQ(helper.end().exitStatus, 0);
    EXPECT_GT(kept().lastCalibration, longAgo);
    EXPECT_FALSE(kept().calibration.has_value());
    EXPECT_EQ(config()->lastCalibrationTimestamp, kept().lastCalibration);
    EXPECT_EQ(config()->chargeLimitPercent, 70);
    EXPECT_THAT(outer.names("shared"), testing::Not(testing::Contains(testing::StartsWith(".pwr_limiter-"))));
}

} // namespace
} // namespace quelby::limiter
