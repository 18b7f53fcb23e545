#include "ui/presentation/cards/settings_panel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/days_from_now.h"
#include "ui/presentation/printing.h"

namespace quelby {
namespace {

using testing::ElementsAre;

constexpr Date now = 1'700'000'000;
constexpr double day = 86'400;

// The four buttons, of which the one at the position is selected; one beyond them selects none.
std::vector<Choice> intervals(std::size_t selected) {
    std::vector<Choice> choices{{"1 Week"}, {"2 Weeks"}, {"1 Month"}, {"2 Months"}};
    if (selected < choices.size()) {
        choices[selected].selected = true;
    }
    return choices;
}

Label lastDate(const char* text) {
    return {{"checkmark.circle", ColorName::green}, secondary(text)};
}

Label nextDate(const char* text) {
    return {{"clock", ColorName::blue}, secondary(text)};
}

class CalibrationSectionTest : public testing::Test {
protected:
    std::vector<Label> dates(double daysAgo, Int interval) {
        fields.lastCalibrationDate = now - daysAgo * day;
        fields.calibrationIntervalDays = interval;
        return calibrationSection(fields, now, daysFromNow).dates;
    }

    PublishedFields fields;
};

TEST(GeneralSection, OffersTheLoginItemAndTheDisplays) {
    PublishedFields fields;
    const GeneralSection expected{
        .symbol = {"gearshape", ColorName::primary},
        .title = primary("General"),
        .launchAtLogin = {primary("Launch at Login"), secondary("Start Quelby when you log in"), false},
        .menuBarDisplay = {primary("Menu Bar Display"),
                           secondary("Choose what to show next to the icon"),
                           {{"Watts", true},
                            {"Battery%", false},
                            {"mA", false},
                            {"Volts", false},
                            {"Temp", false},
                            {"Icon", false}}}};
    EXPECT_EQ(generalSection(fields), expected);
    fields.launchAtLogin = true;
    EXPECT_TRUE(generalSection(fields).launchAtLogin.enabled);
}

TEST(GeneralSection, SelectsTheDisplayThatIsShown) {
    const std::pair<MenuBarDisplay, const char*> labels[] = {{MenuBarDisplay::watts, "Watts"},
                                                             {MenuBarDisplay::percentage, "Battery%"},
                                                             {MenuBarDisplay::mA, "mA"},
                                                             {MenuBarDisplay::voltage, "Volts"},
                                                             {MenuBarDisplay::temperature, "Temp"},
                                                             {MenuBarDisplay::iconOnly, "Icon"}};
    PublishedFields fields;
    for (const auto& selected : labels) {
        fields.menuBarDisplay = selected.first;
        const auto displays = generalSection(fields).menuBarDisplay.choices;
        ASSERT_EQ(displays.size(), std::size(labels));
        for (std::size_t index = 0; index < displays.size(); ++index) {
            EXPECT_EQ(displays[index], (Choice{labels[index].second, labels[index].first == selected.first}));
        }
    }
}

TEST_F(CalibrationSectionTest, BeginsWithoutADate) {
    const CalibrationSection expected{
        .symbol = {"arrow.triangle.2.circlepath", ColorName::primary},
        .title = primary("Battery Calibration"),
        .autoCalibrate = {primary("Auto Calibrate"),
                          secondary("Periodically charge to 100% to calibrate the battery gauge"), false},
        .frequency = {primary("Frequency"), intervals(2)},
        .dates = {{{"info.circle", ColorName::secondary},
                   secondary("First calibration will start when charge limit is active")}}};
    EXPECT_EQ(calibrationSection(fields, now, daysFromNow), expected);
}

TEST_F(CalibrationSectionTest, SwitchesWithTheFieldAndNothingElse) {
    fields.calibrationActive = true;
    fields.chargeLimitEnabled = true;
    EXPECT_FALSE(calibrationSection(fields, now, daysFromNow).autoCalibrate.enabled);
    fields.calibrationEnabled = true;
    EXPECT_TRUE(calibrationSection(fields, now, daysFromNow).autoCalibrate.enabled);
}

TEST_F(CalibrationSectionTest, SelectsTheIntervalThatIsSet) {
    const std::pair<Int, std::size_t> expected[] = {{7, 0}, {14, 1}, {30, 2}, {60, 3},
                                                    {8, 4}, {0, 4},  {31, 4}};
    for (const auto& [days, selected] : expected) {
        fields.calibrationIntervalDays = days;
        EXPECT_EQ(calibrationSection(fields, now, daysFromNow).frequency.choices, intervals(selected))
            << days;
    }
}

TEST_F(CalibrationSectionTest, TellsTheLastAndTheNextDateFromNow) {
    EXPECT_THAT(dates(3, 7), ElementsAre(lastDate("Last: 3 days ago"), nextDate("Next: in 4 days")));
    EXPECT_THAT(dates(0, 30), ElementsAre(lastDate("Last: in 0 days"), nextDate("Next: in 30 days")));
    EXPECT_THAT(dates(14, 14), ElementsAre(lastDate("Last: 14 days ago"), nextDate("Next: in 0 days")));
}

TEST_F(CalibrationSectionTest, TellsANextDateThatHasPassed) {
    EXPECT_THAT(dates(10, 7), ElementsAre(lastDate("Last: 10 days ago"), nextDate("Next: 3 days ago")));
}

TEST_F(CalibrationSectionTest, SpeaksOfTheDatesAsTheSystemDoes) {
    fields.lastCalibrationDate = now - 3 * day;
    fields.calibrationIntervalDays = 14;
    const auto spoken = [](Date date, Date) { return date < now ? "vor 3 Tagen" : "in 1 Woche"; };
    EXPECT_THAT(calibrationSection(fields, now, spoken).dates,
                ElementsAre(lastDate("Last: vor 3 Tagen"), nextDate("Next: in 1 Woche")));
}

TEST(HelperSection, OffersToInstallTheHelper) {
    PublishedFields fields;
    HelperSection expected{
        .symbol = {"wrench.and.screwdriver", ColorName::primary},
        .title = primary("Charge Helper"),
        .explanation = secondary("The helper runs in the background to control charging without repeated "
                                 "password prompts. Admin password required once for install/uninstall."),
        .status = {ColorName::red, primary("Helper not installed")},
        .installed = false,
        .button = primary("Install")};
    EXPECT_EQ(helperSection(fields), expected);
    fields.daemonInstalled = true;
    expected.status = {ColorName::green, primary("Helper installed & running")};
    expected.installed = true;
    expected.button = primary("Uninstall");
    EXPECT_EQ(helperSection(fields), expected);
    fields.helperOutdated = true;
    expected.update = helperUpdate();
    EXPECT_EQ(helperSection(fields), expected);
}

TEST(UninstallSection, OffersTheWayOut) {
    const UninstallSection expected{
        .symbol = {"trash", ColorName::primary},
        .title = primary("Uninstall"),
        .explanation = secondary("Remove Quelby completely: helper, app, settings, and history data."),
        .button = {{"trash.fill", ColorName::primary}, primary("Uninstall Quelby")}};
    EXPECT_EQ(uninstallSection(), expected);
}

TEST(SettingsPanel, IsMadeOfItsSections) {
    PublishedFields fields;
    fields.menuBarDisplay = MenuBarDisplay::voltage;
    fields.daemonInstalled = true;
    fields.lastCalibrationDate = now - 3 * day;
    const SettingsPanel expected{.header = settingsHeader(),
                                 .general = generalSection(fields),
                                 .calibration = calibrationSection(fields, now, daysFromNow),
                                 .helper = helperSection(fields),
                                 .uninstall = uninstallSection(),
                                 .version = secondary("Quelby v1.0"),
                                 .quit = {{"xmark.circle", ColorName::secondary}, secondary("Quit Quelby")}};
    EXPECT_EQ(settingsPanel(fields, now, daysFromNow), expected);
}

} // namespace
} // namespace quelby
