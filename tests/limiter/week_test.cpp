// A week of the helper's work.

#include <iostream>

#include <malloc.h>

#include "base/number_text.h"
#include "limiter/support/served_laptop.h"
#include "limiter/support/simulated_laptop.h"

namespace quelby::limiter {
namespace {

constexpr double day = 86400;

// QUELBY_WEEK_STEP=1 asks for every single round; usually one in twenty-four.
double weekStep() {
    const char* const asked = std::getenv("QUELBY_WEEK_STEP");
    return asked == nullptr ? 24 : decimalNumber(asked).value_or(24);
}

class Week : public ServedLaptop {};

// A week of a person who works unplugged in the morning and plugs in at noon, with a calibration a week.
TEST_F(Week, IsServedAndNeedsNoMoreMemoryInTheEnd) {
    SimulatedLaptop laptop(hardware);
    write({.chargeLimitEnabled = true,
           .chargeLimitPercent = 80,
           .calibrationEnabled = true,
           .calibrationIntervalDays = 7,
           .lastCalibrationTimestamp = 1'700'000'000 - 5 * day});
    const double begin = time.now();
    double highest = 0;
    double calibrating = 0;
    double held = 0;
    std::size_t memoryOnTheFirstDay = 0;
    time.sleep = [&](double pause, bool) {
        const double seconds = pause * weekStep();
        time.pass(seconds);
        hardware.writes.clear();
        const double hour = (time.now() - begin) / 3600;
        laptop.plug(static_cast<int>(hour) % 24 >= 4);
        laptop.pass(seconds);
        const auto now = status();
        EXPECT_FALSE(now.chargingInhibited && now.calibrationActive);
        calibrating += now.calibrationActive ? seconds : 0;
        held += now.chargingInhibited ? seconds : 0;
        highest = std::max(highest, now.calibrationActive ? 0 : laptop.percent());
        if (memoryOnTheFirstDay == 0 && time.now() - begin > day) {
            memoryOnTheFirstDay = ::mallinfo2().uordblks;
        }
        return time.now() - begin < 7 * day ? Wake::time : Wake::stop;
    };
    EXPECT_TRUE(run());
    EXPECT_GT(time.waits, 75'000 / weekStep());
    EXPECT_GT(held, 5 * 15 * 3600);
    EXPECT_GT(calibrating, 3600);
    EXPECT_LT(calibrating, 4 * 3600); // with the charging before it
    EXPECT_LE(highest, 100);
    EXPECT_EQ(config().lastCalibrationTimestamp, limiter->lastCalibration());
    EXPECT_GT(limiter->lastCalibration(), begin + 2 * day);
    EXPECT_LT(limiter->lastCalibration(), begin + 3 * day);
    EXPECT_EQ(hardware.text(endThreshold), "80");
    const auto memoryInTheEnd = ::mallinfo2().uordblks;
    EXPECT_LE(memoryInTheEnd, memoryOnTheFirstDay + 4096);
    std::cout << time.waits << " rounds; " << memoryOnTheFirstDay << " bytes in use after the first day, "
              << memoryInTheEnd << " in the end\n";
}

} // namespace
} // namespace quelby::limiter
