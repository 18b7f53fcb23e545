// A helper that is killed at any moment of a calibration, while an application changes settings.

#include <csignal>
#include <cstdlib>
#include <random>

#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include "base/number_text.h"
#include "limiter/files/limiter_state.h"
#include "limiter/support/limiter_program.h"
#include "platform/posix/shared_file.h"
#include "support/running_program.h"

namespace quelby::limiter {
namespace {

namespace fs = std::filesystem;

constexpr double hurry = 500; // an hour at full charge takes seven seconds, a regular round 16 ms
constexpr double longAgo = 1'600'000'000;

// QUELBY_KILL_ROUNDS asks for more.
std::int64_t rounds() {
    const char* const asked = std::getenv("QUELBY_KILL_ROUNDS");
    return asked == nullptr ? 25 : wholeNumber(asked).value_or(0);
}

class KilledLimiter : public testing::Test, protected LimiterProgram {
protected:
    KilledLimiter() {
        program = fs::path(QUELBY_BINARY_DIR) / "hurried_limiter";
        setAttribute("BAT0/status", "Full");
        setAttribute("BAT0/capacity", "100");
    }

    [[nodiscard]] LimiterState kept() const { return decodeLimiterState(outer.read("state/state.json")); }

    [[nodiscard]] Environment environment() const {
        return {{"QUELBY_HURRY", std::to_string(hurry)},
                {"QUELBY_HURRY_SINCE", std::to_string(::time(nullptr))}};
    }

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

TEST_F(KilledLimiter, LosesNothingOfItsCalibrationNorOfTheSettings) {
    std::mt19937 chance(1);
    const auto upTo = [&](int most) { return std::uniform_int_distribution(0, most)(chance); };
    ASSERT_GT(rounds(), 0);
    const auto variables = environment();
    change(80);
    double held = 0;
    bool hasFinished = false;
    for (std::int64_t round = 1; round <= rounds() && !HasFailure(); ++round) {
        SCOPED_TRACE(testing::Message() << "round " << round);
        RunningProgram helper(words(), variables);
        for (int changes = upTo(20); changes > 0; --changes) {
            change(20 + upTo(80));
        }
        helper.signal(SIGKILL);
        ASSERT_EQ(helper.end().exitStatus, 128 + SIGKILL);
        EXPECT_TRUE(settingsAreWhole()) << outer.read("shared/config.json");
        if (fs::exists(state / "state.json")) {
            const auto left = kept();
            if (attribute(bat0End) != "100" || left.calibration) {
                EXPECT_EQ(left.found.at("BAT0").end, 100);
            }
            hasFinished = hasFinished || left.lastCalibration > longAgo;
            EXPECT_EQ(hasFinished, left.lastCalibration > longAgo);
            if (!hasFinished && left.calibration) {
                EXPECT_GE(left.calibration->heldSeconds, held);
                held = left.calibration->heldSeconds;
            }
        }
        if (fs::exists(shared / "status.json")) {
            EXPECT_TRUE(status().has_value());
        }
    }
    // And in the end, undisturbed, it finishes what it began.
    change(70);
    RunningProgram helper(words(), variables);
    waitForLevel("70");
    helper.signal(SIGTERM);
    EXPECT_EQ(helper.end().exitStatus, 0);
    EXPECT_GT(kept().lastCalibration, longAgo);
    EXPECT_FALSE(kept().calibration.has_value());
    EXPECT_EQ(config()->lastCalibrationTimestamp, kept().lastCalibration);
    EXPECT_EQ(config()->chargeLimitPercent, 70);
    for (const auto& entry : fs::directory_iterator(shared)) {
        EXPECT_EQ(entry.path().filename().string().rfind(".pwr_limiter-", 0), std::string::npos)
            << entry.path() << " was left behind";
    }
}

} // namespace
} // namespace quelby::limiter
