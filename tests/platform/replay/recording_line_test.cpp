#include "platform/replay/recording_line.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace quelby {
namespace {

constexpr std::string_view smallest =
    R"({"time": 1700000000, "battery": null, "processors": 8, "cpuListing": null, "topListing": null})";

std::string refusal(std::string_view line) {
    const auto cycle = parseRecordingLine(line);
    return cycle ? "accepted" : cycle.error().sentence;
}

// The smallest line with one key's value replaced.
std::string smallestWith(std::string_view key, std::string_view value) {
    std::string line(smallest);
    const auto name = fmt::format("\"{}\": ", key);
    const auto found = line.find(name);
    if (found == std::string::npos) {
        return line.substr(0, line.size() - 1) + ", " + name + std::string(value) + '}';
    }
    const auto start = found + name.size();
    return line.replace(start, line.find_first_of(",}", start) - start, value);
}

TEST(RecordingLine, IsReadWhole) {
    const auto cycle = parseRecordingLine(
        R"({"time": 1700000000.5, "battery": {"Voltage": 12000, "IsCharging": true, "InstantAmperage": -5},)"
        R"( "processors": 8, "cpuListing": "%CPU\n 1.0\n", "topListing": "%CPU COMM\n 1.0 a b\n",)"
        R"( "storageDraw": 1, "status": "{}", "helperLoaded": true, "config": "{ }"})");
    ASSERT_TRUE(cycle);
    EXPECT_EQ(*cycle,
              (RecordedCycle{
                  .time = 1700000000.5,
                  .battery = PropertyTable{{"Voltage", 12000}, {"IsCharging", true}, {"InstantAmperage", -5}},
                  .processors = 8,
                  .cpuListing = "%CPU\n 1.0\n",
                  .topListing = "%CPU COMM\n 1.0 a b\n",
                  .storageDraw = 1,
                  .status = "{}",
                  .helperLoaded = true,
                  .config = "{ }",
              }));
}

TEST(RecordingLine, NeedsOnlyTheRequiredKeys) {
    const auto cycle = parseRecordingLine(smallest);
    ASSERT_TRUE(cycle);
    EXPECT_EQ(cycle->battery, BatteryReading(NoBattery{}));
    EXPECT_EQ(cycle->cpuListing, std::nullopt);
    EXPECT_EQ(cycle->storageDraw, std::nullopt);
    EXPECT_EQ(cycle->status, std::nullopt);
    EXPECT_FALSE(cycle->helperLoaded);
    EXPECT_EQ(cycle->config, std::nullopt);
}

TEST(RecordingLine, KnowsABatteryThatCannotBeRead) {
    EXPECT_EQ(parseRecordingLine(smallestWith("battery", "\"unreadable\""))->battery,
              BatteryReading(UnreadableBattery{}));
}

TEST(RecordingLine, CountsPropertiesOfOtherTypesAsAbsent) {
    const auto cycle = parseRecordingLine(smallestWith(
        "battery",
        R"({"a": "text"; "b": 1.5; "c": null; "d": [1]; "e": 18446744073709551615; "f": -9223372036854775808})"));
    EXPECT_FALSE(cycle); // semicolons are no JSON
    auto line = smallestWith("battery", R"({"a": "text"})");
    EXPECT_EQ(parseRecordingLine(line)->battery, BatteryReading(PropertyTable{}));
    const auto table =
        R"({"time": 1, "processors": 1, "cpuListing": null, "topListing": null, "battery":)"
        R"({"b": 1.5, "c": null, "d": [1], "e": 18446744073709551615, "f": -9223372036854775808}})";
    EXPECT_EQ(parseRecordingLine(table)->battery,
              BatteryReading(PropertyTable{{"f", std::numeric_limits<std::int64_t>::min()}}));
}

TEST(RecordingLine, PassesOverUnknownKeysAndOptionalNulls) {
    EXPECT_TRUE(parseRecordingLine(smallestWith("fromTheFuture", "[]")));
    for (const auto* key :
         {"storageDraw", "status", "helperLoaded", "config", "applicationListing", "sinceBoot"}) {
        EXPECT_EQ(refusal(smallestWith(key, "null")), "accepted") << key;
    }
}

TEST(RecordingLine, IsRefusedWhereItIsNoObject) {
    for (const auto* line :
         {"", " ", "null", "[]", "1", "\"text\"", "{", "{\"time\": 1", "\x7F\x45\x4C\x46", "{} {}"}) {
        EXPECT_EQ(refusal(line), "is not a JSON object") << line;
    }
}

TEST(RecordingLine, IsRefusedWithoutARequiredKey) {
    for (const auto* key : {"time", "battery", "processors", "cpuListing", "topListing"}) {
        std::string line(smallest);
        line[line.find(key)] = 'x';
        EXPECT_EQ(refusal(line), fmt::format("has no \"{}\"", key));
    }
}

TEST(RecordingLine, IsRefusedWithAKeyOfAnotherKind) {
    const std::pair<const char*, const char*> wrong[] = {{"time", "\"now\""},
                                                         {"time", "null"},
                                                         {"time", "1e999"},
                                                         {"battery", "1"},
                                                         {"battery", "\"flat\""},
                                                         {"battery", "[]"},
                                                         {"battery", "true"},
                                                         {"processors", "0"},
                                                         {"processors", "-1"},
                                                         {"processors", "1.5"},
                                                         {"processors", "\"2\""},
                                                         {"cpuListing", "1"},
                                                         {"topListing", "[]"},
                                                         {"storageDraw", "2"},
                                                         {"storageDraw", "-1"},
                                                         {"storageDraw", "true"},
                                                         {"storageDraw", "0.5"},
                                                         {"status", "{}"},
                                                         {"helperLoaded", "1"},
                                                         {"helperLoaded", "\"true\""},
                                                         {"config", "{}"},
                                                         {"config", "true"},
                                                         {"applicationListing", "1"},
                                                         {"sinceBoot", "1"},
                                                         {"sinceBoot", R"({"awake": 1})"},
                                                         {"sinceBoot", R"({"awake": 1, "asleep": "2"})"}};
    for (const auto& [key, value] : wrong) {
        EXPECT_NE(refusal(smallestWith(key, value)), "accepted") << key << ' ' << value;
    }
    EXPECT_EQ(refusal(smallestWith("processors", "0")),
              "has a \"processors\" that is not a whole number of 1 or more");
}

TEST(RecordingLine, SurvivesDeepNesting) {
    EXPECT_EQ(refusal(std::string(200'000, '[')), "is not a JSON object");
    const auto nested = std::string(200'000, '[') + std::string(200'000, ']');
    EXPECT_TRUE(parseRecordingLine(smallestWith("fromTheFuture", nested)));
}

TEST(RecordingLine, IsWrittenAsItIsRead) {
    const RecordedCycle cycles[] = {
        {.time = 1700000000.123456, .battery = NoBattery{}, .processors = 1, .cpuListing = "%CPU\n"},
        {.time = 0.1,
         .battery = UnreadableBattery{},
         .processors = 128,
         .topListing = "%CPU COMM\n0.1 \"ü\\\n"},
        {.time = 3,
         .applicationListing = "%CPU APPLICATION\n1.00 Maps\n",
         .sinceBoot = TimeSinceBoot{.awake = 0.5, .asleep = 123456.75}},
        {.time = -1,
         .battery = PropertyTable{{"Voltage", 12000}, {"IsCharging", false}},
         .processors = 4,
         .storageDraw = 0,
         .status = "{\"a\":\n1}",
         .helperLoaded = true,
         .config = "{\"b\":\n2}"},
    };
    for (const auto& cycle : cycles) {
        const auto line = recordingLine(cycle);
        EXPECT_EQ(line.find('\n'), std::string::npos);
        const auto read = parseRecordingLine(line);
        ASSERT_TRUE(read) << line;
        EXPECT_EQ(*read, cycle) << line;
    }
}

TEST(RecordingLine, ReplacesWhatIsNotUtf8) {
    const RecordedCycle cycle{.topListing = "%CPU COMM\n1.0 \xFF\n"};
    EXPECT_EQ(parseRecordingLine(recordingLine(cycle))->topListing, "%CPU COMM\n1.0 \uFFFD\n");
}

} // namespace
} // namespace quelby
