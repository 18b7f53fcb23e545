// What `quelbyctl dashboard --json` says of each recorded state in tests/data/dashboard-states.json.
#include <cctype>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/quelbyctl.h"
#include "support/temporary_folder.h"

namespace quelby {
namespace {

using nlohmann::json;

struct DashboardState {
    json line; // of the recording
    int cycles = 1;
    json config;
    json says;            // by JSON pointers
    std::string sentence; // which state it is
    std::string name;     // the same as a name of a test: its number, and the words that letters can say
};

void PrintTo(const DashboardState& state, std::ostream* stream) {
    *stream << state.name;
}

std::string nameFrom(std::size_t number, const std::string& sentence) {
    auto name = std::to_string(number);
    for (const char character : sentence) {
        const bool plain = std::isalnum(static_cast<unsigned char>(character)) != 0;
        if (plain || name.back() != '_') {
            name += plain ? character : '_';
        }
    }
    return name;
}

json lineOf(const json& base, const json& state) {
    json line = base;
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

std::vector<DashboardState> writtenStates() {
    std::ifstream stream(std::filesystem::path(QUELBY_SOURCE_DIR) / "tests/data/dashboard-states.json");
    const auto all = json::parse(stream);
    std::vector<DashboardState> states;
    for (const auto& state : all["states"]) {
        states.push_back({.line = lineOf(all["base"], state),
                          .cycles = state.value("cycles", 1),
                          .config = state.value("config", json::object()),
                          .says = state["says"],
                          .sentence = state["state"],
                          .name = nameFrom(states.size() + 1, state["state"])});
    }
    return states;
}

class DashboardStates : public testing::TestWithParam<DashboardState> {
protected:
    [[nodiscard]] std::vector<std::string> words(DashboardState state) const {
        std::string recording;
        for (int cycle = 0; cycle < state.cycles; ++cycle) {
            recording += state.line.dump() + '\n';
            state.line["time"] = state.line["time"].get<double>() + 3;
        }
        folder.write("config.json", state.config.dump());
        return {"--replay", folder.write("state.jsonl", recording), "--config-dir", folder.path().string()};
    }

    [[nodiscard]] static json said(std::vector<std::string> words, const std::string& view) {
        words.insert(words.begin(), {"dashboard", "--json", "--view", view});
        const auto result = quelbyctl(words);
        EXPECT_THAT(result.errors, testing::IsEmpty());
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

    TemporaryFolder folder;
};

TEST_P(DashboardStates, SayWhatIsWrittenDownOfThem) {
    SCOPED_TRACE(GetParam().sentence);
    const auto arguments = words(GetParam());
    const auto dashboard = said(arguments, "dashboard");
    const auto settings = said(arguments, "settings");
    const std::string inSettings = "/settings";
    for (const auto& [pointer, expected] : GetParam().says.items()) {
        if (pointer.rfind(inSettings + '/', 0) == 0) {
            expectSaid(settings, pointer.substr(inSettings.size()), expected);
        } else {
            expectSaid(dashboard, pointer, expected);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Written, DashboardStates, testing::ValuesIn(writtenStates()),
                         [](const auto& test) { return test.param.name; });

TEST(WrittenDashboardStates, AreManyAndEachHasAnExpectation) {
    const auto states = writtenStates();
    EXPECT_GT(states.size(), 80U);
    for (const auto& state : states) {
        EXPECT_FALSE(state.says.empty()) << state.name;
    }
}

} // namespace
} // namespace quelby
