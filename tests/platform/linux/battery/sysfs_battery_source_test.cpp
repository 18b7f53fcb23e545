#include "platform/linux/battery/sysfs_battery_source.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include "platform/linux/battery/fake_sysfs.h"
#include "platform/linux/battery/published_battery.h"
#include "platform/posix/file_descriptor.h"
#include "support/descriptor_limit.h"

namespace quelby {
namespace {

const fake::Attributes mouse = {{"type", "Battery"}, {"scope", "Device"}, {"capacity", "65"}};

fake::Attributes battery(int remainingWattHours) {
    return {{"type", "Battery"},
            {"status", "Discharging"},
            {"present", "1"},
            {"energy_now", std::to_string(remainingWattHours) + "000000"},
            {"energy_full", "50000000"},
            {"power_now", "10000000"},
            {"voltage_now", "10000000"}};
}

const fake::Attributes silentBattery = {
    {"type", "Battery"}, {"status", std::nullopt}, {"energy_now", std::nullopt}};

class SysfsBatterySourceTest : public testing::Test {
protected:
    BatteryReading read() { return source.readBattery(); }

    PublishedBattery published() { return PublishedBattery(read()); }

    bool tells(const char* key) { return std::get<PropertyTable>(read()).contains(key); }

    fake::Sysfs sysfs;
    SysfsBatterySource source = SysfsBatterySource(sysfs.root());
};

TEST_F(SysfsBatterySourceTest, WithoutTheFolderThereIsNoBattery) {
    std::filesystem::remove(sysfs.classFolder());
    EXPECT_EQ(read(), BatteryReading(NoBattery{}));
}

TEST_F(SysfsBatterySourceTest, PeripheralsAndAdaptersMakeNoBattery) {
    sysfs.plug("hidpp_battery_0", mouse);
    sysfs.plug("AC", {{"type", "Mains"}, {"online", "1"}});
    sysfs.plug("ups", {{"type", "UPS"}, {"capacity", "50"}, {"status", "Discharging"}});
    EXPECT_EQ(read(), BatteryReading(NoBattery{}));
}

TEST_F(SysfsBatterySourceTest, PacksComeAndGo) {
    sysfs.plug("BAT0", battery(25));
    EXPECT_EQ(published().batteryPercent, 50);
    sysfs.plug("BAT1", battery(50));
    EXPECT_EQ(published().batteryPercent, 75);
    EXPECT_EQ(published().amperage, -2000);
    sysfs.unplug("BAT0");
    EXPECT_EQ(published().batteryPercent, 100);
    sysfs.write("BAT1", "present", "0\n");
    EXPECT_EQ(read(), BatteryReading(NoBattery{}));
    sysfs.write("BAT1", "present", "1\n");
    EXPECT_EQ(published().batteryPercent, 100);
}

TEST_F(SysfsBatterySourceTest, AMouseThatComesChangesNothing) {
    sysfs.plug("BAT0", battery(25));
    const auto before = read();
    sysfs.plug("hidpp_battery_0", mouse);
    EXPECT_EQ(read(), before);
}

TEST_F(SysfsBatterySourceTest, AnAttributeThatFailsCostsOnlyItself) {
    sysfs.plug("BAT0", battery(25));
    sysfs.makeUnreadable("BAT0", "power_now");
    EXPECT_FALSE(tells("InstantAmperage"));
    EXPECT_EQ(published().batteryPercent, 50);
    EXPECT_EQ(published().voltage, 10);
    sysfs.write("BAT0", "power_now", "10000000\n");
    EXPECT_EQ(published().amperage, -1000);
}

TEST_F(SysfsBatterySourceTest, AnyAttributeMayFailWithoutChangingTheChargeAndComesBack) {
    const fake::Attributes laptop = {{"type", "Battery"},
                                     {"status", "Discharging"},
                                     {"present", "1"},
                                     {"capacity", "50"},
                                     {"energy_now", "25000000"},
                                     {"energy_full", "50000000"},
                                     {"energy_full_design", "57000000"},
                                     {"power_now", "10000000"},
                                     {"voltage_now", "11400000"},
                                     {"voltage_min_design", "11400000"},
                                     {"cycle_count", "212"},
                                     {"temp", "305"},
                                     {"time_to_empty_now", "9000"}};
    for (const auto unreadable : {fake::Unreadable::FailsToRead, fake::Unreadable::IsMissing,
                                  fake::Unreadable::IsEmpty, fake::Unreadable::IsFolder}) {
        const fake::Sysfs computer(unreadable);
        computer.plug("BAT0", laptop);
        computer.plug("AC", {{"type", "Mains"}, {"online", "0"}});
        SysfsBatterySource pack(computer.root());
        const auto whole = pack.readBattery();
        for (const auto& [attribute, text] : laptop) {
            if (attribute == "type") {
                continue; // which the kernel knows by heart
            }
            computer.makeUnreadable("BAT0", attribute);
            const PublishedBattery told(pack.readBattery());
            EXPECT_TRUE(told.hasBattery) << attribute;
            EXPECT_EQ(told.batteryPercent, 50) << attribute;
            EXPECT_FALSE(told.isPluggedIn) << attribute;
            computer.write("BAT0", attribute, *text + '\n');
            EXPECT_EQ(pack.readBattery(), whole) << attribute;
        }
    }
}

TEST_F(SysfsBatterySourceTest, ABatteryIsNotGoneWhereDescriptorsRunOut) {
    sysfs.plug("BAT0", battery(25));
    ASSERT_EQ(published().batteryPercent, 50);
    const DescriptorLimit limit(64);
    for (std::size_t left = 0; left < 5; ++left) {
        std::vector<FileDescriptor> others;
        do {
            others.emplace_back(::open("/dev/null", O_RDONLY | O_CLOEXEC));
        } while (others.back().isOpen());
        others.resize(others.size() - 1 - left);
        const auto reading = read();
        others.clear();
        EXPECT_TRUE(reading == BatteryReading(UnreadableBattery{}) || reading == read()) << left;
    }
}

TEST_F(SysfsBatterySourceTest, ASilentPackBesideOneThatAnswersIsLeftOut) {
    sysfs.plug("BAT0", silentBattery);
    sysfs.plug("BAT1", battery(25));
    EXPECT_EQ(published().batteryPercent, 50);
    EXPECT_EQ(published().rawMaxCapacity, 5000);
}

TEST_F(SysfsBatterySourceTest, ASilentPackDoesNotKeepTheBatteryFromBeingFull) {
    auto full = battery(50);
    full["status"] = "Full";
    sysfs.plug("BAT0", full);
    sysfs.plug("BAT1", silentBattery);
    EXPECT_TRUE(published().fullyCharged);
}

TEST_F(SysfsBatterySourceTest, ABatteryThatFallsSilentIsUnreadableUntilItAnswers) {
    sysfs.plug("BAT0", battery(25));
    ASSERT_EQ(published().batteryPercent, 50);
    sysfs.unplug("BAT0");
    sysfs.plug("BAT0", silentBattery);
    EXPECT_EQ(read(), BatteryReading(UnreadableBattery{}));
    EXPECT_EQ(read(), BatteryReading(UnreadableBattery{}));
    sysfs.unplug("BAT0");
    sysfs.plug("BAT0", battery(30));
    EXPECT_EQ(published().batteryPercent, 60);
}

TEST_F(SysfsBatterySourceTest, ABatteryThatNeverAnsweredLeavesTheWordToTheAdapters) {
    sysfs.plug("BAT0", silentBattery);
    sysfs.plug("AC", {{"type", "Mains"}, {"online", "1"}});
    EXPECT_TRUE(published().isPluggedIn);
    EXPECT_FALSE(tells("AppleRawCurrentCapacity") || tells("CurrentCapacity"));
    sysfs.write("AC", "online", "0\n");
    EXPECT_FALSE(published().isPluggedIn);
}

TEST_F(SysfsBatterySourceTest, ASilentBatteryAfterARemovedOneHasNoOldValues) {
    sysfs.plug("BAT0", battery(25));
    ASSERT_EQ(published().batteryPercent, 50);
    sysfs.unplug("BAT0");
    EXPECT_EQ(read(), BatteryReading(NoBattery{}));
    sysfs.plug("BAT1", silentBattery);
    EXPECT_FALSE(tells("AppleRawCurrentCapacity") || tells("CurrentCapacity"));
}

TEST_F(SysfsBatterySourceTest, APercentageIsNotLostInTheConversion) {
    auto pack = battery(40);
    pack["energy_full"] = "80000000";
    pack["voltage_min_design"] = "15480000";
    sysfs.plug("BAT0", pack);
    EXPECT_EQ(published().batteryPercent, 50);
}

} // namespace
} // namespace quelby
