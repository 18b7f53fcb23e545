#include "cli/output/filled_template.h"

#include <gtest/gtest.h>

namespace quelby::cli {
namespace {

class FilledTemplateTest : public testing::Test {
protected:
    FilledTemplateTest() {
        fields.batteryPercent = 80;
        fields.totalPower = 12.4;
        fields.cpuUsage = 7.5;
        fields.predictedTime = "~3h 12m remaining";
        fields.batteryTemp = 30.84;
        fields.todayWh = 1.06;
    }

    [[nodiscard]] std::string filled(const std::string& text) const {
        return filledTemplate(parseTitleTemplate(text), fields);
    }

    PublishedFields fields;
};

TEST_F(FilledTemplateTest, HoldsTheFiguresWithoutUnits) {
    EXPECT_EQ(filled("{watts} W {percent} % {time}"), "12 W 80 % ~3h 12m remaining");
    EXPECT_EQ(filled("{cpu}|{temperature}|{today}|{state}|{title}"), "8|30.8|1.1|discharging|-12W");
    fields.batteryRateStr = "-12.0%/hr";
    fields.batteryHealth = 91;
    fields.voltage = 11.437;
    EXPECT_EQ(filled("{rate}|{health}|{volts}"), "-12.0%/hr|91|11.44");
    EXPECT_EQ(filled("no figure"), "no figure");
}

TEST_F(FilledTemplateTest, TellsTheLimitOnlyWhereThereIsOne) {
    EXPECT_EQ(filled("<{limit}>"), "<>");
    fields.chargeLimitEnabled = true;
    fields.chargeLimitPercent = 75;
    EXPECT_EQ(filled("<{limit}>"), "<75>");
}

TEST_F(FilledTemplateTest, SaysNothingOfABatteryThatIsNotThere) {
    fields.hasBattery = false;
    EXPECT_EQ(filled("{percent}{time}{rate}{health}{temperature}{volts}, {state}"), ", no battery");
}

} // namespace
} // namespace quelby::cli
