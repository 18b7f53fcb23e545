// The built program from outside.

#include <csignal>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

#include "limiter/support/limiter_program.h"
#include "limiter/support/ordinary_user.h"
#include "support/running_program.h"

namespace quelby::limiter {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;
using Json = nlohmann::json;

class Program : public testing::Test, protected LimiterProgram {};

TEST_F(Program, SaysWhatItCanAndItsVersion) {
    const auto help = runProgram({program, "--help"});
    EXPECT_EQ(help.exitStatus, 0);
    EXPECT_THAT(help.output, AllOf(StartsWith("Usage: pwr_limiter "), HasSubstr("--sysfs-root DIR")));
    EXPECT_EQ(help.errors, "");
    const auto version = runProgram({program, "--version"});
    EXPECT_EQ(version.exitStatus, 0);
    EXPECT_THAT(version.output, StartsWith("pwr_limiter "));
}

TEST_F(Program, RefusesWrongUsageWithOneSentence) {
    const std::vector<std::vector<std::string>> wrong{
        {"--bogus"}, {"word"}, {"--folder"}, {"--folder="}, {"--once", "--restore"},
        {"--onc"},   {""},     {"--state="}, {"-v"}};
    for (auto words : wrong) {
        words.insert(words.begin(), program);
        const auto refused = runProgram(words);
        EXPECT_EQ(refused.exitStatus, 2) << words[1];
        EXPECT_EQ(refused.output, "");
        EXPECT_THAT(refused.errors, StartsWith("pwr_limiter: "));
        EXPECT_EQ(std::count(refused.errors.begin(), refused.errors.end(), '\n'), 1);
    }
}

TEST_F(Program, RefusesOrdinaryUsersUnlessAFolderIsNamed) {
    setAttribute("BAT0/status", "Charging"); // one look is enough
    EXPECT_TRUE(asOrdinaryUser([&] {
        const auto refused = runProgram({program});
        return refused.exitStatus == 1 && refused.errors.rfind("pwr_limiter: only root ", 0) == 0;
    }));
    const auto own = outer.path() / "own";
    fs::create_directory(own);
    fs::permissions(own, fs::perms(0777));
    fs::permissions(fs::path(sysfs) / "class/power_supply/BAT0/charge_control_end_threshold",
                    fs::perms(0666));
    wish({.chargeLimitEnabled = true, .chargeLimitPercent = 60});
    EXPECT_TRUE(asOrdinaryUser([&] {
        return runProgram({program, "--once", "--folder=" + shared.string(), "--state", own / "state",
                           "--sysfs-root", sysfs})
                   .exitStatus == 0;
    }));
    EXPECT_EQ(attribute(bat0End), "60");
}

TEST_F(Program, CarriesTheWishOutOnceAndLeavesItInForce) {
    wish({.chargeLimitEnabled = true, .chargeLimitPercent = 75});
    const auto once = run({"--once"});
    EXPECT_EQ(once.exitStatus, 0);
    EXPECT_EQ(once.output + once.errors, "");
    EXPECT_EQ(attribute(bat0End), "75");
    ASSERT_TRUE(status());
    EXPECT_TRUE(status()->daemonRunning);
    EXPECT_TRUE(status()->chargingInhibited); // it looked twice
    EXPECT_EQ(status()->batteryPercent, 80);
    const auto told = Json::parse(details());
    EXPECT_EQ(told["mechanism"], "thresholds");
    EXPECT_EQ(told["batteries"][0]["wishedPercent"], 75);
    EXPECT_EQ(told["batteries"][0]["inForcePercent"], 75);
    EXPECT_EQ(told["batteries"][0]["foundPercent"], 100);
    EXPECT_EQ(told["explanation"], "Charging stops at 75%.");
}

TEST_F(Program, SetsAndPutsBackTheModeInWhichLevelsCountAnyNumberOfTimes) {
    setAttribute("BAT0/status", "Charging"); // one look is enough
    setAttribute("BAT0/charge_types", "Fast [Standard] Custom");
    for (int count = 0; count < 2; ++count) {
        wish({.chargeLimitEnabled = true, .chargeLimitPercent = 75});
        EXPECT_EQ(run({"--once"}).exitStatus, 0);
        EXPECT_EQ(attribute("BAT0/charge_types"), "Custom");
        EXPECT_EQ(attribute(bat0End), "75");
        wish({.chargeLimitEnabled = false});
        EXPECT_EQ(run({"--once"}).exitStatus, 0);
        EXPECT_EQ(attribute("BAT0/charge_types"), "Standard");
        EXPECT_EQ(attribute(bat0End), "100");
    }
}

TEST_F(Program, SaysWhereTheHardwareRefusesTheWish) {
    fs::remove(sysfs / "class/power_supply" / bat0End);
    fs::create_directory(sysfs / "class/power_supply" / bat0End); // which cannot be written to
    wish({.chargeLimitEnabled = true, .chargeLimitPercent = 75});
    const auto once = run({"--once"});
    EXPECT_EQ(once.exitStatus, 1);
    EXPECT_EQ(once.errors, "pwr_limiter: " + bat0End + " did not take 75: Is a directory\n");
    const auto told = Json::parse(details());
    EXPECT_EQ(told["lastError"], bat0End + " did not take 75: Is a directory");
    EXPECT_TRUE(told["batteries"][0]["inForcePercent"].is_null());
    EXPECT_TRUE(status() && status()->daemonRunning);
}

TEST_F(Program, IsContentWithAMachineThatHasNoInterface) {
    fs::remove(fs::path(sysfs) / "class/power_supply" / bat0End);
    wish({.chargeLimitEnabled = true, .chargeLimitPercent = 75});
    EXPECT_EQ(run({"--once"}).exitStatus, 0);
    EXPECT_TRUE(status()->daemonRunning);
    EXPECT_FALSE(status()->chargingInhibited);
    EXPECT_TRUE(Json::parse(details())["mechanism"].is_null());
    fs::remove_all(fs::path(sysfs) / "class");
    EXPECT_EQ(run({"--once"}).exitStatus, 0);
    EXPECT_EQ(Json::parse(details())["explanation"], "This machine has no battery.");
}

TEST_F(Program, RestoresWhatItFoundEvenAfterASuddenEnd) {
    setAttribute(bat0End, "95");
    wish({.chargeLimitEnabled = true, .chargeLimitPercent = 60});
    {
        RunningProgram helper(words());
        waitForLevel("60");
        helper.signal(SIGKILL);
        EXPECT_EQ(helper.end().exitStatus, 128 + SIGKILL);
    }
    const auto restored = run({"--restore"});
    EXPECT_EQ(restored.exitStatus, 0) << restored.errors;
    EXPECT_EQ(attribute(bat0End), "95");
    EXPECT_FALSE(status()->daemonRunning);
    EXPECT_EQ(Json::parse(details())["batteries"][0]["inForcePercent"], 95);
    EXPECT_EQ(run({"--restore"}).exitStatus, 0); // there is nothing left to do
}

TEST_F(Program, EndsWhenItIsAskedToAndLeavesTheLevelToTheHardware) {
    wish({.chargeLimitEnabled = true, .chargeLimitPercent = 60});
    for (const int signal : {SIGTERM, SIGINT}) {
        fs::remove(shared / "status.json");
        RunningProgram helper(words());
        waitUntilItRuns();
        helper.signal(signal);
        const auto ended = helper.end();
        EXPECT_EQ(ended.exitStatus, 0);
        EXPECT_EQ(ended.output + ended.errors, "");
        EXPECT_FALSE(status()->daemonRunning);
        EXPECT_EQ(status()->batteryPercent, 80);
        EXPECT_EQ(attribute(bat0End), "60");
        EXPECT_EQ(Json::parse(details())["explanation"], "Charging stops at 60%."); // the hardware sees to it
    }
}

TEST_F(Program, ReleasesChargingThatItHeldItself) {
    setAttribute("BAT0/status", "Charging"); // one look is enough
    fs::remove(fs::path(sysfs) / "class/power_supply" / bat0End);
    setAttribute("BAT0/charge_behaviour", "auto");
    wish({.chargeLimitEnabled = true, .chargeLimitPercent = 60});
    EXPECT_EQ(run({"--once"}).exitStatus, 0);
    EXPECT_EQ(attribute("BAT0/charge_behaviour"), "inhibit-charge");
    EXPECT_EQ(run({"--release"}).exitStatus, 0); // as after a crash
    EXPECT_EQ(attribute("BAT0/charge_behaviour"), "auto");
    EXPECT_FALSE(status()->daemonRunning);
    EXPECT_EQ(Json::parse(details())["explanation"], "No limit is in force.");
    RunningProgram helper(words());
    waitUntil([&] { return attribute("BAT0/charge_behaviour") == "inhibit-charge"; });
    helper.signal(SIGTERM);
    EXPECT_EQ(helper.end().exitStatus, 0);
    EXPECT_EQ(attribute("BAT0/charge_behaviour"), "auto");
}

TEST_F(Program, KeepsASecondOneOut) {
    wish({.chargeLimitEnabled = true, .chargeLimitPercent = 60});
    const RunningProgram helper(words());
    waitForLevel("60");
    for (const char* const task : {"--once", "--restore", "--release"}) {
        const auto second = run({task});
        EXPECT_EQ(second.exitStatus, 1);
        EXPECT_EQ(second.errors, "pwr_limiter: another pwr_limiter is at work already\n");
    }
    EXPECT_EQ(runProgram(words()).exitStatus, 1);
    EXPECT_EQ(attribute(bat0End), "60");
}

TEST_F(Program, HearsOfAChangedWish) {
    wish({.chargeLimitEnabled = true, .chargeLimitPercent = 60});
    const RunningProgram helper(words());
    waitForLevel("60");
    wish({.chargeLimitEnabled = true, .chargeLimitPercent = 70});
    waitForLevel("70");
    wish({.chargeLimitEnabled = false, .chargeLimitPercent = 70});
    waitForLevel("100");
}

TEST_F(Program, KeepsItsOwnFolderToItself) {
    setAttribute("BAT0/status", "Charging"); // one look is enough
    wish({.chargeLimitEnabled = true});
    const auto former = ::umask(0);
    EXPECT_EQ(run({"--once"}).exitStatus, 0);
    ::umask(former);
    EXPECT_EQ(fs::status(state).permissions(), fs::perms(0700));
    EXPECT_EQ(fs::status(state / "state.json").permissions(), fs::perms(0600));
    EXPECT_EQ(fs::status(shared / "status.json").permissions(), fs::perms(0644));
}

TEST_F(Program, SaysWhichFolderItCannotUse) {
    outer.write("file", "");
    const auto file = (outer.path() / "file").string();
    const auto noState = runProgram({program, "--once", "--folder", shared, "--state", file});
    EXPECT_EQ(noState.exitStatus, 1);
    EXPECT_THAT(noState.errors, HasSubstr("cannot use the folder " + file));
    const auto noTree = run({"--once", "--sysfs-root", outer.path() / "missing"});
    EXPECT_EQ(noTree.exitStatus, 1);
    EXPECT_THAT(noTree.errors, HasSubstr("cannot read the devices in "));
    const auto noFolder =
        runProgram({program, "--once", "--folder", file, "--state", state, "--sysfs-root", sysfs});
    EXPECT_EQ(noFolder.exitStatus, 1);
    EXPECT_THAT(noFolder.errors, HasSubstr("cannot write to " + file));
}

} // namespace
} // namespace quelby::limiter
