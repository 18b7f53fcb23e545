// What the presentation says arrives in QML whole.
#include <QMetaEnum>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/days_from_now.h"
#include "ui/support/made_up_dashboard.h"
#include "ui/support/printing.h"

namespace quelby {
namespace {

using testing::ElementsAre;

constexpr Date now = 1'700'000'000;

TextValue shown(const char* text, ColorName color) {
    return TextValue(Text{text, color});
}

LabelValue label(const char* symbol, ColorName symbolColor, const char* text) {
    return LabelValue(Label{{symbol, symbolColor}, secondary(text)});
}

class Values : public testing::Test {
protected:
    Values() { fillEveryCard(fields); }

    [[nodiscard]] Dashboard cards() const { return dashboard(fields, now); }

    PublishedFields fields;
};

TEST_F(Values, OfTheColoursBearTheirNames) {
    const auto names = QMetaEnum::fromType<Ink::Name>();
    for (const auto color : allColorNames) {
        const auto name = InkValue(color).name;
        EXPECT_EQ(QByteArray(names.valueToKey(name)).toLower(), std::string(text(color)).c_str());
    }
    EXPECT_EQ(InkValue(Color(ColorName::green, 0.7)).opacity, 0.7);
}

TEST_F(Values, OfATextTellWhetherThereIsAnything) {
    EXPECT_TRUE(TextValue(primary("")).present);
    EXPECT_FALSE(TextValue(std::optional<Text>()).present);
    EXPECT_EQ(TextValue(std::optional(primary("é★"))).text, QString::fromUtf8("é★"));
}

TEST_F(Values, OfABarSayItsPercentInWords) {
    EXPECT_EQ(BarValue(bar(1, 3, ColorName::red)).percent, "33%");
    EXPECT_EQ(BarValue(bar(9, 3, ColorName::red)).percent, "100%");
    EXPECT_EQ(BarValue(bar(1, 4, ColorName::red)).fraction, 0.25);
    EXPECT_EQ(BarValue(bar(1, 4, ColorName::red)).ink, InkValue(ColorName::red));
}

TEST_F(Values, OfTheHeaderCarryIt) {
    const HeaderValue header(cards().header);
    EXPECT_EQ(header.symbol, SymbolValue(Symbol{"bolt.fill", ColorName::yellow}));
    EXPECT_EQ(header.title, shown("Quelby", ColorName::primary));
    EXPECT_TRUE(header.clock.present);
    EXPECT_EQ(header.toggle.name, "gearshape");
    EXPECT_FALSE(HeaderValue(settingsHeader()).clock.present);
}

TEST_F(Values, OfThePowerBadgeCarryIt) {
    const PowerBadgeValue charging(cards().powerBadge);
    EXPECT_EQ(charging.symbol.name, "bolt.fill");
    EXPECT_FALSE(charging.sign.present);
    EXPECT_EQ(charging.figure, shown("18.2", ColorName::green));
    EXPECT_EQ(charging.unit, TextValue(Text{"W", Color(ColorName::green, 0.7)}));
    EXPECT_EQ(charging.caption, shown("Charging Battery", ColorName::secondary));
    EXPECT_THAT(charging.extra,
                ElementsAre(label("desktopcomputer", ColorName::secondary, "21W system"),
                            label("powerplug.fill", ColorName::secondary, "39W total input")));
    fields.isPluggedIn = false;
    EXPECT_EQ(PowerBadgeValue(cards().powerBadge).sign, shown("-", ColorName::orange));
}

TEST_F(Values, OfTheBatteryCarryIt) {
    const BatteryValue battery(*cards().battery);
    EXPECT_EQ(battery.symbol.name, "battery.100percent");
    EXPECT_EQ(battery.title.text, "Battery");
    EXPECT_EQ(battery.level, shown("72%", ColorName::green));
    EXPECT_EQ(battery.bar.fraction, 0.72);
    EXPECT_EQ(battery.rate, shown("+21.0%/hr", ColorName::green));
    EXPECT_EQ(battery.time, label("clock", ColorName::secondary, "~1h 20m to full"));
    EXPECT_EQ(battery.health, label("heart.fill", ColorName::green, "Health: 92%"));
}

TEST_F(Values, OfTheComponentsCarryThem) {
    const ComponentsValue components(cards().components);
    EXPECT_EQ(components.title.text, "Component Power");
    ASSERT_EQ(components.rows.size(), 5);
    EXPECT_EQ(components.rows[0].label.text, "cpu");
    EXPECT_EQ(components.rows[0].bar, BarValue(bar(9, 40, ColorName::red)));
    EXPECT_EQ(components.rows[0].figure.text, "9W");
    EXPECT_EQ(components.rows[0].detail, shown("34% load", ColorName::secondary));
    EXPECT_FALSE(components.rows[1].detail.present);
    EXPECT_EQ(components.total.label.text, "TOTAL");
    EXPECT_EQ(components.total.figure, shown("21W", ColorName::orange));
}

TEST_F(Values, OfTheProcessesCarryThem) {
    const ProcessesValue processes(cards().processes);
    EXPECT_EQ(processes.symbol.name, "flame.fill");
    EXPECT_EQ(processes.title.text, "Top Processes");
    EXPECT_FALSE(processes.placeholder.present);
    ASSERT_EQ(processes.rows.size(), 3);
    EXPECT_EQ(processes.rows[1].position.text, "2.");
    EXPECT_EQ(processes.rows[1].name.text, "Web Content");
    EXPECT_EQ(processes.rows[1].cpu, shown(" 22.0%", ColorName::orange));
    EXPECT_EQ(processes.rows[1].watts.text, "~3W");
    fields.topProcesses = std::vector<ProcessInfo_Energy>{};
    EXPECT_EQ(ProcessesValue(cards().processes).placeholder.text, "Loading...");
}

TEST_F(Values, OfTheTrendCarryIt) {
    const TrendValue trend(*cards().trend);
    EXPECT_EQ(trend.symbol.name, "waveform.path.ecg");
    EXPECT_EQ(trend.title.text, "Live Power Trend");
    EXPECT_EQ(trend.now.text, "21W now");
    EXPECT_THAT(trend.samples, ElementsAre(20, 24, 19, 30, 21));
    EXPECT_EQ(trend.min, shown("19W min", ColorName::green));
    EXPECT_EQ(trend.avg, shown("23W avg", ColorName::blue));
    EXPECT_EQ(trend.max, shown("30W max", ColorName::red));
}

TEST_F(Values, OfTheHistoryCarryIt) {
    const HistoryValue history(cards().history);
    EXPECT_EQ(history.symbol.name, "chart.bar.fill");
    EXPECT_EQ(history.title.text, "Consumption History");
    EXPECT_EQ(history.today.text, "31.4 Wh today");
    ASSERT_EQ(history.ranges.size(), 4);
    EXPECT_EQ(history.ranges[0], ChoiceValue(Choice{"30m", true}));
    EXPECT_EQ(history.ranges[3], ChoiceValue(Choice{"7d", false}));
    EXPECT_FALSE(history.collecting);
    ASSERT_EQ(history.points.size(), 4);
    EXPECT_EQ(history.points[1], QPointF(1'699'999'300, 22));
    ASSERT_EQ(history.badges.size(), 3);
    EXPECT_EQ(history.badges[2].label.text, "Max");
    EXPECT_EQ(history.badges[2].value, shown("22.0W", ColorName::red));
    fields.historyData = std::vector<HistoryDataPoint>{{1, 2}};
    const HistoryValue collecting(cards().history);
    EXPECT_TRUE(collecting.collecting);
    EXPECT_EQ(collecting.placeholder.text.text, "Collecting data...");
}

TEST_F(Values, OfTheEfficiencyCarryIt) {
    const EfficiencyValue efficiency(cards().efficiency);
    EXPECT_EQ(efficiency.symbol.name, "gauge.with.dots.needle.bottom.50percent");
    EXPECT_EQ(efficiency.title.text, "Efficiency");
    EXPECT_EQ(efficiency.score, shown("64", ColorName::yellow));
    EXPECT_EQ(efficiency.outOf.text, "/100");
    EXPECT_EQ(efficiency.stars, QString::fromUtf8("★★★☆☆"));
    EXPECT_EQ(efficiency.rating, shown("FAIR", ColorName::yellow));
    EXPECT_EQ(efficiency.advice,
              label("circle.fill", ColorName::yellow, "Moderate usage — power within normal range"));
}

TEST_F(Values, OfTheBatterysDetailsCarryThem) {
    const DetailsValue details(*cards().details);
    EXPECT_EQ(details.symbol.name, "battery.100percent.circle");
    EXPECT_EQ(details.title.text, "Battery Details");
    ASSERT_EQ(details.rows.size(), 8);
    EXPECT_EQ(details.rows[0].symbol.name, "sparkles");
    EXPECT_EQ(details.rows[0].label.text, "Design Capacity");
    EXPECT_EQ(details.rows[0].value.text, "5000 mAh");
    EXPECT_EQ(details.rows[0].note.text, "when new");
    EXPECT_FALSE(details.rows[5].note.present);
}

TEST_F(Values, OfTheChargeLimitCarryItsThreeStates) {
    const ChargeLimitValue on(*cards().chargeLimit);
    EXPECT_EQ(on.symbol, SymbolValue(Symbol{"bolt.badge.checkmark.fill", ColorName::green}));
    EXPECT_EQ(on.title.text, "Charge Limit");
    EXPECT_TRUE(on.enabled);
    EXPECT_TRUE(on.hasStopLevel);
    EXPECT_FALSE(on.offersHelper);
    EXPECT_THAT(on.stopLevel.stopAt,
                ElementsAre(shown("Stop at:", ColorName::secondary), shown("80%", ColorName::green)));
    EXPECT_EQ(on.stopLevel.slider, SliderValue(SliderRange{.value = 80, .from = 20, .to = 100, .step = 5}));
    EXPECT_EQ(on.stopLevel.scale.size(), 4);
    EXPECT_EQ(
        on.stopLevel.status,
        StatusValue(StatusLine{ColorName::orange, {"Charging to 80% — MagSafe orange", ColorName::orange}}));
    fields.chargeLimitEnabled = false;
    const ChargeLimitValue off(*cards().chargeLimit);
    EXPECT_FALSE(off.enabled || off.hasStopLevel || off.offersHelper);
    fields.daemonInstalled = false;
    const ChargeLimitValue withoutHelper(*cards().chargeLimit);
    EXPECT_TRUE(withoutHelper.offersHelper);
    EXPECT_FALSE(withoutHelper.hasStopLevel);
    EXPECT_TRUE(withoutHelper.offer.explanation.present);
    EXPECT_EQ(withoutHelper.offer.installButton.text,
              shown("Install Helper (one-time password)", ColorName::white));
}

TEST_F(Values, OfTheSettingsCarryThem) {
    const SettingsValue settings(settingsPanel(fields, now, daysFromNow));
    EXPECT_EQ(settings.header.title.text, "Settings");
    EXPECT_EQ(settings.general.symbol.name, "gearshape");
    EXPECT_EQ(settings.general.title.text, "General");
    EXPECT_EQ(settings.general.launchAtLogin.title.text, "Launch at Login");
    EXPECT_EQ(settings.general.launchAtLogin.subtitle.text, "Start Quelby when you log in");
    EXPECT_FALSE(settings.general.launchAtLogin.enabled);
    EXPECT_EQ(settings.general.displayTitle.text, "Menu Bar Display");
    EXPECT_EQ(settings.general.displaySubtitle.text, "Choose what to show next to the icon");
    ASSERT_EQ(settings.general.displays.size(), 6);
    EXPECT_EQ(settings.general.displays[0], ChoiceValue(Choice{"Watts", true}));
    EXPECT_EQ(settings.calibration.title.text, "Battery Calibration");
    EXPECT_EQ(settings.calibration.symbol.name, "arrow.triangle.2.circlepath");
    EXPECT_TRUE(settings.calibration.autoCalibrate.enabled);
    EXPECT_EQ(settings.calibration.frequency.text, "Frequency");
    EXPECT_EQ(settings.calibration.intervals[2], ChoiceValue(Choice{"1 Month", true}));
    EXPECT_THAT(settings.calibration.dates,
                ElementsAre(label("checkmark.circle", ColorName::green, "Last: 3 days ago"),
                            label("clock", ColorName::blue, "Next: in 27 days")));
    EXPECT_EQ(settings.version.text, "Quelby v1.0");
    EXPECT_EQ(settings.quit, LabelValue(quitButton()));
}

TEST_F(Values, OfTheWaysOutCarryThem) {
    const HelperValue helper(helperSection(fields));
    EXPECT_EQ(helper.symbol.name, "wrench.and.screwdriver");
    EXPECT_EQ(helper.title.text, "Charge Helper");
    EXPECT_TRUE(helper.explanation.present);
    EXPECT_EQ(helper.status.dot, InkValue(ColorName::green));
    EXPECT_EQ(helper.status.text.text, "Helper installed & running");
    EXPECT_TRUE(helper.installed);
    EXPECT_EQ(helper.button.text, "Uninstall");
    const UninstallValue uninstall(uninstallSection());
    EXPECT_EQ(uninstall.symbol.name, "trash");
    EXPECT_EQ(uninstall.title.text, "Uninstall");
    EXPECT_TRUE(uninstall.explanation.present);
    EXPECT_EQ(uninstall.button.symbol.name, "trash.fill");
    EXPECT_EQ(uninstall.button.text.text, "Uninstall Quelby");
}

TEST_F(Values, OfADialogCarryIt) {
    const DialogValue tip(chargingTip());
    EXPECT_EQ(tip.title, "Disable Optimized Battery Charging");
    EXPECT_TRUE(tip.message.startsWith("For Quelby's charge limit"));
    EXPECT_EQ(tip.action, "Open Battery Settings");
    EXPECT_EQ(tip.cancel, "Got it");
    EXPECT_FALSE(tip.destructive);
    EXPECT_TRUE(DialogValue(uninstallConfirmation()).destructive);
}

} // namespace
} // namespace quelby
