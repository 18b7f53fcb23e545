#include "ui/presentation/energy/energy_panel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/time_zone.h"

namespace quelby {
namespace {

class EnergyPanelTest : public testing::Test {
protected:
    EnergyPanelTest() {
        fields.rawMaxCapacity = 4000;
        fields.voltage = 12; // 48 Wh
    }

    [[nodiscard]] EnergyPanel panel(std::optional<double> minutes = std::nullopt) const {
        return energyPanel(report, fields, minutes);
    }

    TimeZone utc{"UTC0"};
    PublishedFields fields;
    EnergyReport report{.range = EnergyRange::today,
                        .apps = {{"system", 12}, {"firefox", 8.2}, {"a\x1B", 0.1}}};
};

TEST_F(EnergyPanelTest, TellsWhichApplicationUsedHowMuchOfACharge) {
    const auto use = panel().use;
    EXPECT_EQ(use.total.text, "20.3 Wh, 42 % of a charge");
    ASSERT_EQ(use.rows.size(), 3U);
    EXPECT_EQ(use.rows[1].name, primary("firefox"));
    EXPECT_EQ(use.rows[1].energy.text, "8.2 Wh");
    EXPECT_EQ(use.rows[1].share.text, "17 %");
    EXPECT_NEAR(use.rows[1].bar.fraction, 8.2 / 12, 1e-12);
    EXPECT_EQ(use.rows[2].name.text, "a?");
    EXPECT_EQ(use.placeholder, std::nullopt);
    EXPECT_THAT(use.footnote.text, testing::AllOf(testing::HasSubstr("an estimate"),
                                                  testing::HasSubstr("full charge at the present voltage.")));
}

TEST_F(EnergyPanelTest, TellsWhatIsNoApplicationMoreQuietly) {
    const auto use = panel().use;
    EXPECT_EQ(use.rows[0].name, secondary("system"));
    EXPECT_EQ(use.rows[0].bar.color, ColorName::secondary);
    EXPECT_EQ(use.rows[1].bar.color, ColorName::accent);
}

TEST_F(EnergyPanelTest, PutsTheSmallestOfManyTogether) {
    report.apps.clear();
    for (int i = 0; i < 30; ++i) {
        report.apps.push_back({"app " + std::to_string(i), 2});
    }
    const auto rows = panel().use.rows;
    ASSERT_EQ(rows.size(), 12U);
    EXPECT_EQ(rows[11].name.text, "19 others");
    EXPECT_EQ(rows[11].energy.text, "38.0 Wh");
    EXPECT_EQ(rows[11].bar.fraction, 1.0);
    report.apps.resize(12);
    EXPECT_EQ(panel().use.rows[11].name.text, "app 11");
}

TEST_F(EnergyPanelTest, OffersEveryRange) {
    report.range = EnergyRange::sinceUnplugged;
    const auto ranges = panel().use.ranges;
    ASSERT_EQ(ranges.size(), allEnergyRanges.size());
    EXPECT_FALSE(ranges[0].selected);
    EXPECT_TRUE(ranges[4].selected);
}

TEST_F(EnergyPanelTest, SaysWhereNothingIsRecordedYet) {
    report = {};
    EXPECT_EQ(panel().use.placeholder->text, "Nothing recorded yet");
    EXPECT_EQ(panel().use.total.text, "");
    EXPECT_EQ(panel().sleeps->placeholder->text, "None recorded yet");
    EXPECT_EQ(panel().sessions->placeholder->text, "None recorded yet");
    EXPECT_EQ(panel().ageing->ageing.text, "60 more days until this can be told");
}

TEST_F(EnergyPanelTest, LeavesOutWhatAMachineWithoutABatteryHasNot) {
    fields.hasBattery = false;
    EXPECT_EQ(panel().sleeps, std::nullopt);
    EXPECT_EQ(panel().sessions, std::nullopt);
    EXPECT_EQ(panel().ageing, std::nullopt);
    EXPECT_EQ(panel().use.rows[1].share.text, "");
    EXPECT_EQ(panel().use.total.text, "20.3 Wh");
    EXPECT_THAT(panel().use.footnote.text, testing::Not(testing::HasSubstr("charge")));
}

TEST_F(EnergyPanelTest, TellsHowLongUntilTheLimitWhereThereIsOne) {
    EXPECT_EQ(panel().limit, std::nullopt);
    fields.chargeLimitPercent = 75;
    EXPECT_EQ(panel(85.5).limit->text.text, "~1h 25m to the limit of 75%");
}

TEST_F(EnergyPanelTest, TellsWhatSleepsCostAndWarnsOfThoseThatDrained) {
    report.sleeps = {
        {.start = 1'700'000'000, .seconds = 28'800, .percentBefore = 80, .percentAfter = 70, .wattHours = 4},
        {.start = 1'600'000'000, .seconds = 28'800, .percentBefore = 80, .percentAfter = 79}};
    const auto rows = panel().sleeps->rows;
    EXPECT_EQ(rows[0].when.text, "11-14 22:13");
    EXPECT_EQ(rows[0].what.text, "8 h 0 min");
    EXPECT_EQ(rows[0].cost.text, "10.0 %, 0.50 W");
    EXPECT_EQ(rows[0].warning->text, "drained more than 1 % an hour");
    EXPECT_EQ(rows[1].cost.text, "1.0 %");
    EXPECT_EQ(rows[1].warning, std::nullopt);
    report.sleeps[1].percentAfter = 85;
    EXPECT_EQ(panel().sleeps->rows[1].cost.text, "charged 5.0 %");
    report.sleeps.resize(30);
    EXPECT_EQ(panel().sleeps->rows.size(), 6U);
}

TEST_F(EnergyPanelTest, TellsTheTimesOnBattery) {
    report.sessions = {{.kind = SessionKind::discharge,
                        .start = 1'700'000'000,
                        .end = 1'700'005'400,
                        .seconds = 5400,
                        .percentFrom = 80,
                        .percentTo = 50,
                        .wattHours = 14.4}};
    const auto row = panel().sessions->rows.front();
    EXPECT_EQ(row.what.text, "On battery, 1 h 30 min");
    EXPECT_EQ(row.cost.text, "80 to 50 %, 14.4 Wh");
}

TEST_F(EnergyPanelTest, DrawsALineThroughSixtyDaysOrMore) {
    for (int i = 0; i < 59; ++i) {
        report.days.push_back({.day = i * 86'400, .fullCapacity = 4800 - i, .designCapacity = 5000});
    }
    EXPECT_EQ(panel().ageing->days.size(), 59U);
    EXPECT_TRUE(panel().ageing->line.empty());
    report.days.push_back({.day = 59 * 86'400, .fullCapacity = 4741, .designCapacity = 5000});
    const auto ageing = *panel().ageing;
    ASSERT_EQ(ageing.line.size(), 2U);
    EXPECT_NEAR(ageing.line[0].health, 96, 1e-9);
    EXPECT_NEAR(ageing.line[1].health, 94.82, 1e-9);
    EXPECT_EQ(ageing.line[1].day, 59 * 86'400);
    EXPECT_EQ(ageing.ageing.text, "about 0.6 % a month");
}

} // namespace
} // namespace quelby
