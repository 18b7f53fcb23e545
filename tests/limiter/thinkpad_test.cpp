// ThinkPads, from the first limit to its end.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "limiter/support/test_bench.h"

namespace quelby::limiter {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ThinkPad : public testing::Test, protected TestBench {};

TEST_F(ThinkPad, TakesTheOrderThatNeverHasTheStartAboveTheEnd) {
    addLaptop(hardware);
    addThinkPad(hardware);
    limitTo(40);
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_control_start_threshold=35",
                                      "BAT0/charge_control_end_threshold=40"));
    limitTo(80);
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_control_end_threshold=80",
                                      "BAT0/charge_control_start_threshold=75"));
    limitTo(60);
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_control_start_threshold=55",
                                      "BAT0/charge_control_end_threshold=60"));
    EXPECT_EQ(last.details.mechanism, "thresholds");
    EXPECT_EQ(battery().inForcePercent, 60);
    EXPECT_EQ(battery().inForceStartPercent, 55);
    EXPECT_EQ(battery().foundPercent, 100);
    EXPECT_EQ(battery().foundStartPercent, 0);
    EXPECT_EQ(last.details.lastError, std::nullopt);
    switchOff();
    EXPECT_THAT(writes(), ElementsAre("BAT0/charge_control_start_threshold=0",
                                      "BAT0/charge_control_end_threshold=100"));
}

TEST_F(ThinkPad, HoldsEachOfTwoBatteries) {
    addLaptop(hardware);
    addBattery(hardware, "BAT1");
    addThinkPad(hardware, "BAT0");
    addThinkPad(hardware, "BAT1");
    limitTo(70);
    EXPECT_EQ(text(endThreshold), "70");
    EXPECT_EQ(text(supplies + "BAT1/charge_control_end_threshold"), "70");
    EXPECT_EQ(last.details.batteries.size(), 2U);
    switchOff();
    EXPECT_EQ(text(endThreshold), "100");
    EXPECT_EQ(text(supplies + "BAT1/charge_control_end_threshold"), "100");
}

TEST_F(ThinkPad, OfTheESeriesMayTellAStartAboveTheEndWhichCountsAsUnknown) {
    addLaptop(hardware);
    addThinkPad(hardware);
    hardware[startThreshold].give = [](const std::string&) { return "100"; };
    limitTo(80);
    EXPECT_EQ(battery().inForcePercent, 80);
    EXPECT_EQ(battery().inForceStartPercent, std::nullopt);
    EXPECT_EQ(battery().foundStartPercent, std::nullopt);
    EXPECT_EQ(last.details.lastError, std::nullopt);
}

TEST_F(ThinkPad, ThatGivesTheOldValueOnceMoreIsReadTwice) {
    addLaptop(hardware);
    addThinkPad(hardware);
    const auto end = endThreshold;
    auto told = std::make_shared<std::string>("100");
    hardware[end].give = [told, give = hardware[end].give](const std::string& text) {
        return std::exchange(*told, give(text)); // the truth comes with the next reading
    };
    limitTo(80);
    EXPECT_EQ(battery().inForcePercent, 80);
    EXPECT_EQ(last.details.lastError, std::nullopt);
    writes();
    round();
    EXPECT_THAT(writes(), IsEmpty());
}

TEST_F(ThinkPad, WhoseControllerRefusesIsTriedAgainLater) {
    addLaptop(hardware);
    addThinkPad(hardware);
    const auto end = endThreshold;
    const auto take = hardware[end].take;
    hardware[end].take = [](const std::string&) { return std::errc::io_error; };
    limitTo(80);
    EXPECT_THAT(last.details.lastError.value_or(""),
                HasSubstr("BAT0/charge_control_end_threshold did not take 80: "));
    EXPECT_EQ(battery().inForcePercent, 100);
    EXPECT_THAT(last.details.explanation, HasSubstr("The limit could not be set: BAT0/"));
    writes();
    round();
    EXPECT_THAT(writes(), IsEmpty()); // not in each round
    hardware[end].take = take;
    round(60);
    EXPECT_EQ(battery().inForcePercent, 80);
    EXPECT_EQ(last.details.lastError, std::nullopt);
}

} // namespace
} // namespace quelby::limiter
