#include "cli/output/fields_json.h"

#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "base/utf8.h"

namespace quelby::cli {
namespace {

using nlohmann::ordered_json;

TEST(FieldsAsJson, HaveAllNamesInDeclarationOrder) {
    const PublishedFields fields;
    std::vector<std::string> names;
    forEachField(fields, [&](FieldName field, const auto&) { names.emplace_back(field.name); });
    std::vector<std::string> keys;
    const auto object = ordered_json::parse(fieldsAsJson(fields));
    for (const auto& [key, value] : object.items()) {
        keys.push_back(key);
    }
    EXPECT_EQ(keys, names);
    EXPECT_EQ(keys.size(), 47U);
}

TEST(FieldsAsJson, WriteEachTypeAsItIs) {
    PublishedFields fields;
    fields.batteryPercent = 50;
    fields.voltage = 11.1;
    fields.isCharging = true;
    fields.timeRemaining = "2:05";
    fields.topProcesses = std::vector<ProcessInfo_Energy>{{"editor", 25.0, 5.0}};
    fields.powerHistory = std::vector<double>{1.0, 2.5};
    fields.historyData = std::vector<HistoryDataPoint>{{1700000000, 12.5}};
    fields.historyRange = TimeRange::sevenDays;
    const auto object = ordered_json::parse(fieldsAsJson(fields));
    EXPECT_EQ(object["batteryPercent"].dump(), "50");
    EXPECT_EQ(object["voltage"].dump(), "11.1");
    EXPECT_EQ(object["isCharging"].dump(), "true");
    EXPECT_EQ(object["timeRemaining"].dump(), R"("2:05")");
    EXPECT_EQ(object["topProcesses"].dump(), R"([{"name":"editor","cpu":25.0,"estimatedWatts":5.0}])");
    EXPECT_EQ(object["powerHistory"].dump(), "[1.0,2.5]");
    EXPECT_EQ(object["historyData"].dump(), R"([{"id":1700000000,"watts":12.5}])");
    EXPECT_EQ(object["historyRange"].dump(), R"("7d")");
    EXPECT_EQ(object["menuBarDisplay"].dump(), "\"Power (W)\"");
    EXPECT_EQ(object["lastCalibrationDate"].dump(), "null");
    fields.lastCalibrationDate = 1700000000.5;
    EXPECT_EQ(ordered_json::parse(fieldsAsJson(fields))["lastCalibrationDate"].dump(), "1700000000.5");
}

TEST(FieldsAsJson, AreOneLineOfAsciiOrUtf8WhateverAProcessIsCalled) {
    PublishedFields fields;
    fields.topProcesses = std::vector<ProcessInfo_Energy>{{"a\nb\"\xFF\x1B", 1.0, 0.0}};
    const auto line = fieldsAsJson(fields);
    EXPECT_EQ(line.find('\n'), std::string::npos);
    EXPECT_EQ(ordered_json::parse(line)["topProcesses"][0]["name"], "a\nb\"\uFFFD\x1B");
}

TEST(FieldsAsJson, HoldNothingThatATerminalWouldObeyAndMeanTheSame) {
    const std::string name = "\u009B2J\x7F \u202E\u2066電池\u2028\U0001F50B";
    PublishedFields fields;
    fields.topProcesses = std::vector<ProcessInfo_Energy>{{name, 1.0, 0.0}};
    const auto line = fieldsAsJson(fields);
    EXPECT_EQ(printable(line), line);
    EXPECT_NE(line.find("電池"), std::string::npos);
    EXPECT_EQ(ordered_json::parse(line)["topProcesses"][0]["name"], name);
}

TEST(FieldsAsJson, HaveNoNumberThatJsonLacks) {
    PublishedFields fields;
    fields.cpuPower = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(ordered_json::parse(fieldsAsJson(fields))["cpuPower"].is_null());
}

} // namespace
} // namespace quelby::cli
