#include <filesystem>
#include <fstream>
#include <iterator>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/laptop_recording.h"
#include "support/quelbyctl.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

namespace fs = std::filesystem;

using nlohmann::json;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const fs::path data = fs::path(QUELBY_SOURCE_DIR) / "tests/data";

std::string content(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(QuelbyctlDashboard, SaysOfARecordedLaptopWhatIsWrittenDown) {
    const auto folder = data / "charging-dashboard";
    const auto result = quelbyctl({"dashboard", "--json", "--replay", (folder / "charging.jsonl").string(),
                                   "--config-dir", folder.string()});
    EXPECT_THAT(result.errors, IsEmpty());
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_EQ(result.output, content(folder / "dashboard.json") + '\n');
}

class DashboardStates : public testing::Test {
protected:
    static json object(const json& all, const json& state) {
        json line = all["base"];
        if (state.contains("battery")) {
            if (state["battery"].is_null()) {
                line["battery"] = nullptr;
            } else {
                line["battery"].update(state["battery"]);
            }
        }
        line.update(state.value("line", json::object()));
        return line;
    }

    [[nodiscard]] std::vector<std::string> words(const json& all, const json& state) {
        auto line = object(all, state);
        std::string recording;
        for (int cycle = 0; cycle < state.value("cycles", 1); ++cycle) {
            recording += line.dump() + '\n';
            line["time"] = line["time"].get<double>() + 3;
        }
        folder.write("config.json", state.value("config", json::object()).dump());
        return {"--replay", folder.write("state.jsonl", recording), "--config-dir", folder.path().string()};
    }

    [[nodiscard]] static json said(std::vector<std::string> words, const std::string& view) {
        words.insert(words.begin(), {"dashboard", "--json", "--view", view});
        const auto result = quelbyctl(words);
        EXPECT_THAT(result.errors, IsEmpty());
        return json::parse(result.output);
    }

    static void expectSaid(const json& object, const std::string& pointer, const json& expected) {
        const json::json_pointer place(pointer);
        if (expected == "absent") {
            EXPECT_FALSE(object.contains(place)) << pointer;
        } else {
            ASSERT_TRUE(object.contains(place)) << pointer;
            EXPECT_EQ(object[place], expected) << pointer;
        }
    }

    void expectWhatIsWrittenDown(const json& all, const json& state) {
        SCOPED_TRACE(state["state"]);
        const auto arguments = words(all, state);
        const auto dashboard = said(arguments, "dashboard");
        const auto settings = said(arguments, "settings");
        const std::string inSettings = "/settings";
        for (const auto& [pointer, expected] : state["says"].items()) {
            if (pointer.rfind(inSettings + '/', 0) == 0) {
                expectSaid(settings, pointer.substr(inSettings.size()), expected);
            } else {
                expectSaid(dashboard, pointer, expected);
            }
        }
    }

    TemporaryFolder folder;
};

TEST_F(DashboardStates, SayWhatIsWrittenDownOfThem) {
    const auto all = json::parse(content(data / "dashboard-states.json"));
    ASSERT_GT(all["states"].size(), 80U);
    for (const auto& state : all["states"]) {
        expectWhatIsWrittenDown(all, state);
    }
}

class QuelbyctlDashboardText : public testing::Test {
protected:
    TemporaryFolder folder;
    std::string recording = folder.write("it.jsonl", laptopRecording(4));
};

TEST_F(QuelbyctlDashboardText, HoldsNoEscapeSequencesInAFile) {
    const auto result = quelbyctl({"dashboard", "--replay", recording});
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_THAT(result.output, AllOf(HasSubstr("Battery Drain"), HasSubstr("77%"), HasSubstr("editor"),
                                     HasSubstr("Live Power Trend"), Not(HasSubstr("\x1b"))));
}

TEST_F(QuelbyctlDashboardText, IsColouredAndAsWideAsTheTerminal) {
    auto environment = plainEnvironment();
    environment["COLORTERM"] = "truecolor";
    TerminalProgram program(quelbyctlWords({"dashboard", "--replay", recording}), 150, 24, environment);
    const auto output = program.end().output;
    EXPECT_THAT(output, HasSubstr("\x1b[1;38;2;")); // the big figure
    const auto header = output.substr(0, output.find('\n'));
    EXPECT_THAT(header, HasSubstr("22:14:50"));
    EXPECT_GT(header.size(), 140U); // three columns of cards
}

TEST_F(QuelbyctlDashboardText, ShowsTheSettingsAsWell) {
    const auto result = quelbyctl({"dashboard", "--view", "settings", "--replay", recording});
    EXPECT_THAT(result.output, AllOf(HasSubstr("Launch at Login"), HasSubstr("Uninstall Quelby"),
                                     HasSubstr("Quelby v1.0"), Not(HasSubstr("Battery Drain"))));
}

TEST_F(QuelbyctlDashboardText, SpeaksOfDatesInTheUsersLanguage) {
    folder.write("config.json",
                 R"({"chargeLimitEnabled":true,"chargeLimitPercent":80,"calibrationEnabled":true,)"
                 R"("calibrationIntervalDays":14,"lastCalibrationTimestamp":1699740890})");
    const auto result = quelbyctl(
        {"dashboard", "--view", "settings", "--replay", recording, "--config-dir", folder.path().string()},
        {{"LC_ALL", "de_DE.UTF-8"}});
    EXPECT_THAT(result.output, AllOf(HasSubstr("Last: vor 3 Tagen"), HasSubstr("Next: in 1 Woche"),
                                     Not(HasSubstr("Wochen"))));
}

TEST_F(QuelbyctlDashboardText, RefusesAViewThatThereIsNot) {
    const auto result = quelbyctl({"dashboard", "--view", "map", "--replay", recording});
    EXPECT_EQ(result.exitStatus, 2);
    EXPECT_THAT(result.errors, HasSubstr("--view takes dashboard or settings, not \"map\""));
}

} // namespace
} // namespace quelby
