#include "platform/linux/battery/pack_content.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

RawPack chargePack(RawNumber now, RawNumber full, RawNumber design, RawNumber capacity = std::nullopt) {
    RawPack pack;
    pack.charge = {now, full, design};
    pack.capacity = capacity;
    return pack;
}

RawPack energyPack(RawNumber now, RawNumber full, RawNumber design, RawNumber capacity = std::nullopt) {
    RawPack pack;
    pack.energy = {now, full, design};
    pack.capacity = capacity;
    return pack;
}

TEST(PackContent, IsInThousandthsOfItsFamily) {
    const auto charge = contentOf(chargePack(2'500'000, 5'000'000, 6'000'000));
    EXPECT_EQ(charge.unit, ContentUnit::MilliampereHours);
    EXPECT_EQ(charge.remaining, 2500);
    EXPECT_EQ(charge.full, 5000);
    EXPECT_EQ(charge.design, 6000);
    const auto energy = contentOf(energyPack(30'000'000, 60'000'000, 80'000'000));
    EXPECT_EQ(energy.unit, ContentUnit::MilliwattHours);
    EXPECT_EQ(energy.full, 60'000);
}

TEST(PackContent, FamiliesAreNotMixed) {
    auto pack = chargePack(2'924'000, 3'898'000, std::nullopt);
    pack.energy = {31'090'000, 42'450'000, 41'040'000};
    const auto content = contentOf(pack);
    EXPECT_EQ(content.unit, ContentUnit::MilliampereHours);
    EXPECT_EQ(content.design, std::nullopt);
    EXPECT_EQ(content.percent, 75);
}

TEST(PackContent, ADesignAloneDoesNotMakeAChargeFamily) {
    auto pack = chargePack(std::nullopt, std::nullopt, 4'000'000, 50);
    pack.energy = {20'000'000, 40'000'000, 44'000'000};
    EXPECT_EQ(contentOf(pack).unit, ContentUnit::MilliwattHours);
    pack.energy.now.reset();
    EXPECT_EQ(contentOf(pack).unit, ContentUnit::MilliampereHours);
}

TEST(PackContent, AMeasuredFullChargeNeedsNoRemainderBesideAPercentage) {
    auto pack = chargePack(std::nullopt, 5'186'000, 6'249'000, 80);
    pack.energy = {47'000'000, 59'120'400, 71'238'600};
    EXPECT_EQ(contentOf(pack).unit, ContentUnit::MilliampereHours);
    EXPECT_EQ(contentOf(pack).percent, 80);
    pack.capacity.reset();
    EXPECT_EQ(contentOf(pack).unit, ContentUnit::MilliwattHours);
}

TEST(PackContent, ThePercentageIsTruncatedFromTheExactAmounts) {
    EXPECT_EQ(contentOf(energyPack(1'500'000, 60'000'000, std::nullopt)).percent, 2);
    EXPECT_EQ(contentOf(chargePack(3'670'000, 3'956'000, std::nullopt, 93)).percent, 92);
    EXPECT_EQ(contentOf(chargePack(29'000, 100'000, std::nullopt)).percent, 29);
    EXPECT_EQ(contentOf(chargePack(0, 100'000, std::nullopt)).percent, 0);
    EXPECT_EQ(contentOf(chargePack(1'503'000, 1'500'000, std::nullopt)).percent, 100);
}

TEST(PackContent, AMissingRemainderComesFromThePercentage) {
    for (const RawNumber now : {RawNumber(), RawNumber(-1)}) {
        const auto content = contentOf(chargePack(now, 3'555'000, std::nullopt, 97));
        ASSERT_TRUE(content.remaining);
        EXPECT_DOUBLE_EQ(*content.remaining, 3448.35);
        EXPECT_EQ(content.percent, 97);
    }
    EXPECT_EQ(contentOf(chargePack(std::nullopt, 3'555'000, std::nullopt)).remaining, std::nullopt);
}

TEST(PackContent, APercentageComesBackFromTheRemainderThatItMade) {
    for (std::int64_t full = 3'000'000; full < 3'100'000; full += 997) {
        for (int percent = 0; percent <= 100; ++percent) {
            EXPECT_EQ(contentOf(chargePack(std::nullopt, full, std::nullopt, percent)).percent, percent)
                << full;
        }
    }
}

TEST(PackContent, ARemainderBeyondBeliefCountsAsMissing) {
    const auto told = contentOf(energyPack(90'000'000, 60'000'000, std::nullopt, 40));
    EXPECT_DOUBLE_EQ(told.remaining.value_or(0), 24'000);
    EXPECT_EQ(told.percent, 40);
    const auto untold = contentOf(energyPack(4'294'967'295, 60'000'000, std::nullopt));
    EXPECT_EQ(untold.remaining, 60'000);
    EXPECT_EQ(untold.percent, 100);
    EXPECT_EQ(contentOf(energyPack(72'000'000, 60'000'000, std::nullopt)).remaining, 72'000);
}

TEST(PackContent, TheDesignStandsInForAMissingFullAmount) {
    for (const RawNumber full : {RawNumber(), RawNumber(0), RawNumber(-1), RawNumber(4'294'967'295)}) {
        const auto content = contentOf(chargePack(2'000'000, full, 4'000'000));
        EXPECT_EQ(content.full, 4000);
        EXPECT_EQ(content.percent, 50);
    }
}

TEST(PackContent, APercentageThatContradictsTheDesignIsBelieved) {
    const auto content = contentOf(chargePack(2'000'000, 0, 4'000'000, 62));
    EXPECT_EQ(content.full, std::nullopt);
    EXPECT_EQ(content.remaining, 2000);
    EXPECT_EQ(content.percent, 62);
    EXPECT_EQ(contentOf(chargePack(2'000'000, 0, 4'000'000, 51)).full, 4000) << "only rounded otherwise";
    EXPECT_EQ(contentOf(chargePack(2'000'000, 0, 4'000'000, 0)).percent, 50)
        << "0 only for want of a full amount";
}

TEST(PackContent, APercentageAloneIsKeptWithinItsRange) {
    RawPack pack;
    pack.capacity = 57;
    EXPECT_EQ(contentOf(pack).percent, 57);
    EXPECT_EQ(contentOf(pack).full, std::nullopt);
    pack.capacity = 255;
    EXPECT_EQ(contentOf(pack).percent, 100);
    pack.capacity = -1;
    EXPECT_EQ(contentOf(pack).percent, std::nullopt);
}

TEST(PackContent, ConvertsOverTheGivenVoltage) {
    const auto energy = contentOf(energyPack(30'000'000, 60'000'000, 80'000'000));
    const auto charge = inMilliampereHours(energy, 12.0);
    EXPECT_EQ(charge.unit, ContentUnit::MilliampereHours);
    EXPECT_DOUBLE_EQ(charge.full.value_or(0), 5000);
    EXPECT_EQ(charge.percent, 50);
    EXPECT_DOUBLE_EQ(inMilliwattHours(charge, 12.0).design.value_or(0), 80'000);
}

TEST(PackContent, WithoutAVoltageOnlyThePercentageIsLeft) {
    const auto energy = contentOf(energyPack(30'000'000, 60'000'000, 80'000'000));
    const auto charge = inMilliampereHours(energy, std::nullopt);
    EXPECT_EQ(charge.design, std::nullopt);
    EXPECT_EQ(charge.full, std::nullopt);
    EXPECT_EQ(charge.remaining, std::nullopt);
    EXPECT_EQ(charge.percent, 50);
    EXPECT_EQ(inMilliwattHours(energy, std::nullopt).full, 60'000);
}

} // namespace
} // namespace quelby
