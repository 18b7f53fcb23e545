#include "platform/macos/iokit_battery_source.h"

#include <gmock/gmock.h>

#include "macos/doubles/registry.h"
#include "platform/replay/recording_reader.h"

namespace quelby {
namespace {

using fake::registry;
using testing::ElementsAre;
using Reading = fake::Registry::Reading;

fake::Value text(const char* value) {
    return std::string(value);
}

fake::Value integer(std::int64_t value) {
    return value;
}

// Each test ends with everything released.
class IokitBattery : public testing::Test {
protected:
    IokitBattery() { fake::forgetEverything(); }

    void TearDown() override { EXPECT_EQ(fake::unreleased(), 0U); }

    BatteryReading reading() { return source_.readBattery(); }

private:
    IokitBatterySource source_;
};

TEST_F(IokitBattery, IsNotThereWithoutTheService) {
    EXPECT_EQ(reading(), BatteryReading(NoBattery{}));
    EXPECT_THAT(registry().calls, ElementsAre("IOServiceMatching", "IOServiceGetMatchingService"));
}

TEST_F(IokitBattery, IsNotThereWhereTheSystemCannotEvenBeAsked) {
    registry().matchesCanBeMade = false;
    EXPECT_EQ(reading(), BatteryReading(NoBattery{}));
    EXPECT_THAT(registry().calls, ElementsAre("IOServiceMatching"));
}

TEST_F(IokitBattery, GivesEveryIntegerAndEveryBoolean) {
    registry().battery = {{text("AppleRawMaxCapacity"), integer(4382)},
                          {text("InstantAmperage"), integer(-1350)},
                          {text("Largest"), integer(std::numeric_limits<std::int64_t>::max())},
                          {text("IsCharging"), false},
                          {text("ExternalConnected"), true}};
    EXPECT_EQ(reading(), BatteryReading(PropertyTable{{"AppleRawMaxCapacity", std::int64_t{4382}},
                                                      {"InstantAmperage", std::int64_t{-1350}},
                                                      {"Largest", std::numeric_limits<std::int64_t>::max()},
                                                      {"IsCharging", false},
                                                      {"ExternalConnected", true}}));
}

// Texts, data, lists and tables stay where they are; the rest is what plays on any system.
TEST_F(IokitBattery, IsRecordedAsItPlaysElsewhere) {
    auto recording = RecordingReader::open(QUELBY_SOURCE_DIR "/tests/data/recording-of-a-mac.jsonl");
    ASSERT_TRUE(recording) << recording.error().sentence;
    const auto recorded = std::get<PropertyTable>(recording->next()->battery);
    auto& battery = registry().battery.emplace();
    for (const auto& [key, value] : recorded) {
        const auto* const flag = std::get_if<bool>(&value);
        battery.emplace_back(text(key.c_str()),
                             flag != nullptr ? fake::Value(*flag) : integer(std::get<std::int64_t>(value)));
    }
    battery.emplace_back(text("DeviceName"), text("bq40z651"));
    battery.emplace_back(text("ManufacturerData"), fake::Data{});
    EXPECT_EQ(reading(), BatteryReading(recorded));
}

TEST_F(IokitBattery, LeavesOutValuesOfOtherTypes) {
    registry().battery = {{text("Temperature"), 3050.0},
                          {text("CycleCount"), text("12")},
                          {text("BatteryData"), fake::Data{}},
                          {text("Voltage"), integer(12000)}};
    EXPECT_EQ(reading(), BatteryReading(PropertyTable{{"Voltage", std::int64_t{12000}}}));
}

TEST_F(IokitBattery, KeepsIntegersAndBooleansApart) {
    registry().battery = {{text("IsCharging"), integer(1)}, {text("CycleCount"), true}};
    EXPECT_EQ(reading(),
              BatteryReading(PropertyTable{{"IsCharging", std::int64_t{1}}, {"CycleCount", true}}));
}

TEST_F(IokitBattery, MayHaveAnEmptyTable) {
    registry().battery = fake::Properties{};
    EXPECT_EQ(reading(), BatteryReading(PropertyTable{}));
}

TEST_F(IokitBattery, TakesKeysOfEveryLengthAndLanguage) {
    const std::string longKey(300, 'k');
    registry().battery = {{longKey, integer(1)}, {text("Größe ⚡"), integer(2)}, {text(""), integer(3)}};
    EXPECT_EQ(reading(),
              BatteryReading(PropertyTable{
                  {longKey, std::int64_t{1}}, {"Größe ⚡", std::int64_t{2}}, {"", std::int64_t{3}}}));
}

TEST_F(IokitBattery, IsUnreadableWithAKeyThatIsNoText) {
    registry().battery = {{text("Voltage"), integer(12000)}, {integer(7), integer(8)}};
    EXPECT_EQ(reading(), BatteryReading(UnreadableBattery{}));
}

TEST_F(IokitBattery, IsUnreadableWithoutATable) {
    registry().battery = {{text("Voltage"), integer(12000)}};
    for (const auto outcome : {Reading::failsWithATable, Reading::givesNothing, Reading::givesData}) {
        registry().reading = outcome;
        EXPECT_EQ(reading(), BatteryReading(UnreadableBattery{}));
    }
}

TEST_F(IokitBattery, IsAskedInThisOrderEachTime) {
    registry().battery = {{text("Voltage"), integer(12000)}};
    const std::vector<std::string> once{"IOServiceMatching", "IOServiceGetMatchingService",
                                        "IORegistryEntryCreateCFProperties", "IOObjectRelease"};
    static_cast<void>(reading());
    EXPECT_EQ(registry().calls, once);
    registry().calls.clear();
    registry().reading = Reading::failsWithATable;
    static_cast<void>(reading());
    EXPECT_EQ(registry().calls, once);
}

TEST_F(IokitBattery, ComesAndGoes) {
    EXPECT_EQ(reading(), BatteryReading(NoBattery{}));
    registry().battery = {{text("Voltage"), integer(12000)}};
    EXPECT_EQ(reading(), BatteryReading(PropertyTable{{"Voltage", std::int64_t{12000}}}));
    registry().battery.reset();
    EXPECT_EQ(reading(), BatteryReading(NoBattery{}));
}

} // namespace
} // namespace quelby
