#include "platform/linux/battery/battery_pack.h"

#include <gtest/gtest.h>

namespace quelby {
namespace {

RawPack dischargingPack() {
    RawPack pack;
    pack.status = "discharging";
    pack.charge = {2'000'000, 4'000'000, 5'000'000};
    pack.currentNow = 500'000;
    pack.voltageNow = 12'000'000;
    return pack;
}

PackStatus statusOf(std::optional<std::string> word) {
    auto pack = dischargingPack();
    pack.status = std::move(word);
    return packFrom(pack).status;
}

TEST(BatteryPack, KnowsTheKernelsWordsForTheStatus) {
    EXPECT_EQ(statusOf("charging"), PackStatus::Charging);
    EXPECT_EQ(statusOf("discharging"), PackStatus::Discharging);
    EXPECT_EQ(statusOf("not charging"), PackStatus::NotCharging);
    EXPECT_EQ(statusOf("full"), PackStatus::Full);
    EXPECT_EQ(statusOf("unknown"), PackStatus::Unknown);
    EXPECT_EQ(statusOf("not"), PackStatus::Unknown);
    EXPECT_EQ(statusOf(std::nullopt), PackStatus::Unknown);
}

TEST(BatteryPack, CyclesThatWereNotCountedAreUnknown) {
    auto pack = dischargingPack();
    for (const std::int64_t count : {-1, 0, 65'535, 65'536}) {
        pack.cycleCount = count;
        EXPECT_EQ(packFrom(pack).cycles, std::nullopt) << count;
    }
    pack.cycleCount = 236;
    EXPECT_EQ(packFrom(pack).cycles, 236);
}

TEST(BatteryPack, AChargeThatEndsAtAHundredHasNoLimit) {
    auto pack = dischargingPack();
    for (const RawNumber none : {RawNumber(), RawNumber(-1), RawNumber(0), RawNumber(100), RawNumber(255)}) {
        pack.chargeControlEndThreshold = none;
        EXPECT_EQ(packFrom(pack).endThreshold, std::nullopt);
    }
    for (const std::int64_t limit : {1, 80, 99}) {
        pack.chargeControlEndThreshold = limit;
        EXPECT_EQ(packFrom(pack).endThreshold, limit);
    }
}

TEST(BatteryPack, TheTemperatureMayBeBelowZeroButNotBeyondBelief) {
    auto pack = dischargingPack();
    for (const std::int64_t tenths : {-2731, -601, 1501, 65'535}) {
        pack.temp = tenths;
        EXPECT_EQ(packFrom(pack).centidegrees, std::nullopt) << tenths;
    }
    for (const std::int64_t tenths : {-340, 0, 310}) {
        pack.temp = tenths;
        EXPECT_EQ(packFrom(pack).centidegrees, tenths * 10);
    }
}

TEST(BatteryPack, TheDriversTimeComesFirstIfItIsBelievable) {
    auto pack = dischargingPack();
    EXPECT_EQ(packFrom(pack).minutesLeft, 240);
    pack.timeToEmptyNow = 10'440;
    EXPECT_EQ(packFrom(pack).minutesLeft, 174);
    for (const std::int64_t seconds : {-60, 0, 59, 3'932'100}) {
        pack.timeToEmptyNow = seconds;
        EXPECT_EQ(packFrom(pack).minutesLeft, 240) << seconds;
    }
}

TEST(BatteryPack, OnlyTheTimeForTheStatusCounts) {
    auto pack = dischargingPack();
    pack.timeToFullNow = 3600;
    EXPECT_EQ(packFrom(pack).minutesLeft, 240);
    pack.status = "charging";
    EXPECT_EQ(packFrom(pack).minutesLeft, 60);
    pack.status = "not charging";
    EXPECT_EQ(packFrom(pack).minutesLeft, std::nullopt);
}

TEST(BatteryPack, AnswersWithAnySingleFigureOfItsState) {
    EXPECT_FALSE(packFrom({}).answers);
    RawPack bare;
    bare.cycleCount = 12;
    bare.voltageNow = 0;
    EXPECT_FALSE(packFrom(bare).answers);
    RawPack empty;
    empty.energy.now = 0;
    EXPECT_TRUE(packFrom(empty).answers);
    RawPack status;
    status.status = "unknown";
    EXPECT_TRUE(packFrom(status).answers);
}

} // namespace
} // namespace quelby
