#include "cli/output/energy_output.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/time_zone.h"

namespace quelby::cli {
namespace {

using nlohmann::json;

EnergyOutput ofTwoApps() {
    return {.fullCharge = 50.0, .named = {{"Web Browser", 8.5}, {"a \"b\", c", 0.125}}};
}

TEST(EnergyOutput, TellsTheLargestFirstWithItsShareOfACharge) {
    EXPECT_EQ(energyInForm(ofTwoApps(), OutputForm::text, 60),
              "Today: 8.6 Wh, 17 % of a charge\n"
              "  Web Browser    8.5 Wh   17 %  ████████████████████████████\n"
              "  a \"b\", c      0.12 Wh   <1 %  ▍\n");
}

TEST(EnergyOutput, TellsNoShareWithoutABattery) {
    auto output = ofTwoApps();
    output.fullCharge = std::nullopt;
    EXPECT_THAT(energyInForm(output, OutputForm::text, 60), testing::StartsWith("Today: 8.6 Wh\n"));
    EXPECT_EQ(json::parse(energyInForm(output, OutputForm::json, 60))["rows"][0]["shareOfCharge"], nullptr);
    EXPECT_THAT(energyInForm(output, OutputForm::csv, 60), testing::HasSubstr("Web Browser,8.5,\n"));
}

TEST(EnergyOutput, ShowsNoControlCharacterOfAName) {
    const EnergyOutput output{.named = {{"edi\x1B[2Jtor", 1}}};
    EXPECT_THAT(energyInForm(output, OutputForm::text, 60), testing::HasSubstr("  edi?[2Jtor "));
}

TEST(EnergyOutput, KeepsItsLinesWithinTheColumns) {
    const EnergyOutput output{.fullCharge = 50.0, .named = {{std::string(200, 'x'), 123.4}}};
    EXPECT_THAT(energyInForm(output, OutputForm::text, 60), testing::HasSubstr("…    123 Wh  247 %"));
}

TEST(EnergyOutput, IsOneObjectWithItsSum) {
    EXPECT_EQ(json::parse(energyInForm(ofTwoApps(), OutputForm::json, 60)),
              json::parse(R"({"range": "today", "by": "app", "totalWh": 8.625, "fullChargeWh": 50.0, "rows": [
                             {"name": "Web Browser", "wattHours": 8.5, "shareOfCharge": 0.17},
                             {"name": "a \"b\", c", "wattHours": 0.125, "shareOfCharge": 0.0025}]})"));
}

TEST(EnergyOutput, IsATableWithQuotedNames) {
    EXPECT_EQ(energyInForm(ofTwoApps(), OutputForm::csv, 60), "name,watt_hours,share_of_charge\n"
                                                              "Web Browser,8.5,0.17\n"
                                                              "\"a \"\"b\"\", c\",0.125,0.0025\n");
}

TEST(EnergyOutput, TellsHoursAndDaysByTheirStart) {
    const TimeZone zone("EST5");
    EnergyOutput output{.range = EnergyRange::sevenDays,
                        .by = EnergyGrouping::hour,
                        .fullCharge = 50.0,
                        .timed = {{1'700'006'400, 5}}};
    EXPECT_THAT(energyInForm(output, OutputForm::text, 60),
                testing::HasSubstr("  2023-11-14 19:00    5.0 Wh   10 %"));
    EXPECT_EQ(energyInForm(output, OutputForm::csv, 60),
              "start,watt_hours,share_of_charge\n1700006400,5,0.1\n");
    output.by = EnergyGrouping::day;
    EXPECT_THAT(energyInForm(output, OutputForm::text, 60), testing::HasSubstr("  2023-11-14    5.0 Wh"));
    EXPECT_EQ(json::parse(energyInForm(output, OutputForm::json, 60))["rows"][0]["start"], 1'700'006'400);
}

TEST(EnergyOutput, SaysThatNothingIsRecorded) {
    EXPECT_EQ(energyInForm({.range = EnergyRange::thirtyDays}, OutputForm::text, 60),
              "30 Days: nothing recorded\n");
    EXPECT_EQ(energyInForm({}, OutputForm::csv, 60), "name,watt_hours,share_of_charge\n");
    EXPECT_EQ(json::parse(energyInForm({}, OutputForm::json, 60))["rows"], json::array());
}

} // namespace
} // namespace quelby::cli
