#include "cli/output/battery_records_output.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/time_zone.h"

namespace quelby::cli {
namespace {

using nlohmann::json;

const Sleep night{.start = 1'700'000'000,
                  .end = 1'700'028'800,
                  .seconds = 28'800,
                  .percentBefore = 82,
                  .percentAfter = 73.5,
                  .wattHours = 4};

TEST(Sleeps, TellWhatTheyCost) {
    const TimeZone utc("UTC0");
    EXPECT_EQ(sleepsInForm({night}, OutputForm::text), "2023-11-14 22:13     8 h 0 min   82.0 % to  73.5 %   "
                                                       "0.50 W   1.06 %/h  drained more than 1 % an hour\n");
    EXPECT_EQ(sleepsInForm({night}, OutputForm::csv),
              "start,end,seconds,percent_before,percent_after,watt_hours,watts,percent_per_hour\n"
              "1700000000,1700028800,28800,82,73.5,4,0.5,1.0625\n");
    EXPECT_EQ(json::parse(sleepsInForm({night}, OutputForm::json)),
              json::parse(R"({"sleeps": [{"start": 1700000000, "end": 1700028800, "seconds": 28800,
                             "percentBefore": 82.0, "percentAfter": 73.5, "wattHours": 4.0, "watts": 0.5,
                             "percentPerHour": 1.0625, "drainedMuch": true}]})"));
}

TEST(Sleeps, LeaveOutWhatIsNotKnown) {
    auto unknown = night;
    unknown.wattHours = std::nullopt;
    EXPECT_THAT(sleepsInForm({unknown}, OutputForm::csv), testing::HasSubstr(",73.5,,,1.0625\n"));
    EXPECT_EQ(json::parse(sleepsInForm({unknown}, OutputForm::json))["sleeps"][0]["watts"], nullptr);
}

TEST(Sessions, TellFromWhenToWhenHowLongAndHowMuch) {
    const TimeZone utc("UTC0");
    const Session session{.kind = SessionKind::charge,
                          .start = 1'700'000'000,
                          .end = 1'700'005'400,
                          .seconds = 5400,
                          .percentFrom = 20,
                          .percentTo = 80,
                          .wattHours = 31.25};
    EXPECT_EQ(sessionsInForm({session}, OutputForm::text),
              "2023-11-14 22:13  Charging       1 h 30 min   20 % to  80 %    31.2 Wh\n");
    EXPECT_EQ(sessionsInForm({session}, OutputForm::csv),
              "kind,start,end,seconds,percent_from,percent_to,watt_hours\n"
              "charge,1700000000,1700005400,5400,20,80,31.25\n");
    EXPECT_EQ(json::parse(sessionsInForm({session}, OutputForm::json))["sessions"][0],
              json::parse(R"({"kind": "charge", "start": 1700000000, "end": 1700005400, "seconds": 5400,
                             "percentFrom": 20, "percentTo": 80, "wattHours": 31.25})"));
}

TEST(Health, TellsTheDaysAndHowTheBatteryAges) {
    const BatteryDay day{.day = 1'700'006'400,
                         .fullCapacity = 4500,
                         .designCapacity = 5000,
                         .cycleCount = 212,
                         .maxTemperature = 30.5};
    for (const auto* rule : {"UTC0", "EST5", "IST-5:30"}) {
        const TimeZone zone(rule);
        EXPECT_EQ(healthInForm({day}, OutputForm::text),
                  "2023-11-15   4500 mAh   90.0 %   212 cycles  30.5 °C\n"
                  "Ageing: 59 more days until this can be told\n");
    }
    EXPECT_EQ(healthInForm({day}, OutputForm::csv),
              "day,full_capacity,design_capacity,health_percent,cycle_count,max_temperature\n"
              "1700006400,4500,5000,90,212,30.5\n");
    const auto object = json::parse(healthInForm({day}, OutputForm::json));
    EXPECT_EQ(object["days"][0],
              json::parse(R"({"day": 1700006400, "fullCapacity": 4500, "designCapacity": 5000,
                                                "healthPercent": 90.0, "cycleCount": 212, "maxTemperature": 30.5})"));
    EXPECT_EQ(object["percentPerMonth"], nullptr);
    EXPECT_EQ(object["ageing"], "59 more days until this can be told");
}

TEST(Records, SayThatThereAreNone) {
    EXPECT_EQ(sleepsInForm({}, OutputForm::text), "no sleep recorded\n");
    EXPECT_EQ(sessionsInForm({}, OutputForm::text), "no session recorded\n");
    EXPECT_EQ(healthInForm({}, OutputForm::text), "no day recorded\n");
    EXPECT_EQ(json::parse(sleepsInForm({}, OutputForm::json)), json::parse(R"({"sleeps": []})"));
}

} // namespace
} // namespace quelby::cli
