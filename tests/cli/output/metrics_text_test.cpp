#include "cli/output/metrics_text.h"

#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/version.h"

namespace quelby::cli {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

TEST(MetricsTextTest, TellsFiguresInBaseUnits) {
    PublishedFields fields;
    fields.batteryPercent = 70;
    fields.rawMaxCapacity = 4610;
    fields.amperage = -490;
    fields.todayWh = 1.5;
    fields.calibrationIntervalDays = 14;
    const auto text = metricsText(fields);
    EXPECT_THAT(text, HasSubstr("# TYPE quelby_battery_level_ratio gauge\n"
                                "# UNIT quelby_battery_level_ratio ratio\n"
                                "# HELP quelby_battery_level_ratio State of charge.\n"
                                "quelby_battery_level_ratio 0.7\n"));
    EXPECT_THAT(text, HasSubstr("\nquelby_battery_full_charge_coulombs 16596\n"));
    EXPECT_THAT(text, HasSubstr("\nquelby_battery_current_amperes -0.49\n"));
    EXPECT_THAT(text, HasSubstr("\nquelby_today_energy_joules 5400\n"));
    EXPECT_THAT(text, HasSubstr("\nquelby_calibration_interval_seconds 1209600\n"));
    EXPECT_THAT(text, HasSubstr("\nquelby_build_info{version=\"" + std::string(version()) + "\"} 1\n"));
    EXPECT_THAT(text, EndsWith("\n# EOF\n"));
}

TEST(MetricsTextTest, TellsProcessesByTheirRankAndNotByTheirName) {
    PublishedFields fields;
    fields.topProcesses = std::vector<ProcessInfo_Energy>{{"secret", 50, 2.5}, {"other", 10, 0.5}};
    const auto text = metricsText(fields);
    EXPECT_THAT(text, HasSubstr("quelby_process_power_watts{rank=\"1\"} 2.5\n"
                                "quelby_process_power_watts{rank=\"2\"} 0.5\n"));
    EXPECT_THAT(text, Not(HasSubstr("secret")));
}

TEST(MetricsTextTest, LeavesOutWhatIsNotThere) {
    PublishedFields fields;
    fields.hasBattery = false;
    fields.totalPower = std::numeric_limits<double>::quiet_NaN();
    const auto text = metricsText(fields);
    EXPECT_THAT(text, HasSubstr("quelby_battery_present 0\n"));
    EXPECT_THAT(text, Not(HasSubstr("quelby_battery_level")));
    EXPECT_THAT(text, Not(HasSubstr("quelby_power_watts")));
    EXPECT_THAT(text, Not(HasSubstr("last_calibration")));
    fields.lastCalibrationDate = Date(1700000000);
    EXPECT_THAT(metricsText(fields), HasSubstr("quelby_last_calibration_timestamp_seconds 1700000000\n"));
}

} // namespace
} // namespace quelby::cli
