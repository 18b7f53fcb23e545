#include "cli/output/dashboard_json.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "support/days_from_now.h"

namespace quelby::cli {
namespace {

using nlohmann::ordered_json;
using testing::ElementsAre;

class DashboardJsonTest : public testing::Test {
protected:
    [[nodiscard]] ordered_json json() const {
        return ordered_json::parse(dashboardAsJson(dashboard(fields, 1'700'000'000, linuxWords)));
    }

    [[nodiscard]] ordered_json settings() const {
        return ordered_json::parse(settingsAsJson(settingsPanel(fields, 1'700'000'000, daysFromNow)));
    }

    static std::vector<std::string> keys(const ordered_json& object) {
        std::vector<std::string> names;
        for (const auto& [key, value] : object.items()) {
            names.push_back(key);
        }
        return names;
    }

    PublishedFields fields;
};

TEST_F(DashboardJsonTest, HoldsThePartsThatAreShownInTheirOrder) {
    EXPECT_THAT(keys(json()), ElementsAre("header", "chargeLimit", "powerBadge", "battery", "components",
                                          "processes", "history", "efficiency", "details", "quit"));
    fields.powerHistory = {1, 2, 3};
    fields.hasBattery = false;
    EXPECT_THAT(keys(json()), ElementsAre("header", "powerBadge", "components", "processes", "trend",
                                          "history", "efficiency", "quit"));
}

TEST_F(DashboardJsonTest, IsNullForAThingWithNothingToSay) {
    EXPECT_TRUE(json()["powerBadge"]["extra"].is_null());
    EXPECT_TRUE(json()["components"]["rows"][1]["detail"].is_null());
    fields.isPluggedIn = true;
    fields.fullyCharged = true;
    EXPECT_TRUE(json()["powerBadge"]["sign"].is_null());
    fields.voltage = 12;
    EXPECT_TRUE(json()["details"]["rows"].back()["note"].is_null());
}

TEST_F(DashboardJsonTest, OffersTheHelperInPlaceOfTheLimit) {
    fields.chargeLimitEnabled = true;
    EXPECT_THAT(keys(json()["chargeLimit"]), ElementsAre("symbol", "title", "enabled", "helperInstalled",
                                                         "subtitle", "explanation", "installButton"));
    EXPECT_EQ(json()["chargeLimit"]["installButton"]["text"]["color"], "white");
    fields.daemonInstalled = true;
    EXPECT_THAT(keys(json()["chargeLimit"]), ElementsAre("symbol", "title", "enabled", "helperInstalled",
                                                         "subtitle", "stopAt", "slider", "scale", "status"));
    fields.chargeLimitEnabled = false;
    EXPECT_THAT(keys(json()["chargeLimit"]),
                ElementsAre("symbol", "title", "enabled", "helperInstalled", "subtitle"));
}

TEST_F(DashboardJsonTest, WritesWholeNumbersOfTheSliderWithoutAFraction) {
    fields.daemonInstalled = true;
    fields.chargeLimitEnabled = true;
    EXPECT_EQ(json()["chargeLimit"]["slider"].dump(), R"({"value":80,"from":20,"to":100,"step":5})");
    fields.chargeLimitPercent = 82.5;
    EXPECT_EQ(json()["chargeLimit"]["slider"]["value"], 82.5);
}

TEST_F(DashboardJsonTest, NamesTranslucentColoursWithTheirOpacity) {
    fields.isPluggedIn = true;
    EXPECT_EQ(json()["powerBadge"]["unit"]["color"], "green@0.7");
}

TEST_F(DashboardJsonTest, HoldsPlaceholdersInPlaceOfRowsAndCurves) {
    EXPECT_EQ(json()["processes"]["placeholder"]["text"], processCard(fields).placeholder->text);
    EXPECT_FALSE(json()["processes"].contains("rows"));
    EXPECT_EQ(json()["history"]["placeholder"]["text"]["text"], historyCard(fields).placeholder->text.text);
    fields.topProcesses = {{"editor", 1, 1}};
    fields.historyData = {{1, 2}, {2, 3}, {3, 4}};
    EXPECT_FALSE(json()["processes"].contains("placeholder"));
    EXPECT_EQ(json()["processes"]["rows"].size(), 1U);
    EXPECT_EQ(json()["history"]["points"], 3);
    EXPECT_FALSE(json()["history"].contains("placeholder"));
}

TEST_F(DashboardJsonTest, IsWellFormedWhateverAProcessIsCalled) {
    fields.topProcesses = {{"\xff\x01 \"x\"", 1, 1}};
    EXPECT_EQ(json()["processes"]["rows"][0]["name"]["text"], "?? \"x\"");
}

TEST_F(DashboardJsonTest, OfTheSettingsHoldsItsSectionsInTheirOrder) {
    EXPECT_THAT(keys(settings()),
                ElementsAre("header", "general", "calibration", "helper", "uninstall", "version", "quit"));
    EXPECT_EQ(settings()["header"]["symbol"]["symbol"], "chevron.left");
    EXPECT_EQ(settings()["general"]["launchAtLogin"]["enabled"], false);
    const auto panel = settingsPanel(fields, 1'700'000'000, daysFromNow);
    const auto choices = settings()["general"]["menuBarDisplay"]["choices"];
    ASSERT_EQ(choices.size(), panel.general.menuBarDisplay.choices.size());
    for (std::size_t i = 0; i < choices.size(); ++i) {
        EXPECT_EQ(choices[i], (ordered_json{{"text", panel.general.menuBarDisplay.choices.at(i).text},
                                            {"selected", i == 0}}));
    }
    EXPECT_EQ(settings()["calibration"]["frequency"]["choices"][2],
              (ordered_json{{"text", panel.calibration.frequency.choices[2].text}, {"selected", true}}));
    EXPECT_EQ(settings()["helper"]["status"]["dot"], "red");
    EXPECT_EQ(settings()["uninstall"]["button"]["text"]["text"], panel.uninstall.button.text.text);
    EXPECT_EQ(settings()["version"]["text"], panel.version.text);
}

} // namespace
} // namespace quelby::cli
