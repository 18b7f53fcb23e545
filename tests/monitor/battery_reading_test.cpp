#include "monitor/battery_reading.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

// A laptop on battery at 50 %, to which a test adds what it is about.
PropertyTable laptop() {
    return {{"DesignCapacity", 5000}, {"AppleRawMaxCapacity", 4500}, {"AppleRawCurrentCapacity", 2250},
            {"CycleCount", 321},      {"IsCharging", false},         {"ExternalConnected", false},
            {"FullyCharged", false},  {"InstantAmperage", -1350},    {"Voltage", 11100},
            {"Temperature", 3050},    {"TimeRemaining", 125}};
}

class BatteryReadingTest : public testing::Test {
protected:
    void publish(const BatteryReading& reading) { publishBatteryReading(reading, fields); }

    void publishLaptopWith(std::string_view key, PropertyValue value) {
        auto table = laptop();
        table.insert_or_assign(std::string(key), value);
        publish(table);
    }

    void publishLaptopWithout(std::string_view key) {
        auto table = laptop();
        table.erase(table.find(key));
        publish(table);
    }

    PublishedFields fields;
};

TEST_F(BatteryReadingTest, FillsEveryField) {
    publish(laptop());
    EXPECT_TRUE(fields.hasBattery);
    EXPECT_EQ(fields.designCapacity, 5000);
    EXPECT_EQ(fields.rawMaxCapacity, 4500);
    EXPECT_EQ(fields.rawCurrentCapacity, 2250);
    EXPECT_EQ(fields.cycleCount, 321);
    EXPECT_EQ(fields.batteryPercent, 50);
    EXPECT_EQ(fields.batteryHealth, 90);
    EXPECT_EQ(fields.amperage, -1350.0);
    EXPECT_EQ(fields.voltage, 11.1);
    EXPECT_NEAR(fields.realWatts, 14.985, 1e-9);
    EXPECT_EQ(fields.batteryTemp, 30.5);
    EXPECT_EQ(fields.timeRemaining.get(), "2:05");
}

TEST_F(BatteryReadingTest, WithoutBatteryChangesNothingElse) {
    publish(laptop());
    publish(NoBattery{});
    EXPECT_FALSE(fields.hasBattery);
    EXPECT_EQ(fields.batteryPercent, 50);
    EXPECT_EQ(fields.timeRemaining.get(), "2:05");
}

TEST_F(BatteryReadingTest, OfAnUnreadableBatteryKeepsTheOldValues) {
    publish(laptop());
    publish(NoBattery{});
    publish(UnreadableBattery{});
    EXPECT_TRUE(fields.hasBattery);
    EXPECT_EQ(fields.batteryPercent, 50);
    EXPECT_EQ(fields.cycleCount, 321);
}

TEST_F(BatteryReadingTest, OfAnEmptyTableFallsBack) {
    publish(laptop());
    publish(PropertyTable{});
    EXPECT_TRUE(fields.hasBattery);
    EXPECT_EQ(fields.designCapacity, 0);
    EXPECT_EQ(fields.rawMaxCapacity, 0);
    EXPECT_EQ(fields.rawCurrentCapacity, 0);
    EXPECT_EQ(fields.cycleCount, 0);
    EXPECT_EQ(fields.batteryPercent, 0);
    EXPECT_EQ(fields.batteryHealth, 100);
    EXPECT_EQ(fields.amperage, 0.0);
    EXPECT_EQ(fields.voltage, 0.0);
    EXPECT_EQ(fields.realWatts, 0.0);
    EXPECT_EQ(fields.batteryTemp, 30.5); // the one that stays
    EXPECT_EQ(fields.timeRemaining.get(), "--:--");
}

TEST_F(BatteryReadingTest, CountsAWrongTypeAsAbsent) {
    publishLaptopWith("CycleCount", true);
    EXPECT_EQ(fields.cycleCount, 0);
    publishLaptopWith("IsCharging", 1);
    EXPECT_FALSE(fields.isCharging);
    publishLaptopWith("TimeRemaining", true);
    EXPECT_EQ(fields.timeRemaining.get(), "--:--");
    publishLaptopWith("AppleRawMaxCapacity", false);
    EXPECT_EQ(fields.rawMaxCapacity, 0);
}

TEST_F(BatteryReadingTest, TakesTheStateAsItIsTold) {
    auto table = laptop();
    table["IsCharging"] = table["ExternalConnected"] = table["FullyCharged"] = true;
    publish(table);
    EXPECT_TRUE(fields.isCharging);
    EXPECT_TRUE(fields.isPluggedIn);
    EXPECT_TRUE(fields.fullyCharged);
    publish(PropertyTable{});
    EXPECT_FALSE(fields.isCharging);
    EXPECT_FALSE(fields.isPluggedIn);
    EXPECT_FALSE(fields.fullyCharged);
}

TEST_F(BatteryReadingTest, TruncatesThePercentage) {
    publish(PropertyTable{{"AppleRawMaxCapacity", 5000}, {"AppleRawCurrentCapacity", 2500}});
    EXPECT_EQ(fields.batteryPercent, 50);
    publish(PropertyTable{{"AppleRawMaxCapacity", 5000}, {"AppleRawCurrentCapacity", 4999}});
    EXPECT_EQ(fields.batteryPercent, 99);
    publish(PropertyTable{{"AppleRawMaxCapacity", 5000}, {"AppleRawCurrentCapacity", 5100}});
    EXPECT_EQ(fields.batteryPercent, 100);
    publish(
        PropertyTable{{"AppleRawMaxCapacity", 1}, {"AppleRawCurrentCapacity", 0}, {"CurrentCapacity", 50}});
    EXPECT_EQ(fields.batteryPercent, 0);
    publish(PropertyTable{{"AppleRawMaxCapacity", 5000}, {"AppleRawCurrentCapacity", -51}});
    EXPECT_EQ(fields.batteryPercent, -1);
}

TEST_F(BatteryReadingTest, FallsBackToTheCapacitiesThatMayBePercentages) {
    publish(PropertyTable{{"MaxCapacity", 100}, {"CurrentCapacity", 64}});
    EXPECT_EQ(fields.rawMaxCapacity, 100);
    EXPECT_EQ(fields.rawCurrentCapacity, 64);
    EXPECT_EQ(fields.batteryPercent, 64);
    EXPECT_EQ(fields.batteryHealth, 100);
}

TEST_F(BatteryReadingTest, WithoutAFullCapacityTakesTheCurrentOneAsPercentage) {
    publish(PropertyTable{{"AppleRawCurrentCapacity", 2000}, {"CurrentCapacity", 37}});
    EXPECT_EQ(fields.batteryPercent, 37);
    publish(PropertyTable{{"AppleRawMaxCapacity", 0}, {"CurrentCapacity", 37}});
    EXPECT_EQ(fields.batteryPercent, 37);
    publish(PropertyTable{{"AppleRawMaxCapacity", -5}, {"AppleRawCurrentCapacity", 10}});
    EXPECT_EQ(fields.batteryPercent, 0);
}

TEST_F(BatteryReadingTest, ComparesTheFullCapacityWithTheDesign) {
    publish(PropertyTable{{"DesignCapacity", 5000}, {"AppleRawMaxCapacity", 4500}});
    EXPECT_EQ(fields.batteryHealth, 90);
    publish(PropertyTable{{"DesignCapacity", 5000}, {"AppleRawMaxCapacity", 5200}});
    EXPECT_EQ(fields.batteryHealth, 100);
    publish(PropertyTable{{"DesignCapacity", 5000}, {"AppleRawMaxCapacity", 101}});
    EXPECT_EQ(fields.batteryHealth, 2);
}

TEST_F(BatteryReadingTest, TakesAFullCapacityOfAHundredOrLessForAPercentage) {
    publish(PropertyTable{{"DesignCapacity", 1}, {"AppleRawMaxCapacity", 101}, {"MaxCapacity", 93}});
    EXPECT_EQ(fields.batteryHealth, 100);
    publish(PropertyTable{{"DesignCapacity", 5000}, {"AppleRawMaxCapacity", 100}, {"MaxCapacity", 93}});
    EXPECT_EQ(fields.batteryHealth, 93);
    publish(PropertyTable{{"DesignCapacity", 5000}, {"AppleRawMaxCapacity", 100}});
    EXPECT_EQ(fields.batteryHealth, 100);
}

TEST_F(BatteryReadingTest, KeepsTheHealthWhereOnlyAFullCapacityInMilliampereHoursIsKnown) {
    fields.batteryHealth = 87;
    publish(PropertyTable{{"DesignCapacity", 0}, {"MaxCapacity", 4800}});
    EXPECT_EQ(fields.batteryHealth, 87);
    publish(PropertyTable{{"MaxCapacity", 101}});
    EXPECT_EQ(fields.batteryHealth, 87);
}

TEST_F(BatteryReadingTest, UndoesTheUnsignedDeliveryOfANegativeCurrent) {
    publish(PropertyTable{{"InstantAmperage", 64536}, {"Voltage", 12000}});
    EXPECT_EQ(fields.amperage, -1000.0);
    EXPECT_EQ(fields.voltage, 12.0);
    EXPECT_EQ(fields.realWatts, 12.0);
    publish(PropertyTable{{"InstantAmperage", 30000}});
    EXPECT_EQ(fields.amperage, 30000.0);
    publish(PropertyTable{{"InstantAmperage", 30001}});
    EXPECT_EQ(fields.amperage, -35535.0);
}

TEST_F(BatteryReadingTest, ReadsATemperatureBelowZero) {
    publish(PropertyTable{{"Temperature", -3400}});
    EXPECT_EQ(fields.batteryTemp, -34.0);
}

TEST_F(BatteryReadingTest, KeepsTheTemperatureThatIsNotToldAgain) {
    publish(laptop());
    publishLaptopWithout("Temperature");
    EXPECT_EQ(fields.batteryTemp, 30.5);
}

TEST_F(BatteryReadingTest, ShowsTheTimeOnlyWhereItIsKnown) {
    const std::pair<Int, const char*> expected[] = {{-5, "--:--"},   {0, "--:--"},    {1, "0:01"},
                                                    {59, "0:59"},    {60, "1:00"},    {125, "2:05"},
                                                    {5999, "99:59"}, {6000, "--:--"}, {65535, "--:--"}};
    for (const auto& [minutes, text] : expected) {
        publishLaptopWith("TimeRemaining", minutes);
        EXPECT_EQ(fields.timeRemaining.get(), text) << minutes;
    }
}

TEST_F(BatteryReadingTest, SurvivesAbsurdValues) {
    constexpr Int lowest = std::numeric_limits<Int>::min();
    constexpr Int highest = std::numeric_limits<Int>::max();
    for (const Int absurd : {lowest, highest}) {
        PropertyTable table = laptop();
        for (auto& [key, value] : table) {
            if (std::holds_alternative<Int>(value)) {
                value = absurd;
            }
        }
        publish(table);
        EXPECT_LE(fields.batteryPercent, 100);
        EXPECT_EQ(fields.timeRemaining.get(), "--:--");
    }
}

} // namespace
} // namespace quelby
