#include "platform/linux/battery/battery_table.h"

#include <gmock/gmock.h>

#include "platform/linux/battery/published_battery.h"

namespace quelby {
namespace {

using testing::Contains;
using testing::Key;
using testing::Not;
using testing::Pair;
using testing::UnorderedElementsAre;

constexpr Adapter mainsOn = {AdapterKind::Mains, true};
constexpr Adapter mainsOff = {AdapterKind::Mains, false};

BatteryPack packAt(PackStatus status, int percent) {
    BatteryPack pack;
    pack.status = status;
    pack.content = {ContentUnit::MilliampereHours, 5000, 4000, 40.0 * percent, percent};
    pack.volts = 12;
    pack.referenceVolts = 11.1;
    return pack;
}

bool isFull(const std::vector<BatteryPack>& packs, const std::vector<Adapter>& adapters) {
    return PublishedBattery(propertyTable(packs, adapters)).fullyCharged;
}

TEST(BatteryTable, HoldsEveryKnownFigureInItsUnit) {
    auto pack = packAt(PackStatus::Discharging, 50);
    pack.flow = {-1337.4, -16.05};
    pack.minutesLeft = 89.9;
    pack.cycles = 12;
    pack.centidegrees = -340;
    const PropertyTable expected = {
        {"DesignCapacity", std::int64_t(5000)},
        {"AppleRawMaxCapacity", std::int64_t(4000)},
        {"AppleRawCurrentCapacity", std::int64_t(2000)},
        {"CycleCount", std::int64_t(12)},
        {"IsCharging", false},
        {"ExternalConnected", false},
        {"FullyCharged", false},
        {"InstantAmperage", std::int64_t(-1337)},
        {"Voltage", std::int64_t(12'000)},
        {"Temperature", std::int64_t(-340)},
        {"TimeRemaining", std::int64_t(89)},
    };
    EXPECT_EQ(propertyTable({pack}, {mainsOff}), expected);
}

TEST(BatteryTable, HoldsNoKeyForWhatIsUnknown) {
    EXPECT_THAT(propertyTable({BatteryPack{}}, {mainsOn}),
                UnorderedElementsAre(Pair("IsCharging", PropertyValue(false)),
                                     Pair("ExternalConnected", PropertyValue(true)),
                                     Pair("FullyCharged", PropertyValue(false))));
}

TEST(BatteryTable, WithoutACapacityThePercentageIsCurrentCapacity) {
    BatteryPack pack;
    pack.content.percent = 57;
    const auto table = propertyTable({pack}, {});
    EXPECT_EQ(PublishedBattery(table).batteryPercent, 57);
    EXPECT_EQ(PublishedBattery(table).rawCurrentCapacity, 0) << "not 57 mAh";
    EXPECT_THAT(table, Not(Contains(Key("MaxCapacity"))));
    EXPECT_THAT(table, Not(Contains(Key("AppleRawMaxCapacity"))));
}

TEST(BatteryTable, AKnownChargeStandsBesideThePercentageOfAnUnknownCapacity) {
    BatteryPack pack;
    pack.content.remaining = 756;
    pack.content.percent = 12;
    const PublishedBattery battery(propertyTable({pack}, {}));
    EXPECT_EQ(battery.rawCurrentCapacity, 756);
    EXPECT_EQ(battery.batteryPercent, 12);
    EXPECT_EQ(battery.rawMaxCapacity, 0);
}

TEST(BatteryTable, ACurrentTooGreatForReadersKeepsItsDirection) {
    auto pack = packAt(PackStatus::Charging, 50);
    pack.flow = {38'000, 280};
    EXPECT_EQ(PublishedBattery(propertyTable({pack}, {})).amperage, 30'000);
    pack.flow = {-38'000, -280};
    EXPECT_EQ(PublishedBattery(propertyTable({pack}, {})).amperage, -38'000);
}

TEST(BatteryTable, OneChargingPackIsEnough) {
    const auto charging = packAt(PackStatus::Charging, 50);
    const auto idle = packAt(PackStatus::NotCharging, 80);
    EXPECT_TRUE(PublishedBattery(propertyTable({idle, charging}, {})).isCharging);
    EXPECT_FALSE(PublishedBattery(propertyTable({idle, idle}, {})).isCharging);
}

TEST(BatteryTable, FullIsWhatTheFirmwareCallsFull) {
    EXPECT_TRUE(isFull({packAt(PackStatus::Full, 97)}, {mainsOff}));
    EXPECT_FALSE(isFull({packAt(PackStatus::Charging, 100)}, {mainsOn}));
    EXPECT_FALSE(isFull({packAt(PackStatus::Full, 100), packAt(PackStatus::Charging, 50)}, {mainsOn}));
}

TEST(BatteryTable, WhereNothingLimitsTheChargeItsEndOnExternalPowerIsFull) {
    for (const auto status : {PackStatus::NotCharging, PackStatus::Unknown}) {
        EXPECT_TRUE(isFull({packAt(status, 100)}, {mainsOn}));
        EXPECT_TRUE(isFull({packAt(status, 99)}, {mainsOn})) << "firmware stops a little early";
        EXPECT_FALSE(isFull({packAt(status, 98)}, {mainsOn}));
        EXPECT_FALSE(isFull({packAt(status, 90)}, {mainsOn}));
        EXPECT_FALSE(isFull({packAt(status, 100)}, {mainsOff}));
    }
}

TEST(BatteryTable, ABatteryHeldAtALimitIsNotFullHoweverHighTheLimit) {
    for (const int percent : {80, 90, 95, 99}) {
        auto held = packAt(PackStatus::NotCharging, percent);
        held.endThreshold = percent;
        EXPECT_FALSE(isFull({held}, {mainsOn})) << percent;
    }
}

TEST(BatteryTable, ABatteryThatWasFullWhenTheLimitCameIsStillFull) {
    auto pack = packAt(PackStatus::NotCharging, 100);
    pack.endThreshold = 80;
    EXPECT_TRUE(isFull({pack}, {mainsOn}));
}

} // namespace
} // namespace quelby
