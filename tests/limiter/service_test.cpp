// The helper at work, in a time of the test's own.

#include "limiter/program/service.h"

#include <malloc.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/number_text.h"
#include "limiter/support/odd_hardware.h"
#include "limiter/support/simulated_laptop.h"
#include "limiter/support/test_time.h"
#include "support/temporary_folder.h"

namespace quelby::limiter {
namespace {

namespace fs = std::filesystem;

constexpr double day = 86400;

// QUELBY_WEEK_STEP=1 asks for every single round of a week; usually it has an eighth of them.
double weekStep() {
    const char* const asked = std::getenv("QUELBY_WEEK_STEP");
    return asked == nullptr ? 8 : decimalNumber(asked).value_or(8);
}

const std::string endThreshold = "class/power_supply/BAT0/charge_control_end_threshold";

class ServiceTest : public testing::Test {
protected:
    ServiceTest() {
        addLaptop(hardware);
        hardware[endThreshold].text = "100";
        hardware["class/power_supply/BAT0/charge_control_start_threshold"].text = "0";
    }

    void write(const DaemonConfig& config) const { folder.write("config.json", encode(config).value()); }

    [[nodiscard]] DaemonStatus status() const {
        const auto decoded = decodeDaemonStatus(folder.read("status.json"));
        EXPECT_TRUE(decoded.has_value());
        return decoded.value_or(DaemonStatus());
    }

    [[nodiscard]] DaemonConfig config() const {
        return decodeDaemonConfig(folder.read("config.json")).value_or(DaemonConfig());
    }

    [[nodiscard]] Result<void> run() { return service().run(); }

    Service& service() {
        limiter.emplace(Surroundings{.attributes = hardware,
                                     .pause = [](std::chrono::milliseconds) {},
                                     .rivals = [] { return "TLP"; },
                                     .save =
                                         [this](const LimiterState& state) {
                                             saved = state;
                                             return true;
                                         }},
                        saved);
        service_.emplace(*limiter, folder.path(), time, time);
        return *service_;
    }

    // A disk would be what takes most of a simulated week.
    TemporaryFolder folder{fs::exists("/dev/shm") ? "/dev/shm" : fs::temp_directory_path()};
    OddHardware hardware;
    TestTime time;
    LimiterState saved;
    std::optional<Limiter> limiter;
    std::optional<Service> service_;
};

TEST_F(ServiceTest, SaysThatItRunsAndInTheEndThatItDoesNot) {
    time.sleep = [&](double, bool) {
        EXPECT_TRUE(status().daemonRunning);
        EXPECT_EQ(status().batteryPercent, 80);
        EXPECT_EQ(status().lastUpdate, time.now());
        return Wake::stop;
    };
    EXPECT_TRUE(run());
    EXPECT_FALSE(status().daemonRunning);
    EXPECT_EQ(status().batteryPercent, 80);
}

TEST_F(ServiceTest, WakesUpEveryEightSecondsAndNoOftenerAndKeepsTheStatusFresh) {
    time.sleep = [&](double seconds, bool listens) {
        EXPECT_TRUE(listens);
        EXPECT_EQ(seconds, Service::regularRound);
        time.pass(seconds);
        EXPECT_LE(time.now() - status().lastUpdate, 10);
        return time.waits < 450 ? Wake::time : Wake::stop;
    };
    EXPECT_TRUE(run());
    EXPECT_EQ(time.waits, 450); // an hour
}

TEST_F(ServiceTest, WritesTheDetailsOnlyWhereTheyChangeAndOnceAMinute) {
    std::set<std::string> texts;
    time.sleep = [&](double seconds, bool) {
        time.pass(seconds);
        texts.insert(folder.read("details.json"));
        return time.waits < 450 ? Wake::time : Wake::stop;
    };
    EXPECT_TRUE(run());
    EXPECT_LE(texts.size(), 61U);
    EXPECT_GE(texts.size(), 50U);
}

TEST_F(ServiceTest, LooksAgainSoonerWhereOnlyThatTellsWhetherTheBatteryIsHeld) {
    write({.chargeLimitEnabled = true, .chargeLimitPercent = 80});
    time.sleep = [&](double seconds, bool) {
        time.pass(seconds);
        if (time.waits == 1) {
            EXPECT_EQ(seconds, HoldWatch::apart);
            EXPECT_FALSE(status().chargingInhibited);
            return Wake::time;
        }
        EXPECT_EQ(seconds, Service::regularRound);
        EXPECT_TRUE(status().chargingInhibited);
        return Wake::stop;
    };
    EXPECT_TRUE(run());
}

TEST_F(ServiceTest, CarriesAChangeOutAtOnce) {
    time.sleep = [&](double, bool) {
        if (time.waits == 1) {
            write({.chargeLimitEnabled = true, .chargeLimitPercent = 60});
            return Wake::change;
        }
        EXPECT_EQ(hardware.text(endThreshold), "60");
        return Wake::stop;
    };
    EXPECT_TRUE(run());
}

TEST_F(ServiceTest, MissesNoChangeThatFallsIntoItsOwnRound) {
    hardware[endThreshold].take = [&](const std::string& value) {
        hardware[endThreshold].text = value;
        if (value == "60") {
            write({.chargeLimitEnabled = true, .chargeLimitPercent = 70});
            time.configWasWritten = true;
        }
        return std::errc();
    };
    write({.chargeLimitEnabled = true, .chargeLimitPercent = 60});
    time.sleep = [&](double, bool) {
        EXPECT_EQ(hardware.text(endThreshold), "70"); // before it ever slept
        return Wake::stop;
    };
    EXPECT_TRUE(run());
    EXPECT_EQ(time.waits, 1);
}

TEST_F(ServiceTest, ReactsToAFloodOfChangesAtABoundedRate) {
    int percent = 20;
    time.sleep = [&](double seconds, bool listens) {
        if (time.awake() > 500 + 600) {
            return Wake::stop;
        }
        if (listens) { // there is always something to hear
            percent = percent == 100 ? 20 : percent + 1;
            write({.chargeLimitEnabled = true, .chargeLimitPercent = percent});
            time.configWasWritten = true;
            time.pass(0.001);
            return Wake::change;
        }
        time.pass(seconds);
        return Wake::time;
    };
    EXPECT_TRUE(run());
    EXPECT_LE(time.waits, 2 * (600 / 5 + 10));
    EXPECT_LE(hardware.writes.size(), 2U * (600 / 5 + 10));
    EXPECT_GE(hardware.writes.size(), 100U);
}

TEST_F(ServiceTest, PassesOverNoiseAtABoundedRateWithoutARound) {
    time.sleep = [&](double seconds, bool listens) {
        if (time.awake() > 500 + 600) {
            return Wake::stop;
        }
        time.pass(listens ? 0.001 : seconds);
        return listens ? Wake::noise : Wake::time;
    };
    EXPECT_TRUE(run());
    EXPECT_LE(time.waits, 600 / 8 + 2 * (600 / 5 + 10));
}

TEST_F(ServiceTest, NoticesSleepByItsClocksAndSetsTheLevelAgain) {
    write({.chargeLimitEnabled = true, .chargeLimitPercent = 90});
    time.sleep = [&](double seconds, bool) {
        if (time.waits == 1) {
            hardware.writes.clear();
            time.passAsleep(3600);
        } else if (time.waits == 2) {
            EXPECT_THAT(hardware.writes, testing::Contains("BAT0/charge_control_end_threshold=90"));
            hardware.writes.clear();
        } else {
            EXPECT_THAT(hardware.writes, testing::IsEmpty());
            return Wake::stop;
        }
        time.pass(seconds);
        return Wake::time;
    };
    EXPECT_TRUE(run());
}

TEST_F(ServiceTest, GoesOnInAFolderThatWasRemovedAndMadeAgain) {
    write({.chargeLimitEnabled = true, .chargeLimitPercent = 60});
    time.sleep = [&](double seconds, bool) {
        time.pass(seconds);
        if (time.waits == 1) {
            fs::remove_all(folder.path());
            return Wake::time;
        }
        EXPECT_EQ(status().lastUpdate, time.now() - seconds);
        EXPECT_EQ(static_cast<unsigned>(fs::status(folder.path()).permissions()), 0777U);
        EXPECT_EQ(hardware.text(endThreshold), "60"); // the wish is still the one that was known
        return Wake::stop;
    };
    EXPECT_TRUE(run());
    EXPECT_EQ(time.watches, 2);
}

TEST_F(ServiceTest, EndsWhereItsFolderCannotBeHadAgain) {
    service_.reset();
    const auto blocked = folder.write("file", "") / "within";
    static_cast<void>(service());
    Service lost(*limiter, blocked, time, time);
    time.sleep = [&](double seconds, bool) {
        time.pass(seconds);
        return Wake::time;
    };
    const auto ended = lost.run();
    ASSERT_FALSE(ended);
    EXPECT_EQ(ended.error().sentence, "cannot write to " + blocked.string());
}

TEST_F(ServiceTest, SaysAtOnceWhichFolderItCannotWriteTo) {
    static_cast<void>(service());
    Service lost(*limiter, folder.write("file", ""), time, time);
    EXPECT_FALSE(lost.runOnce());
}

TEST_F(ServiceTest, PutsTheTimeOfACalibrationRightThatAnApplicationWritesBack) {
    saved.lastCalibration = 1'699'000'000;
    const DaemonConfig old{.chargeLimitEnabled = true, .lastCalibrationTimestamp = 1'600'000'000};
    write(old);
    time.sleep = [&](double seconds, bool) {
        time.pass(seconds);
        EXPECT_EQ(config().lastCalibrationTimestamp, 1'699'000'000);
        EXPECT_TRUE(config().chargeLimitEnabled);
        if (time.waits == 2) {
            return Wake::stop;
        }
        write(old);
        return Wake::change;
    };
    EXPECT_TRUE(run());
}

// A week of a person who works unplugged in the morning and plugs in at noon, with a calibration a week.
TEST_F(ServiceTest, ServesAWeekAndNeedsNoMoreMemoryInTheEnd) {
    hardware.remove("class/power_supply/BAT0");
    addBattery(hardware, "BAT0");
    hardware[endThreshold].text = "100";
    hardware["class/power_supply/BAT0/charge_control_start_threshold"].text = "0";
    SimulatedLaptop laptop(hardware);
    write({.chargeLimitEnabled = true,
           .chargeLimitPercent = 80,
           .calibrationEnabled = true,
           .calibrationIntervalDays = 7,
           .lastCalibrationTimestamp = 1'700'000'000 - 5 * day});
    const double begin = time.now();
    double highest = 0;
    double calibrating = 0;
    double held = 0;
    std::size_t memoryOnTheFirstDay = 0;
    time.sleep = [&](double pause, bool) {
        const double seconds = pause * weekStep();
        time.pass(seconds);
        hardware.writes.clear();
        const double hour = (time.now() - begin) / 3600;
        laptop.plug(static_cast<int>(hour) % 24 >= 4);
        laptop.pass(seconds);
        const auto now = status();
        EXPECT_FALSE(now.chargingInhibited && now.calibrationActive);
        calibrating += now.calibrationActive ? seconds : 0;
        held += now.chargingInhibited ? seconds : 0;
        highest = std::max(highest, now.calibrationActive ? 0 : laptop.percent());
        if (memoryOnTheFirstDay == 0 && time.now() - begin > day) {
            memoryOnTheFirstDay = ::mallinfo2().uordblks;
        }
        return time.now() - begin < 7 * day ? Wake::time : Wake::stop;
    };
    EXPECT_TRUE(run());
    EXPECT_GT(time.waits, 75'000 / weekStep());
    EXPECT_GT(held, 5 * 15 * 3600);
    EXPECT_GT(calibrating, 3600);
    EXPECT_LT(calibrating, 4 * 3600); // with the charging before it
    EXPECT_LE(highest, 100);
    EXPECT_EQ(config().lastCalibrationTimestamp, limiter->lastCalibration());
    EXPECT_GT(limiter->lastCalibration(), begin + 2 * day);
    EXPECT_LT(limiter->lastCalibration(), begin + 3 * day);
    EXPECT_EQ(hardware.text(endThreshold), "80");
    EXPECT_LE(::mallinfo2().uordblks, memoryOnTheFirstDay + 4096);
}

} // namespace
} // namespace quelby::limiter
