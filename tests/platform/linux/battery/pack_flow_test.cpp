#include "platform/linux/battery/pack_flow.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

using enum PackStatus;

RawPack chargePack(RawNumber currentNow, RawNumber voltageNow = 12'000'000) {
    RawPack pack;
    pack.charge = {2'000'000, 4'000'000, 5'000'000};
    pack.currentNow = currentNow;
    pack.voltageNow = voltageNow;
    return pack;
}

RawPack energyPack(RawNumber powerNow, RawNumber voltageNow = 12'000'000) {
    RawPack pack;
    pack.energy = {20'000'000, 40'000'000, 50'000'000};
    pack.powerNow = powerNow;
    pack.voltageNow = voltageNow;
    return pack;
}

void expectFlow(const PackFlow& flow, double milliamperes, double watts) {
    ASSERT_TRUE(flow.milliamperes && flow.watts);
    EXPECT_DOUBLE_EQ(*flow.milliamperes, milliamperes);
    EXPECT_DOUBLE_EQ(*flow.watts, watts);
}

void expectNoFlow(const PackFlow& flow) {
    EXPECT_EQ(flow.milliamperes, std::nullopt);
    EXPECT_EQ(flow.watts, std::nullopt);
}

TEST(PackFlow, TheStatusDecidesTheDirection) {
    for (const std::int64_t sign : {-1, 1}) {
        expectFlow(flowOf(chargePack(sign * 500'000), Discharging), -500, -6);
        expectFlow(flowOf(chargePack(sign * 500'000), Charging), 500, 6);
        expectFlow(flowOf(energyPack(sign * 6'000'000), Discharging), -500, -6);
        expectFlow(flowOf(energyPack(sign * 6'000'000), Charging), 500, 6);
    }
}

TEST(PackFlow, WithoutADirectionInTheStatusTheDriversSignStays) {
    for (const auto status : {Unknown, NotCharging, Full}) {
        expectFlow(flowOf(chargePack(-500'000), status), -500, -6);
        expectFlow(flowOf(energyPack(6'000'000), status), 500, 6);
    }
}

TEST(PackFlow, PowerIsDividedByThePresentVoltageNotTheNominalOne) {
    auto pack = energyPack(15'453'000, 11'558'000);
    pack.voltageMinDesign = 11'100'000;
    const auto flow = flowOf(pack, Discharging);
    EXPECT_NEAR(flow.milliamperes.value_or(0), -1337.0, 0.01);
    EXPECT_EQ(flow.watts, -15.453);
}

TEST(PackFlow, EachFamilyPrefersItsOwnRate) {
    auto charge = chargePack(500'000);
    charge.powerNow = 7'000'000;
    expectFlow(flowOf(charge, Charging), 500, 6);
    auto energy = energyPack(7'200'000);
    energy.currentNow = 500'000;
    expectFlow(flowOf(energy, Charging), 600, 7.2);
    charge.currentNow.reset();
    expectFlow(flowOf(charge, Charging), 7000.0 / 12.0, 7);
}

TEST(PackFlow, CurrentNowOfAPackThatMeasuresEnergyIsAPower) {
    auto pack = energyPack(std::nullopt);
    pack.currentNow = 6'000'000;
    expectFlow(flowOf(pack, Discharging), -500, -6);
    pack.charge.full = 4'000'000;
    expectFlow(flowOf(pack, Discharging), -6000, -72);
}

TEST(PackFlow, CurrentNowOfAPackWithoutAmountsIsACurrent) {
    RawPack pack;
    pack.capacity = 50;
    pack.currentNow = 500'000;
    pack.voltageNow = 12'000'000;
    expectFlow(flowOf(pack, Discharging), -500, -6);
}

TEST(PackFlow, AveragesAreTheLastResort) {
    auto pack = energyPack(std::nullopt);
    pack.currentAvg = 500'000;
    expectFlow(flowOf(pack, Discharging), -500, -6);
    pack.powerAvg = -9'000'000;
    expectFlow(flowOf(pack, Charging), 750, 9);
    pack.powerNow = 6'000'000;
    expectFlow(flowOf(pack, Charging), 500, 6);
}

TEST(PackFlow, WithoutAVoltageOneOfTheTwoIsUnknown) {
    EXPECT_EQ(flowOf(chargePack(500'000, std::nullopt), Discharging).milliamperes, -500);
    EXPECT_EQ(flowOf(chargePack(500'000, std::nullopt), Discharging).watts, std::nullopt);
    EXPECT_EQ(flowOf(energyPack(6'000'000, std::nullopt), Discharging).watts, -6);
    EXPECT_EQ(flowOf(energyPack(6'000'000, std::nullopt), Discharging).milliamperes, std::nullopt);
}

TEST(PackFlow, SentinelsAreNothing) {
    expectNoFlow(flowOf(energyPack(4'294'967'295), Discharging));
    expectNoFlow(flowOf(energyPack(300'000'001), Charging));
    expectNoFlow(flowOf(chargePack(65'535'000), Discharging));
    expectNoFlow(flowOf(chargePack(60'000'001, std::nullopt), Discharging));
    expectNoFlow(flowOf(chargePack(-9'223'372'036'854'775'807 - 1), Discharging));
    for (const std::int64_t voltage : {-1, 0, 65'535, 65'535'000}) {
        expectNoFlow(flowOf(chargePack(32'767'000, voltage), Discharging));
        EXPECT_EQ(flowOf(chargePack(500'000, voltage), Discharging).milliamperes, -500);
    }
}

TEST(PackFlow, APackAtRestFlowsNowhere) {
    expectFlow(flowOf(energyPack(0), Discharging), 0, 0);
    expectNoFlow(flowOf(energyPack(std::nullopt), Discharging));
}

TEST(PackVolts, ASentinelIsNothing) {
    RawPack pack;
    EXPECT_EQ(voltsOf(pack), std::nullopt);
    for (const std::int64_t voltage : {INT64_MIN, std::int64_t(-1), std::int64_t(0), std::int64_t(65'535),
                                       std::int64_t(65'535'000), std::int64_t(4'294'967'295), INT64_MAX}) {
        pack.voltageNow = voltage;
        EXPECT_EQ(voltsOf(pack), std::nullopt) << voltage;
    }
    pack.voltageAvg = 11'400'000;
    EXPECT_EQ(voltsOf(pack), 11.4);
    pack.voltageNow = 2'180'000;
    EXPECT_EQ(voltsOf(pack), 2.18);
}

TEST(PackVolts, TheReferenceIsTheDesignOrElseThePresentVoltage) {
    RawPack pack;
    pack.voltageNow = 12'419'000;
    EXPECT_EQ(referenceVoltsOf(pack), 12.419);
    pack.voltageMaxDesign = 13'000'000;
    EXPECT_EQ(referenceVoltsOf(pack), 13.0);
    pack.voltageMinDesign = 11'100'000;
    EXPECT_EQ(referenceVoltsOf(pack), 11.1);
    for (const std::int64_t sentinel : {0, 65'535, 65'535'000}) {
        pack.voltageMinDesign = sentinel;
        EXPECT_EQ(referenceVoltsOf(pack), 13.0);
    }
}

PackContent content(ContentUnit unit, std::optional<double> full, std::optional<double> remaining) {
    return {unit, std::nullopt, full, remaining, std::nullopt};
}

TEST(MinutesLeft, StayWithinOneFamily) {
    const PackFlow flow = {-1000, -20};
    EXPECT_EQ(minutesLeft(content(ContentUnit::MilliampereHours, 4000, 2000), flow), 120);
    EXPECT_EQ(minutesLeft(content(ContentUnit::MilliwattHours, 40'000, 20'000), flow), 60);
    EXPECT_EQ(minutesLeft(content(ContentUnit::MilliwattHours, 40'000, 20'000), {-1000, std::nullopt}),
              std::nullopt);
}

TEST(MinutesLeft, LeadToFullWhileChargeFlowsIn) {
    EXPECT_EQ(minutesLeft(content(ContentUnit::MilliampereHours, 4000, 3000), {500, 6}), 120);
    EXPECT_EQ(minutesLeft(content(ContentUnit::MilliampereHours, std::nullopt, 3000), {500, 6}),
              std::nullopt);
}

TEST(MinutesLeft, AboveFullThereIsNothingToWaitFor) {
    EXPECT_EQ(minutesLeft(content(ContentUnit::MilliampereHours, 4000, 4001), {500, 6}), std::nullopt);
}

TEST(MinutesLeft, AreNothingForAPackAtRest) {
    EXPECT_EQ(minutesLeft(content(ContentUnit::MilliampereHours, 4000, 2000), {0, 0}), std::nullopt);
    EXPECT_EQ(minutesLeft(content(ContentUnit::MilliampereHours, 4000, 2000), {-1, -0.01}), std::nullopt);
}

TEST(MinutesLeft, AreBelievedFromAMinuteToBelowAHundredHours) {
    EXPECT_EQ(believableMinutes(0.99), std::nullopt);
    EXPECT_EQ(believableMinutes(1), 1);
    EXPECT_EQ(believableMinutes(5999.9), 5999.9);
    EXPECT_EQ(believableMinutes(6000), std::nullopt);
}

} // namespace
} // namespace quelby
