#include "platform/linux/battery/combined_pack.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

BatteryPack energyPack(double fullMilliwattHours, double remainingMilliwattHours, double volts) {
    BatteryPack pack;
    pack.status = PackStatus::NotCharging;
    pack.content = {ContentUnit::MilliwattHours, fullMilliwattHours * 1.25, fullMilliwattHours,
                    remainingMilliwattHours, truncatedPercent(remainingMilliwattHours, fullMilliwattHours)};
    pack.volts = volts;
    pack.referenceVolts = volts;
    pack.answers = true;
    return pack;
}

BatteryPack flowing(BatteryPack pack, PackStatus status, double watts) {
    pack.status = status;
    pack.flow = {watts * 1000.0 / pack.volts.value_or(1), watts};
    return pack;
}

BatteryPack percentPack(int percent) {
    BatteryPack pack;
    pack.content.percent = percent;
    pack.answers = true;
    return pack;
}

TEST(CombinedPack, ASingleOneStaysAsItIs) {
    auto pack = flowing(energyPack(40'000, 20'000, 11.1), PackStatus::Discharging, -10);
    pack.minutesLeft = 77;
    const auto whole = combined({pack});
    EXPECT_EQ(whole.content.remaining, 20'000);
    EXPECT_EQ(whole.flow.watts, -10);
    EXPECT_EQ(whole.minutesLeft, 77);
}

TEST(CombinedPack, EnergiesAddUpAcrossVoltagesAndFamilies) {
    BatteryPack charge;
    charge.content = {ContentUnit::MilliampereHours, 3000, 2000, 1000, 50};
    charge.volts = 15;
    charge.referenceVolts = 15;
    const auto whole = combined({energyPack(40'000, 10'000, 11.1), charge, energyPack(30'000, 30'000, 7.4)});
    EXPECT_EQ(whole.content.unit, ContentUnit::MilliwattHours);
    EXPECT_EQ(whole.content.full, 100'000);
    EXPECT_EQ(whole.content.remaining, 55'000);
    EXPECT_EQ(whole.content.design, 132'500);
    EXPECT_EQ(whole.content.percent, 55);
}

TEST(CombinedPack, TheReferenceVoltageDoesNotDependOnThePackInUse) {
    const auto first = energyPack(40'000, 20'000, 15.2);
    const auto second = energyPack(40'000, 20'000, 11.1);
    for (const auto& packs : {std::vector{flowing(first, PackStatus::Discharging, -5), second},
                              std::vector{first, flowing(second, PackStatus::Discharging, -5)}}) {
        EXPECT_EQ(combined(packs).referenceVolts, 15.2);
    }
}

TEST(CombinedPack, ThePresentVoltageIsThatOfThePackInUse) {
    const auto idle = energyPack(40'000, 20'000, 15.2);
    const auto used = flowing(energyPack(40'000, 20'000, 11.1), PackStatus::Discharging, -11.1);
    EXPECT_EQ(combined({idle, used}).volts, 11.1);
    EXPECT_EQ(combined({idle, idle}).volts, 15.2);
    auto silent = used;
    silent.volts.reset();
    EXPECT_EQ(combined({silent, idle}).volts, 15.2);
    EXPECT_DOUBLE_EQ(combined({idle, used}).flow.milliamperes.value_or(0), -1000);
}

TEST(CombinedPack, FlowsAddUpWithTheirDirections) {
    const auto charging = flowing(energyPack(40'000, 20'000, 10), PackStatus::Charging, 20);
    const auto discharging = flowing(energyPack(40'000, 20'000, 10), PackStatus::Discharging, -5);
    const auto whole = combined({charging, discharging});
    EXPECT_EQ(whole.flow.watts, 15);
    EXPECT_EQ(whole.flow.milliamperes, 1500);
    EXPECT_EQ(whole.status, PackStatus::Charging);
    EXPECT_EQ(whole.minutesLeft, 160);
}

TEST(CombinedPack, TheTimeFollowsTheNetFlow) {
    const auto charging = flowing(energyPack(40'000, 20'000, 10), PackStatus::Charging, 10);
    const auto discharging = flowing(energyPack(40'000, 20'000, 10), PackStatus::Discharging, -30);
    EXPECT_EQ(combined({charging, discharging}).minutesLeft, 120);
    const auto idle = flowing(energyPack(40'000, 20'000, 10), PackStatus::NotCharging, 3);
    EXPECT_EQ(combined({idle, idle}).minutesLeft, std::nullopt) << "nobody says which way";
}

TEST(CombinedPack, APackThatDoesNotSayWhatItHoldsIsNotEmpty) {
    auto partial = energyPack(60'000, 0, 11.1);
    partial.content.remaining.reset();
    partial.content.percent.reset();
    const auto whole = combined({energyPack(40'000, 20'000, 11.1), partial});
    EXPECT_EQ(whole.content.percent, 50);
    EXPECT_EQ(whole.content.full, 40'000);
}

TEST(CombinedPack, APackThatSaysAnAmountAndItsPercentageHasItsWeight) {
    auto worn = energyPack(60'000, 15'000, 11.1);
    worn.content.full.reset();
    const auto whole = combined({energyPack(40'000, 20'000, 11.1), worn});
    EXPECT_EQ(worn.content.percent, 25);
    EXPECT_EQ(whole.content.full, 100'000);
    EXPECT_EQ(whole.content.percent, 35);
}

TEST(CombinedPack, WithoutAnyEnergyThePercentageIsTheMean) {
    EXPECT_EQ(combined({percentPack(40), percentPack(70)}).content.percent, 55);
    EXPECT_EQ(combined({percentPack(40), BatteryPack{}}).content.percent, 40);
    EXPECT_EQ(combined({BatteryPack{}, BatteryPack{}}).content.percent, std::nullopt);
}

TEST(CombinedPack, TheMostWornPackCountsTheCycles) {
    auto first = percentPack(1);
    auto second = percentPack(2);
    EXPECT_EQ(combined({first, second}).cycles, std::nullopt);
    second.cycles = 78;
    EXPECT_EQ(combined({first, second}).cycles, 78);
    first.cycles = 236;
    EXPECT_EQ(combined({first, second}).cycles, 236);
}

TEST(CombinedPack, TheFirstKnownTemperatureCounts) {
    auto second = percentPack(2);
    second.centidegrees = 3100;
    auto third = percentPack(3);
    third.centidegrees = 4000;
    EXPECT_EQ(combined({percentPack(1), second, third}).centidegrees, 3100);
}

} // namespace
} // namespace quelby
