#include "monitor/component_power.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/assignments.h"
#include "support/fake_platform.h"

namespace quelby {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;

class ComponentPowerTest : public testing::Test {
protected:
    void calculate() { calculatePower(fields, draw); }

    PublishedFields fields;
    fake::Draw draw;
};

TEST_F(ComponentPowerTest, SplitsTheMeasuredPowerByWeight) {
    fields.realWatts = 12.0;
    fields.cpuUsage = 0;
    calculate();
    EXPECT_NEAR(fields.cpuPower, 2.483, 0.0005);
    EXPECT_NEAR(fields.gpuPower, 0.828, 0.0005);
    EXPECT_NEAR(fields.memPower, 2.483, 0.0005);
    EXPECT_NEAR(fields.diskPower, 1.241, 0.0005);
    EXPECT_NEAR(fields.netPower, 0.828, 0.0005);
    EXPECT_EQ(fields.totalPower, 12.0);
    EXPECT_EQ(fields.chargePower, 0.0);
    EXPECT_EQ(fields.acTotal, 0.0);
    EXPECT_EQ(fields.efficiency, 76);
    EXPECT_EQ(draw.draws, 0);
}

TEST_F(ComponentPowerTest, MeasuredSharesAddUpToTheTotalLessTheRestOfTheSystem) {
    fields.realWatts = 29.0;
    fields.cpuUsage = 50.0;
    calculate();
    const double sum = 20.5 + 7 + 3 + 1.5 + 1 + 5;
    EXPECT_NEAR(fields.cpuPower + fields.gpuPower + fields.memPower + fields.diskPower + fields.netPower,
                29.0 * (1 - 5 / sum), 1e-12);
}

TEST_F(ComponentPowerTest, EstimatesOnBatteryWithoutAMeasurement) {
    fields.realWatts = 0.5;
    fields.chargePower = 9;
    fields.acTotal = 9;
    calculate();
    EXPECT_EQ(fields.totalPower, 3 + 1 + 3 + 1 + 1 + 5);
    EXPECT_EQ(fields.chargePower, 0.0);
    EXPECT_EQ(fields.acTotal, 0.0);
}

TEST_F(ComponentPowerTest, MeasuresJustAboveTheFloor) {
    fields.realWatts = 0.500001;
    calculate();
    EXPECT_EQ(fields.totalPower, 0.500001);
}

TEST_F(ComponentPowerTest, DrawsTheStoragePowerAnewEachCycle) {
    fields.isPluggedIn = true;
    draw.next = 0;
    calculate();
    EXPECT_EQ(fields.diskPower, 1.0);
    draw.next = 1;
    calculate();
    EXPECT_EQ(fields.diskPower, 2.0);
    EXPECT_EQ(draw.draws, 2);
}

TEST_F(ComponentPowerTest, EstimatesOnTheAdapter) {
    fields.isPluggedIn = true;
    fields.batteryPercent = 50;
    fields.cpuUsage = 100;
    draw.next = 1;
    calculate();
    EXPECT_EQ(fields.cpuPower, 38.0);
    EXPECT_EQ(fields.gpuPower, 13.0);
    EXPECT_EQ(fields.memPower, 3.0);
    EXPECT_EQ(fields.netPower, 1.0);
    EXPECT_EQ(fields.totalPower, 62.0);
    EXPECT_EQ(fields.chargePower, 22.0);
    EXPECT_EQ(fields.acTotal, 84.0);
    EXPECT_EQ(fields.efficiency, 0);
}

TEST_F(ComponentPowerTest, EstimatesTheChargePowerFromTheLevel) {
    fields.isPluggedIn = true;
    const std::pair<Int, double> expected[] = {{0, 35},  {1, 34},  {50, 22}, {76, 16}, {77, 15},
                                               {79, 15}, {80, 18}, {94, 4},  {95, 6},  {99, 2},
                                               {100, 1}, {101, 1}, {120, 1}};
    for (const auto& [percent, watts] : expected) {
        fields.batteryPercent = percent;
        calculate();
        EXPECT_EQ(fields.chargePower, watts) << percent << " %";
        EXPECT_EQ(fields.acTotal, fields.totalPower + watts);
    }
}

TEST_F(ComponentPowerTest, PrefersTheMeasuredChargePower) {
    fields.isPluggedIn = true;
    fields.batteryPercent = 50;
    fields.realWatts = 31.5;
    calculate();
    EXPECT_EQ(fields.chargePower, 31.5);
    EXPECT_EQ(fields.acTotal, fields.totalPower + 31.5);
    fields.realWatts = 0.5;
    calculate();
    EXPECT_EQ(fields.chargePower, 22.0);
}

TEST_F(ComponentPowerTest, ChargesNothingIntoAFullBattery) {
    fields.isPluggedIn = true;
    fields.fullyCharged = true;
    fields.realWatts = 8.0;
    calculate();
    EXPECT_EQ(fields.chargePower, 0.0);
    EXPECT_EQ(fields.acTotal, fields.totalPower);
}

TEST_F(ComponentPowerTest, ScoresLowPowerHigh) {
    const std::pair<double, Int> expected[] = {{0.6, 99}, {10.0, 80}, {10.4, 80}, {10.5, 79}, {25.0, 50},
                                               {49.4, 2}, {49.5, 1},  {50.0, 0},  {90.0, 0}};
    for (const auto& [watts, score] : expected) {
        fields.realWatts = watts;
        calculate();
        EXPECT_EQ(fields.efficiency, score) << watts << " W";
    }
}

TEST_F(ComponentPowerTest, KeepsTheLastSixtyTotalsOldestFirst) {
    for (int cycle = 1; cycle <= 61; ++cycle) {
        fields.realWatts = cycle;
        calculate();
    }
    ASSERT_EQ(fields.powerHistory.get().size(), 60U);
    EXPECT_EQ(fields.powerHistory.get().front(), 2.0);
    EXPECT_EQ(fields.powerHistory.get().back(), 61.0);
}

TEST_F(ComponentPowerTest, RemovesOneOldEntryACycle) {
    fields.powerHistory = std::vector<double>(70, 1.0);
    calculate();
    EXPECT_EQ(fields.powerHistory.get().size(), 70U);
}

TEST_F(ComponentPowerTest, OfAMeasurementIsAssignedFromTheTotalOn) {
    fields.realWatts = 12.0;
    EXPECT_THAT(assignedDuring(fields, [this] { calculate(); }),
                ElementsAre("totalPower", "cpuPower", "gpuPower", "memPower", "diskPower", "netPower",
                            "chargePower", "acTotal", "efficiency", "powerHistory"));
}

TEST_F(ComponentPowerTest, OfAnEstimateIsAssignedWithTheTotalAfterTheComponents) {
    fields.isPluggedIn = true;
    EXPECT_THAT(assignedDuring(fields, [this] { calculate(); }),
                ElementsAre("cpuPower", "gpuPower", "memPower", "diskPower", "netPower", "totalPower",
                            "chargePower", "acTotal", "efficiency", "powerHistory"));
}

TEST_F(ComponentPowerTest, ObserversNeverSeeATrendOfMoreThanSixtyOneEntries) {
    std::vector<std::size_t> sizes;
    fields.powerHistory = std::vector<double>(60, 1.0);
    const auto subscription =
        fields.powerHistory.observe([&](const auto& totals) { sizes.push_back(totals.size()); });
    calculate();
    EXPECT_THAT(sizes, ElementsAre(61U, 60U));
}

} // namespace
} // namespace quelby
