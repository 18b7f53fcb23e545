#include "ui/presentation/cards/battery_details_card.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/presentation/printing.h"

namespace quelby {
namespace {

DetailRow row(const char* label, const char* value, const char* icon, const char* note) {
    return {.symbol = {icon, ColorName::secondary},
            .label = secondary(label),
            .value = primary(value),
            .note = secondary(note)};
}

std::optional<DetailRow> rowOf(const PublishedFields& fields, const char* label) {
    for (const auto& row : batteryDetailsCard(fields).rows) {
        if (row.label.text == label) {
            return row;
        }
    }
    return std::nullopt;
}

TEST(BatteryDetailsCard, ListsEveryFigure) {
    PublishedFields fields;
    fields.designCapacity = 5000;
    fields.rawMaxCapacity = 4500;
    fields.rawCurrentCapacity = 2250;
    fields.batteryPercent = 50;
    fields.cycleCount = 123;
    fields.batteryHealth = 90;
    fields.voltage = 12.346;
    fields.amperage = -1500.4;
    fields.batteryTemp = 31.44;
    auto voltage = row("Voltage", "12.35 V", "bolt.circle", "");
    voltage.note = std::nullopt;
    const BatteryDetailsCard expected{
        .symbol = {"battery.100percent.circle", ColorName::primary},
        .title = primary("Battery Details"),
        .rows = {row("Design Capacity", "5000 mAh", "sparkles", "when new"),
                 row("Full Charge Capacity", "4500 mAh", "battery.100percent", "Current max"),
                 row("Current Charge", "2250 mAh", "bolt.fill", "50%"),
                 row("Cycle Count", "123", "arrow.triangle.2.circlepath", "healthy"),
                 row("Battery Health", "90%", "heart.fill", "good"), voltage,
                 row("Current", "-1500 mA", "arrow.down.to.line", "draining"),
                 row("Temperature", "31.4°C", "thermometer.medium", "normal")}};
    EXPECT_EQ(batteryDetailsCard(fields), expected);
}

TEST(BatteryDetailsCard, LeavesOutWhatHasNoReading) {
    std::vector<std::string> labels;
    for (const auto& row : batteryDetailsCard({}).rows) {
        labels.push_back(row.label.text);
    }
    EXPECT_THAT(labels, testing::ElementsAre("Design Capacity", "Full Charge Capacity", "Current Charge",
                                             "Cycle Count", "Battery Health"));
}

TEST(BatteryDetailsCard, LeavesOutOnlyWhatHasNoReading) {
    struct Case {
        double voltage;
        double amperage;
        double batteryTemp;
        const char* label; // the only one of the three that is shown
    };

    for (const auto& [voltage, amperage, batteryTemp, label] :
         {Case{0.01, 0, 0, "Voltage"}, Case{0, 0.6, 0, "Current"}, Case{0, -0.6, 0, "Current"},
          Case{0, 0, 0.1, "Temperature"}, Case{-1, 1, -1, "Current"}}) {
        PublishedFields fields;
        fields.voltage = voltage;
        fields.amperage = amperage;
        fields.batteryTemp = batteryTemp;
        const auto rows = batteryDetailsCard(fields).rows;
        ASSERT_EQ(rows.size(), 6U) << label;
        EXPECT_EQ(rows.back().label.text, label);
    }
}

TEST(BatteryDetailsCard, JudgesTheCycles) {
    PublishedFields fields;
    for (const auto& [cycles, note] : {std::pair<Int, const char*>{0, "healthy"},
                                       {499, "healthy"},
                                       {500, "consider service"},
                                       {501, "consider service"}}) {
        fields.cycleCount = cycles;
        EXPECT_EQ(rowOf(fields, "Cycle Count")->note, secondary(note)) << cycles;
    }
}

TEST(BatteryDetailsCard, JudgesTheHealth) {
    PublishedFields fields;
    for (const auto& [health, note] : {std::pair<Int, const char*>{100, "excellent"},
                                       {95, "excellent"},
                                       {94, "good"},
                                       {85, "good"},
                                       {84, "fair"},
                                       {70, "fair"},
                                       {69, "consider replacement"},
                                       {0, "consider replacement"}}) {
        fields.batteryHealth = health;
        EXPECT_EQ(rowOf(fields, "Battery Health")->note, secondary(note)) << health;
    }
}

TEST(BatteryDetailsCard, JudgesTheTemperature) {
    PublishedFields fields;
    for (const auto& [temperature, value, note] : {std::tuple{0.1, "0.1°C", "normal"},
                                                   {34.9, "34.9°C", "normal"},
                                                   {35.0, "35.0°C", "normal"},
                                                   {35.01, "35.0°C", "warm"},
                                                   {35.1, "35.1°C", "warm"},
                                                   {60.25, "60.2°C", "warm"}}) {
        fields.batteryTemp = temperature;
        EXPECT_EQ(rowOf(fields, "Temperature"), row("Temperature", value, "thermometer.medium", note));
    }
}

TEST(BatteryDetailsCard, TellsWhichWayTheCurrentRuns) {
    PublishedFields fields;
    for (const auto& [current, value, note] : {std::tuple{-1500.0, "-1500 mA", "draining"},
                                               {-0.6, "-1 mA", "draining"},
                                               {0.6, "1 mA", "charging"},
                                               {2000.5, "2000 mA", "charging"},
                                               {2001.5, "2002 mA", "charging"}}) {
        fields.amperage = current;
        EXPECT_EQ(rowOf(fields, "Current"), row("Current", value, "arrow.down.to.line", note));
    }
}

TEST(BatteryDetailsCard, RoundsHalfCentivoltsToEven) {
    PublishedFields fields;
    fields.voltage = 12.125;
    EXPECT_EQ(rowOf(fields, "Voltage")->value, primary("12.12 V"));
    fields.voltage = 12.375;
    EXPECT_EQ(rowOf(fields, "Voltage")->value, primary("12.38 V"));
}

} // namespace
} // namespace quelby
