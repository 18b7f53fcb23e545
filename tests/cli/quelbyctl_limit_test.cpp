#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/laptop_recording.h"
#include "support/quelbyctl.h"
#include "support/temporary_folder.h"
#include "ui/presentation/cards/dialogs.h"

namespace quelby {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class QuelbyctlLimit : public testing::Test {
protected:
    [[nodiscard]] ProgramResult ctl(std::vector<std::string> words) const {
        words.insert(words.end(), {"--replay", recording, "--config-dir", folder.path() / "helper",
                                   "--preferences", folder.path() / "preferences.conf"});
        return quelbyctl(words);
    }

    [[nodiscard]] nlohmann::json config() const {
        return nlohmann::json::parse(folder.read("helper/config.json"));
    }

    TemporaryFolder folder;
    std::string recording = folder.write("it.jsonl", laptopRecording(3));
};

TEST_F(QuelbyctlLimit, ShowsAndChangesNothing) {
    for (const auto& words : std::vector<std::vector<std::string>>{{"limit"}, {"limit", "show"}}) {
        EXPECT_EQ(ctl(words).output, "charge limit off, 80%\n");
    }
    EXPECT_EQ(ctl({"calibration"}).output, "calibration off, every 30 days, never done\n");
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "helper"));
}

TEST_F(QuelbyctlLimit, TellsTheDayOfTheLastCalibration) {
    folder.write("helper/config.json", R"({"chargeLimitEnabled":false,"chargeLimitPercent":80,)"
                                       R"("calibrationEnabled":true,"calibrationIntervalDays":14,)"
                                       R"("lastCalibrationTimestamp":1699963200})");
    EXPECT_EQ(ctl({"calibration"}).output,
              "calibration on, every 14 days, last done 2023-11-14, but the helper is not installed\n");
}

TEST_F(QuelbyctlLimit, SetsWhatTheDashboardWouldSet) {
    EXPECT_EQ(ctl({"limit", "on"}).output, "charge limit on, 80%, but the helper is not installed\n");
    EXPECT_EQ(config()["chargeLimitEnabled"], true);
    EXPECT_THAT(folder.read("preferences.conf"), HasSubstr("hasShownChargingTip=true"));
    EXPECT_EQ(ctl({"limit", "95"}).exitStatus, 0);
    EXPECT_EQ(config()["chargeLimitPercent"], 95);
    EXPECT_EQ(config()["chargeLimitEnabled"], true);
    EXPECT_EQ(ctl({"limit", "off"}).output, "charge limit off, 95%\n");
    EXPECT_EQ(ctl({"calibration", "60"}).exitStatus, 0);
    EXPECT_EQ(config()["calibrationEnabled"], true);
    EXPECT_EQ(config()["calibrationIntervalDays"], 60);
    EXPECT_EQ(ctl({"calibration", "off"}).output, "calibration off, every 60 days, never done\n");
    EXPECT_EQ(config()["calibrationIntervalDays"], 60);
    EXPECT_EQ(config()["chargeLimitPercent"], 95);
}

TEST_F(QuelbyctlLimit, SaysTheChargingTipOnceBesideItsData) {
    EXPECT_THAT(ctl({"limit", "90"}).errors, IsEmpty());
    const auto first = ctl({"limit", "on"});
    EXPECT_EQ(first.errors, std::string(chargingTip(linuxWords).message) + '\n');
    EXPECT_EQ(first.output, "charge limit on, 90%, but the helper is not installed\n");
    EXPECT_THAT(ctl({"limit", "off"}).errors, IsEmpty());
    EXPECT_THAT(ctl({"limit", "on"}).errors, IsEmpty());
}

TEST_F(QuelbyctlLimit, LeavesTheChargingTipToTheNextTimeWhereTheLimitCannotBeSwitchedOn) {
    const auto refused = quelbyctl({"limit", "on", "--replay", recording, "--config-dir", recording,
                                    "--preferences", folder.path() / "preferences.conf"});
    EXPECT_EQ(refused.exitStatus, 1);
    EXPECT_EQ(refused.errors, "quelbyctl: cannot write the helper's settings to \"" + recording + "\"\n");
    EXPECT_EQ(ctl({"limit", "on"}).errors, std::string(chargingTip(linuxWords).message) + '\n');
}

TEST_F(QuelbyctlLimit, TellsWhatTheHelperSays) {
    folder.write("helper/status.json",
                 R"({"daemonRunning":true,"chargingInhibited":true,"calibrationActive":false,)"
                 R"("batteryPercent":80,"lastUpdate":0})");
    EXPECT_EQ(ctl({"limit", "on"}).output, "charge limit on, 80%: Holding at 80%\n");
    EXPECT_EQ(ctl({"helper"}).output, "the helper is installed and running\n");
}

TEST_F(QuelbyctlLimit, TakesTheSettingsOfARecordingWhereTheFolderHasNone) {
    recording = QUELBY_SOURCE_DIR "/resources/recordings/laptop-held-at-limit.jsonl";
    EXPECT_EQ(quelbyctl({"limit", "--replay", recording}).output, "charge limit on, 80%: Holding at 80%\n");
    EXPECT_EQ(ctl({"limit"}).output, "charge limit on, 80%: Holding at 80%\n");
    EXPECT_EQ(ctl({"limit", "90"}).exitStatus, 0);
    EXPECT_EQ(config()["chargeLimitEnabled"], true) << "as it was recorded";
    EXPECT_EQ(config()["chargeLimitPercent"], 90);
    EXPECT_THAT(ctl({"limit", "off"}).output, StartsWith("charge limit off, 90%"))
        << "the folder goes before";
}

TEST_F(QuelbyctlLimit, TellsWhatTheHelperExplains) {
    const std::string status = R"({"daemonRunning":true,"chargingInhibited":true,"calibrationActive":false,)"
                               R"("batteryPercent":80,"lastUpdate":0})";
    const std::string details = R"({"mechanism":"thresholds","explanation":"Charging stops at 80%."})";
    EXPECT_EQ(ctl({"helper", "--json"}).output,
              R"({"installed":false,"running":false,"status":null,"details":null})"
              "\n");
    folder.write("helper/status.json", status);
    folder.write("helper/details.json", details);
    EXPECT_EQ(ctl({"helper", "status"}).output,
              "the helper is installed and running\nCharging stops at 80%.\n");
    EXPECT_EQ(ctl({"helper", "status", "--json"}).output,
              R"({"installed":true,"running":true,"status":)" + status + R"(,"details":)" + details + "}\n");
    EXPECT_EQ(ctl({"helper", "install", "--json"}).exitStatus, 2);
}

TEST_F(QuelbyctlLimit, TakesNothingFromTheHelpersFolderThatIsNotWhole) {
    folder.write("helper/status.json", R"({"daemonRunning":true})");
    for (const auto& rotten : {std::string("{"), std::string("[]"), std::string(60'000, '['),
                               "{\"a\":" + std::string(30'000, '[') + std::string(30'000, ']') + '}'}) {
        folder.write("helper/details.json", rotten);
        EXPECT_EQ(ctl({"helper", "--json"}).output,
                  R"({"installed":false,"running":false,"status":null,"details":null})"
                  "\n");
    }
    folder.write("helper/status.json",
                 R"({"daemonRunning":true,"chargingInhibited":true,"calibrationActive":false,)"
                 R"("batteryPercent":80,"lastUpdate":0})");
    folder.write("helper/details.json", R"({"explanation":"one\u001b[31m\nline"})");
    EXPECT_EQ(ctl({"helper"}).output, "the helper is installed and running\none?[31m?line\n");
}

TEST_F(QuelbyctlLimit, FollowsSettingsThatChangeWithinARecording) {
    std::string lines;
    for (int number = 0; number < 3; ++number) {
        auto cycle = laptopCycle(number);
        cycle.config =
            R"({"chargeLimitEnabled":true,"chargeLimitPercent":)" + std::to_string(80 + 5 * number) +
            R"(,"calibrationEnabled":false,"calibrationIntervalDays":30,"lastCalibrationTimestamp":0})";
        lines += recordingLine(cycle) + '\n';
    }
    recording = folder.write("changing.jsonl", lines);
    EXPECT_EQ(ctl({"limit"}).output, "charge limit on, 90%, but the helper is not installed\n");
    EXPECT_EQ(ctl({"limit", "60"}).exitStatus, 0);
    EXPECT_EQ(ctl({"limit"}).output, "charge limit on, 60%, but the helper is not installed\n");
}

TEST_F(QuelbyctlLimit, KeepsWhatItDoesNotKnowInTheFile) {
    folder.write("helper/config.json",
                 R"({"chargeLimitEnabled":false,"chargeLimitPercent":85.0,"calibrationEnabled":false,)"
                 R"("calibrationIntervalDays":30,"lastCalibrationTimestamp":0,"note":{"by":"me"}})");
    EXPECT_EQ(ctl({"limit", "on"}).exitStatus, 0);
    EXPECT_EQ(folder.read("helper/config.json"),
              R"({"chargeLimitEnabled":true,"chargeLimitPercent":85,"calibrationEnabled":false,)"
              R"("calibrationIntervalDays":30,"lastCalibrationTimestamp":0,"note":{"by":"me"}})");
}

TEST_F(QuelbyctlLimit, RefusesWhatTheDashboardCouldNotSet) {
    for (const auto* value : {"15", "101", "83", "80.0", "-80", "yes", ""}) {
        EXPECT_EQ(ctl({"limit", value}).exitStatus, 2) << value;
    }
    for (const auto* value : {"1", "31", "week", "-7"}) {
        EXPECT_EQ(ctl({"calibration", value}).exitStatus, 2) << value;
    }
    EXPECT_EQ(ctl({"helper", "restart"}).exitStatus, 2);
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "helper"));
}

TEST_F(QuelbyctlLimit, SaysWhereTheSettingsCannotBeWritten) {
    const auto refused = quelbyctl({"limit", "on", "--replay", recording, "--config-dir", recording});
    EXPECT_EQ(refused.exitStatus, 1);
    EXPECT_THAT(refused.output, IsEmpty());
    EXPECT_EQ(refused.errors, "quelbyctl: cannot write the helper's settings to \"" + recording + "\"\n");
}

TEST_F(QuelbyctlLimit, InstallsNothingForARecordingNorWhatDidNotComeWithTheProgram) {
    EXPECT_EQ(ctl({"helper", "install"}).errors,
              "quelbyctl: a recorded machine has no helper that could be installed or removed\n");
    // A program that was copied away from what belongs to it.
    const auto alone = folder.path() / "bin" / "quelbyctl";
    std::filesystem::create_directories(alone.parent_path());
    std::filesystem::copy_file(QUELBY_BINARY_DIR "/quelbyctl", alone);
    const auto missing = runProgram({alone, "helper", "install", "--config-dir", folder.path() / "helper"},
                                    plainEnvironment());
    EXPECT_EQ(missing.exitStatus, 1);
    EXPECT_EQ(
        missing.errors,
        "quelbyctl: cannot install the helper: its program \"pwr_limiter\" did not come with this one\n");
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "helper"));
}

} // namespace
} // namespace quelby
