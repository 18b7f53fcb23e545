#include "platform/linux/battery/power_supplies.h"

#include <gtest/gtest.h>

#include "platform/linux/battery/fake_sysfs.h"

namespace quelby {
namespace {

fake::Attributes battery(const std::string& capacity) {
    return {{"type", "Battery"}, {"status", "Discharging"}, {"capacity", capacity}};
}

class PowerSuppliesTest : public testing::Test {
protected:
    [[nodiscard]] PowerSupplies read() const { return readPowerSupplies(sysfs.classFolder()); }

    fake::Sysfs sysfs;
};

TEST_F(PowerSuppliesTest, AMissingFolderIsAnEmptyOne) {
    const auto supplies = readPowerSupplies(sysfs.root() / "missing");
    EXPECT_TRUE(supplies.packs.empty());
    EXPECT_TRUE(supplies.adapters.empty());
}

TEST_F(PowerSuppliesTest, PacksComeInNaturalOrderWhateverTheirNames) {
    sysfs.plug("BAT10", battery("10"));
    sysfs.plug("BAT2", battery("2"));
    sysfs.plug("CMB 1:é", battery("3"));
    sysfs.plug("bq24735@5-0009", battery("4"));
    const auto packs = read().packs;
    ASSERT_EQ(packs.size(), 4);
    EXPECT_EQ(packs[0].capacity, 2);
    EXPECT_EQ(packs[1].capacity, 10);
    EXPECT_EQ(packs[2].capacity, 3);
    EXPECT_EQ(packs[3].capacity, 4);
}

TEST_F(PowerSuppliesTest, BatteriesOfPeripheralsAreNotTheComputers) {
    auto mouse = battery("65");
    mouse["scope"] = "Device";
    sysfs.plug("hidpp_battery_0", mouse);
    auto system = battery("50");
    system["scope"] = "System";
    sysfs.plug("macsmc-battery", system);
    const auto packs = read().packs;
    ASSERT_EQ(packs.size(), 1);
    EXPECT_EQ(packs[0].capacity, 50);
}

TEST_F(PowerSuppliesTest, APackThatWasTakenOutDoesNotCount) {
    auto removed = battery("50");
    removed["present"] = "0";
    sysfs.plug("BAT0", removed);
    EXPECT_TRUE(read().packs.empty());
}

TEST_F(PowerSuppliesTest, WhatDoesNotSayWhetherItIsPresentIs) {
    for (const auto& present : {std::optional<std::string>(), std::optional<std::string>("yes")}) {
        auto pack = battery("50");
        pack["present"] = present;
        sysfs.plug("BAT0", pack);
        EXPECT_EQ(read().packs.size(), 1);
        sysfs.unplug("BAT0");
    }
}

TEST_F(PowerSuppliesTest, WhatIsNoSupplyIsPassedOver) {
    std::filesystem::create_symlink("nowhere", sysfs.classFolder() / "BAT0");
    sysfs.plug("BAT1", {});
    sysfs.plug("BAT2", {{"type", std::nullopt}, {"capacity", "50"}});
    sysfs.plug("ups", {{"type", "UPS"}, {"capacity", "50"}, {"online", "1"}});
    sysfs.write("BAT1", "../../../../class/power_supply/file", "text\n");
    ASSERT_TRUE(std::filesystem::is_regular_file(sysfs.classFolder() / "file"));
    EXPECT_TRUE(read().packs.empty());
    EXPECT_TRUE(read().adapters.empty());
}

TEST_F(PowerSuppliesTest, AdaptersAreOnlineAboveZero) {
    sysfs.plug("AC", {{"type", "Mains"}, {"online", "0"}});
    sysfs.plug("ucsi-source-psy-USBC000:001", {{"type", "USB"}, {"online", "2"}});
    sysfs.plug("wireless", {{"type", "Wireless"}, {"online", "1"}});
    const auto adapters = read().adapters;
    ASSERT_EQ(adapters.size(), 3);
    EXPECT_EQ(adapters[0].kind, AdapterKind::Mains);
    EXPECT_FALSE(adapters[0].isOnline);
    EXPECT_EQ(adapters[1].kind, AdapterKind::Other);
    EXPECT_TRUE(adapters[1].isOnline);
    EXPECT_EQ(adapters[2].kind, AdapterKind::Other);
    EXPECT_TRUE(adapters[2].isOnline);
}

TEST_F(PowerSuppliesTest, AnAdapterThatDoesNotAnswerTellsNothing) {
    sysfs.plug("AC", {{"type", "Mains"}, {"online", std::nullopt}});
    sysfs.plug("AC1", {{"type", "Mains"}, {"online", "maybe"}});
    EXPECT_TRUE(read().adapters.empty());
}

TEST_F(PowerSuppliesTest, EveryAttributeLandsInItsMember) {
    sysfs.plug("BAT0", {{"type", "Battery"},
                        {"status", "Charging"},
                        {"capacity", "1"},
                        {"charge_full", "2"},
                        {"charge_full_design", "3"},
                        {"energy_now", "4"},
                        {"energy_full", "5"},
                        {"energy_full_design", "6"},
                        {"voltage_now", "7"},
                        {"voltage_avg", "8"},
                        {"voltage_min_design", "9"},
                        {"voltage_max_design", "10"},
                        {"current_avg", "11"},
                        {"power_avg", "12"},
                        {"temp", "13"},
                        {"cycle_count", "14"},
                        {"time_to_full_now", "15"}});
    sysfs.makeUnreadable("BAT0", "capacity");
    const auto packs = read().packs;
    ASSERT_EQ(packs.size(), 1);
    const auto& pack = packs[0];
    EXPECT_EQ(pack.status, "charging");
    EXPECT_EQ(pack.capacity, std::nullopt);
    EXPECT_EQ(pack.charge.now, std::nullopt);
    EXPECT_EQ(pack.charge.full, 2);
    EXPECT_EQ(pack.charge.fullDesign, 3);
    EXPECT_EQ(pack.energy.now, 4);
    EXPECT_EQ(pack.energy.full, 5);
    EXPECT_EQ(pack.energy.fullDesign, 6);
    EXPECT_EQ(pack.voltageNow, 7);
    EXPECT_EQ(pack.voltageAvg, 8);
    EXPECT_EQ(pack.voltageMinDesign, 9);
    EXPECT_EQ(pack.voltageMaxDesign, 10);
    EXPECT_EQ(pack.currentAvg, 11);
    EXPECT_EQ(pack.powerAvg, 12);
    EXPECT_EQ(pack.temp, 13);
    EXPECT_EQ(pack.cycleCount, 14);
    EXPECT_EQ(pack.timeToFullNow, 15);
}

TEST_F(PowerSuppliesTest, WhatIsNotNeededIsNotAskedFor) {
    sysfs.plug("BAT0", {{"type", "Battery"},
                        {"status", "Full"},
                        {"charge_now", "1000"},
                        {"charge_full", "2000"},
                        {"energy_full", "5"},
                        {"current_now", "0"},
                        {"current_avg", "11"},
                        {"power_avg", "12"},
                        {"time_to_empty_now", "15"},
                        {"time_to_full_now", "15"}});
    const auto pack = read().packs.at(0);
    EXPECT_EQ(pack.charge.now, 1000);
    EXPECT_EQ(pack.currentNow, 0);
    EXPECT_EQ(pack.energy.full, std::nullopt);
    EXPECT_EQ(pack.currentAvg, std::nullopt);
    EXPECT_EQ(pack.powerAvg, std::nullopt);
    EXPECT_EQ(pack.timeToEmptyNow, std::nullopt);
    EXPECT_EQ(pack.timeToFullNow, std::nullopt);
}

TEST_F(PowerSuppliesTest, TheEndOfAChargeIsAskedForOnlyOfAPackThatMayBeHeld) {
    sysfs.plug("BAT0", {{"type", "Battery"}, {"charge_control_end_threshold", "80"}});
    const auto endWhile = [this](const std::string& status) {
        sysfs.write("BAT0", "status", status);
        return read().packs.at(0).chargeControlEndThreshold;
    };
    EXPECT_EQ(read().packs.at(0).chargeControlEndThreshold, 80) << "without a status";
    EXPECT_EQ(endWhile("Not charging\n"), 80);
    EXPECT_EQ(endWhile("Unknown\n"), 80);
    for (const auto* moving : {"Charging\n", "Discharging\n", "Full\n"}) {
        EXPECT_EQ(endWhile(moving), std::nullopt) << moving;
    }
}

} // namespace
} // namespace quelby
