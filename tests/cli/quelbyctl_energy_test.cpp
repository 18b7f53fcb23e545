#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/laptop_recording.h"
#include "support/quelbyctl.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class QuelbyctlEnergy : public testing::Test {
protected:
    void record() const {
        const auto recorded = runProgram({QUELBY_BINARY_DIR "/quelby", "--headless", "--fast", "--replay",
                                          recording, "--data-dir", folder.path()},
                                         plainEnvironment());
        ASSERT_EQ(recorded.exitStatus, 0);
    }

    [[nodiscard]] ProgramResult ask(std::vector<std::string> words) const {
        words.insert(words.end(), {"--data-dir", folder.path(), "--replay", recording});
        return quelbyctl(words);
    }

    TemporaryFolder folder;
    std::string recording = folder.write("it.jsonl", laptopRecording(50));
};

TEST_F(QuelbyctlEnergy, TellsWhichApplicationUsedIt) {
    record();
    const auto object = nlohmann::json::parse(ask({"energy", "--json"}).output);
    // 12 W for fifty cycles, of whose weights (10, 3.4, 3, 1.5, 1, 5) the first is the processor's.
    EXPECT_NEAR(object["totalWh"].get<double>(), 0.5, 1e-9);
    EXPECT_EQ(object["rows"][0]["name"], "system");
    EXPECT_EQ(object["rows"][1]["name"], "editor");
    EXPECT_NEAR(object["rows"][1]["wattHours"].get<double>(), 0.5 * 10 / 23.9 * 0.75, 1e-9);
    EXPECT_NEAR(object["fullChargeWh"].get<double>(), 60, 1e-9);
    EXPECT_NEAR(object["totalWh"].get<double>(),
                nlohmann::json::parse(ask({"history", "--json"}).output)["todayWh"].get<double>(), 1e-9);
    EXPECT_THAT(ask({"energy"}).output, StartsWith("Today: 0.50 Wh, 1 % of a charge\n  system"));
}

TEST_F(QuelbyctlEnergy, TellsItByEveryRangeAndEveryKind) {
    record();
    for (const auto* range : {"today", "24h", "7d", "30d", "since-unplugged"}) {
        for (const auto* by : {"app", "component", "hour", "day"}) {
            const auto object =
                nlohmann::json::parse(ask({"energy", "--json", "--range", range, "--by", by}).output);
            EXPECT_NEAR(object["totalWh"].get<double>(), 0.5, 1e-9) << range << ' ' << by;
            EXPECT_THAT(ask({"energy", "--csv", "--range", range, "--by", by}).output,
                        HasSubstr(",watt_hours,"));
        }
    }
}

TEST_F(QuelbyctlEnergy, TellsSessionsAndDays) {
    record();
    const auto sessions = nlohmann::json::parse(ask({"sessions", "--json"}).output)["sessions"];
    ASSERT_EQ(sessions.size(), 1U);
    EXPECT_EQ(sessions[0]["kind"], "discharge");
    EXPECT_EQ(sessions[0]["seconds"], 49 * 30);
    EXPECT_EQ(sessions[0]["percentFrom"], 80);
    EXPECT_EQ(sessions[0]["percentTo"], 31);
    EXPECT_EQ(nlohmann::json::parse(ask({"health", "--json"}).output)["days"][0]["healthPercent"], 100.0);
    EXPECT_EQ(ask({"sleeps"}).output, "no sleep recorded\n");
}

TEST_F(QuelbyctlEnergy, SaysThatThereIsNoHistoryYet) {
    for (const auto* command : {"energy", "sleeps", "sessions", "health"}) {
        const auto none = ask({command, "--json"});
        EXPECT_EQ(none.exitStatus, 1);
        EXPECT_THAT(none.output, IsEmpty());
        EXPECT_THAT(none.errors, HasSubstr("there is no history yet"));
    }
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "Quelby")); // and makes none
}

TEST_F(QuelbyctlEnergy, RefusesWrongUsage) {
    EXPECT_THAT(ask({"energy", "--range", "1h"}).errors,
                HasSubstr("--range takes today, 24h, 7d, 30d or since-unplugged, not \"1h\""));
    EXPECT_THAT(ask({"energy", "--by", "user"}).errors,
                HasSubstr("--by takes app, component, hour or day, not \"user\""));
    EXPECT_EQ(ask({"energy", "--by", "user"}).exitStatus, 2);
    EXPECT_EQ(ask({"sleeps", "--json", "--csv"}).exitStatus, 2);
}

TEST_F(QuelbyctlEnergy, LeavesFileAndFolderAsTheyAre) {
    record();
    const auto before = folder.read("Quelby/history.db");
    const auto files = folder.names("Quelby");
    EXPECT_EQ(ask({"energy"}).exitStatus, 0);
    EXPECT_EQ(ask({"health"}).exitStatus, 0);
    EXPECT_EQ(folder.read("Quelby/history.db"), before);
    EXPECT_EQ(folder.names("Quelby"), files);
}

// A laptop that gains a percent each minute, with a limit that is kept.
std::string chargingRecording(bool enabled) {
    std::string text;
    for (int number = 0; number < 10; ++number) {
        auto cycle = laptopCycle(0);
        cycle.time = 1'700'000'000.0 + number * 60;
        cycle.battery =
            PropertyTable{{"AppleRawMaxCapacity", 5000}, {"AppleRawCurrentCapacity", 2500 + number * 50},
                          {"ExternalConnected", true},   {"IsCharging", true},
                          {"InstantAmperage", 3000},     {"Voltage", 12000}};
        cycle.status = R"({"daemonRunning": true, "chargingInhibited": false, "batteryPercent": 50,)"
                       R"( "lastUpdate": 1, "calibrationActive": false, "calibrationPhase": null})";
        cycle.config =
            enabled
                ? R"({"chargeLimitEnabled": true, "chargeLimitPercent": 80, "calibrationEnabled": false,)"
                  R"( "calibrationIntervalDays": 30, "lastCalibrationTimestamp": 0})"
                : R"({"chargeLimitEnabled": false, "chargeLimitPercent": 80, "calibrationEnabled": false,)"
                  R"( "calibrationIntervalDays": 30, "lastCalibrationTimestamp": 0})";
        text += recordingLine(cycle) + '\n';
    }
    return text;
}

TEST(QuelbyctlStatus, TellsTheMinutesToTheLimitUnderAKeyOfItsOwn) {
    const TemporaryFolder folder;
    const auto charging = folder.write("on.jsonl", chargingRecording(true)).string();
    const auto fields =
        nlohmann::ordered_json::parse(quelbyctl({"status", "--json", "--replay", charging}).output);
    EXPECT_EQ(fields.size(), 48U);
    EXPECT_EQ(fields["minutesToLimit"], 21); // from 59 % to 80 % at a percent a minute
    EXPECT_EQ(fields["predictedTime"], "~0h 41m to full");
    EXPECT_THAT(quelbyctl({"status", "--replay", charging}).output,
                testing::EndsWith("\nminutesToLimit          21 min\n"));
    const auto off = folder.write("off.jsonl", chargingRecording(false)).string();
    EXPECT_FALSE(nlohmann::json::parse(quelbyctl({"status", "--json", "--replay", off}).output)
                     .contains("minutesToLimit"));
}

} // namespace
} // namespace quelby
