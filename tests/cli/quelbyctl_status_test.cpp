#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/laptop_recording.h"
#include "support/quelbyctl.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

using nlohmann::ordered_json;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(QuelbyctlStatus, TellsTheFieldsAfterTheLastLineOfARecording) {
    const TemporaryFolder folder;
    const auto file = folder.write("it.jsonl", laptopRecording(5)).string();
    const auto result = quelbyctl({"status", "--json", "--replay", file});
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_THAT(result.errors, IsEmpty());
    const auto fields = ordered_json::parse(result.output);
    EXPECT_EQ(fields.size(), 47U);
    EXPECT_EQ(fields["batteryPercent"], 76);
    EXPECT_EQ(fields["totalPower"], 12.0);
    EXPECT_EQ(fields["cpuUsage"], 20.0);
    EXPECT_EQ(fields["powerHistory"].size(), 5U);
    EXPECT_EQ(fields["batteryRateStr"], "-120.0%/hr");
    EXPECT_EQ(fields["predictedTime"], "~0h 38m remaining");
    EXPECT_EQ(fields["topProcesses"][1]["name"], "Web Content");
    EXPECT_THAT(quelbyctl({"status", "--replay", file}).output, HasSubstr("batteryPercent          76 %\n"));
}

TEST(QuelbyctlStatus, TellsTheFieldsOfThisComputerAfterOneCycle) {
    const auto result = quelbyctl({"status", "--json"});
    EXPECT_EQ(result.exitStatus, 0);
    const auto fields = ordered_json::parse(result.output);
    EXPECT_EQ(fields["powerHistory"].size(), 1U);
    EXPECT_EQ(fields["topProcesses"].size(), 5U);
}

TEST(QuelbyctlStatus, LooksBelowTheRootsThatItIsGiven) {
    const TemporaryFolder folder;
    folder.write("sys/class/power_supply/BAT0/type", "Battery\n");
    folder.write("sys/class/power_supply/BAT0/status", "Discharging\n");
    folder.write("sys/class/power_supply/BAT0/charge_full", "4000000\n");
    folder.write("sys/class/power_supply/BAT0/charge_now", "1000000\n");
    folder.write("proc/uptime", "1000.00 2000.00\n");
    folder.write("proc/42/stat", "42 (lonely) S 1 42 42 0 -1 0 0 0 0 0 10000 0 0 0 20 0 1 0 0 0 0\n");
    const auto result = quelbyctl(
        {"status", "--json", "--sysfs-root", folder.path() / "sys", "--proc-root", folder.path() / "proc"});
    const auto fields = ordered_json::parse(result.output);
    EXPECT_EQ(fields["batteryPercent"], 25);
    ASSERT_EQ(fields["topProcesses"].size(), 1U);
    EXPECT_EQ(fields["topProcesses"][0]["name"], "lonely");
    EXPECT_EQ(fields["topProcesses"][0]["cpu"], 10.0); // 100 s of 1000 s
}

TEST(QuelbyctlStatus, SurvivesRootsThatAreNotThere) {
    const auto result =
        quelbyctl({"status", "--json", "--sysfs-root", "/nonexistent", "--proc-root", "/nonexistent"});
    EXPECT_EQ(result.exitStatus, 0);
    const auto fields = ordered_json::parse(result.output);
    EXPECT_EQ(fields["hasBattery"], false);
    EXPECT_THAT(fields["topProcesses"], IsEmpty());
}

TEST(QuelbyctlStatus, RestoresThePreferences) {
    const TemporaryFolder folder;
    const auto file = folder.write("it.jsonl", laptopRecording(1)).string();
    const auto preferences = folder.write("p.conf", "[General]\nmenuBarDisplay=Battery %\n").string();
    const auto named = quelbyctl({"status", "--json", "--replay", file, "--preferences", preferences});
    EXPECT_EQ(ordered_json::parse(named.output)["menuBarDisplay"], "Battery %");
    const auto unnamed = quelbyctl({"status", "--json", "--replay", file});
    EXPECT_EQ(ordered_json::parse(unnamed.output)["menuBarDisplay"], "Power (W)");
}

} // namespace
} // namespace quelby
