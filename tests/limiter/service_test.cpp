// The helper's rounds: when they come, and what becomes of its files.

#include <set>

#include "limiter/support/served_laptop.h"

namespace quelby::limiter {
namespace {

namespace fs = std::filesystem;

class ServiceTest : public ServedLaptop {};

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

} // namespace
} // namespace quelby::limiter
