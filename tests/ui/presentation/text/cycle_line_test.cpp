#include "ui/presentation/text/cycle_line.h"

#include <cstdlib>
#include <ctime>

#include <gtest/gtest.h>

namespace quelby {
namespace {

class CycleLineTest : public testing::Test {
protected:
    CycleLineTest() {
        ::setenv("TZ", "UTC0", 1);
        ::tzset();
    }

    PublishedFields fields;
};

TEST_F(CycleLineTest, TellsBatteryPowerLoadAndBusiestProcess) {
    fields.batteryPercent = 82;
    fields.predictedTime = "~3h 12m remaining";
    fields.totalPower = 12.34;
    fields.cpuUsage = 7.5;
    fields.topProcesses = std::vector<ProcessInfo_Energy>{{"edi\ntor", 25.04, 5.0}, {"other", 1, 1}};
    EXPECT_EQ(cycleLine(fields, 1'700'000'000),
              "22:13:20  82 % discharging, ~3h 12m remaining  12.3 W  CPU 7.5 %, edi?tor 25.0 %\n");
}

TEST_F(CycleLineTest, LeavesOutWhatThereIsNot) {
    fields.hasBattery = false;
    fields.totalPower = 14;
    EXPECT_EQ(cycleLine(fields, 1'700'000'000.9), "22:13:20  no battery  14.0 W  CPU 0.0 %\n");
}

TEST_F(CycleLineTest, NamesTheStateOfTheBattery) {
    EXPECT_EQ(batteryState(fields), "discharging");
    fields.isPluggedIn = true;
    EXPECT_EQ(batteryState(fields), "plugged in");
    fields.isCharging = true;
    EXPECT_EQ(batteryState(fields), "charging");
    fields.fullyCharged = true;
    EXPECT_EQ(batteryState(fields), "full");
    fields.isPluggedIn = false;
    EXPECT_EQ(batteryState(fields), "discharging");
    fields.hasBattery = false;
    EXPECT_EQ(batteryState(fields), "no battery");
}

} // namespace
} // namespace quelby
