#include "monitor/published_fields.h"

#include <type_traits>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quelby {
namespace {

struct Describe {
    std::vector<std::string>& lines;

    template <typename T>
    void operator()(FieldName field, const Published<T>& value) const {
        lines.push_back(std::string(field.name) + " = " + text(value.get()));
    }

    static std::string text(bool value) { return value ? "true" : "false"; }

    static std::string text(Int value) { return fmt::format("{}", value); }

    static std::string text(double value) { return fmt::format("{:.1f}", value); }

    static std::string text(const std::string& value) { return '"' + value + '"'; }

    static std::string text(TimeRange value) { return std::string(rawValue(value)); }

    static std::string text(MenuBarDisplay value) { return std::string(rawValue(value)); }

    static std::string text(const std::optional<Date>& value) { return value ? "a date" : "none"; }

    template <typename T>
    static std::string text(const std::vector<T>& value) {
        return value.empty() ? "empty" : "filled";
    }
};

TEST(PublishedFields, AreFortySevenInTheirOrderWithTheirDefaults) {
    const PublishedFields fields;
    std::vector<std::string> lines;
    forEachField(fields, Describe{lines});
    EXPECT_THAT(lines,
                testing::ElementsAre(
                    "batteryPercent = 0", "isCharging = false", "isPluggedIn = false", "fullyCharged = false",
                    "hasBattery = true", "batteryHealth = 100", "timeRemaining = \"--:--\"",
                    "designCapacity = 0", "rawMaxCapacity = 0", "rawCurrentCapacity = 0", "cycleCount = 0",
                    "realWatts = 0.0", "voltage = 0.0", "amperage = 0.0", "cpuUsage = 0.0", "cpuPower = 0.0",
                    "gpuPower = 0.0", "memPower = 3.0", "diskPower = 1.5", "netPower = 1.0",
                    "totalPower = 0.0", "chargePower = 0.0", "acTotal = 0.0", "efficiency = 50",
                    "topProcesses = empty", "powerHistory = empty", "predictedTime = \"collecting...\"",
                    "batteryRateStr = \"\"", "historyRange = 30m", "historyData = empty", "historyAvg = 0.0",
                    "historyMin = 0.0", "historyMax = 0.0", "todayWh = 0.0", "chargeLimitEnabled = false",
                    "chargeLimitPercent = 80.0", "chargingInhibited = false", "chargeLimitStatus = \"\"",
                    "daemonInstalled = false", "calibrationEnabled = false", "calibrationIntervalDays = 30",
                    "calibrationActive = false", "lastCalibrationDate = none", "launchAtLogin = false",
                    "menuBarDisplay = Power (W)", "batteryTemp = 0.0", "shouldShowChargingTip = false"));
    EXPECT_EQ(lines.size(), 47U);
}

TEST(PublishedFields, CanBeChangedWhileTheyAreVisited) {
    PublishedFields fields;
    forEachField(fields, [](FieldName, auto& field) {
        if constexpr (std::is_same_v<decltype(field), Published<double>&>) {
            field = 2.5;
        }
    });
    EXPECT_EQ(fields.realWatts, 2.5);
    EXPECT_EQ(fields.batteryTemp, 2.5);
}

} // namespace
} // namespace quelby
