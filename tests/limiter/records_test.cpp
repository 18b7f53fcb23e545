#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "limiter/files/limiter_state.h"
#include "limiter/records/details.h"
#include "limiter/records/status_text.h"

namespace quelby::limiter {
namespace {

using Json = nlohmann::ordered_json;

TEST(StatusText, IsWhatTheApplicationReads) {
    DaemonStatus status{.daemonRunning = true,
                        .chargingInhibited = true,
                        .calibrationActive = true,
                        .calibrationPhase = "charging to 100%",
                        .batteryPercent = 81,
                        .lastUpdate = 1'700'000'000.25};
    EXPECT_EQ(decodeDaemonStatus(encode(status)), status);
    status.calibrationPhase.reset();
    EXPECT_EQ(decodeDaemonStatus(encode(status)), status);
    EXPECT_EQ(decodeDaemonStatus(encode(DaemonStatus{})), DaemonStatus{});
}

TEST(DetailsText, HasEveryKeyWithNullForWhatIsNotKnown) {
    const Details details{.version = "0.1.0",
                          .lastUpdate = 1'700'000'000,
                          .mechanism = "thresholds",
                          .batteries = {{.name = "BAT0",
                                         .mechanism = "thresholds",
                                         .wishedPercent = 80,
                                         .inForcePercent = 80,
                                         .inForceStartPercent = 75,
                                         .foundPercent = 100,
                                         .foundStartPercent = 0},
                                        {.name = "BAT1"}},
                          .rival = "TLP",
                          .lastError = "a sentence",
                          .explanation = "Another."};
    EXPECT_EQ(encode(details),
              R"({"version":"0.1.0","lastUpdate":1700000000.0,"mechanism":"thresholds","batteries":[)"
              R"({"name":"BAT0","mechanism":"thresholds","wishedPercent":80,"inForcePercent":80,)"
              R"("inForceStartPercent":75,"foundPercent":100,"foundStartPercent":0},)"
              R"({"name":"BAT1","mechanism":null,"wishedPercent":null,"inForcePercent":null,)"
              R"("inForceStartPercent":null,"foundPercent":null,"foundStartPercent":null}],)"
              R"("rival":"TLP","lastError":"a sentence","explanation":"Another."})"
              "\n");
    const auto nothing = Json::parse(encode(Details{}));
    EXPECT_TRUE(nothing["mechanism"].is_null());
    EXPECT_TRUE(nothing["rival"].is_null());
    EXPECT_TRUE(nothing["lastError"].is_null());
    EXPECT_TRUE(nothing["batteries"].is_array());
}

TEST(DetailsText, SurvivesTextThatIsNotUtf8) {
    EXPECT_TRUE(Json::accept(encode(Details{.batteries = {{.name = "BAT\xFF"}}, .explanation = "\xC3"})));
}

TEST(LimiterStateText, IsReadBackAsItWas) {
    LimiterState state{
        .found = {{"BAT0", {.end = 100, .start = 0, .mode = "Standard"}}, {"BAT1", {}}},
        .lastCalibration = 1'700'000'000,
        .calibration = CalibrationProgress{.reachedFull = true, .heldSeconds = 61.5, .stalledSeconds = 8}};
    EXPECT_EQ(decodeLimiterState(encode(state)), state);
    EXPECT_EQ(decodeLimiterState(encode(LimiterState{})), LimiterState{});
}

TEST(LimiterStateText, LosesOnlyWhatCannotBeUnderstood) {
    for (const char* const rotten : {"", "{", "null", "[1]", "\"text\"", "{\"found\":3}"}) {
        EXPECT_EQ(decodeLimiterState(rotten), LimiterState{}) << rotten;
    }
    const auto state =
        decodeLimiterState(R"({"found":{"BAT0":{"end":101,"start":-1,"mode":7},"BAT1":[],"BAT2":{"end":60}},)"
                           R"("lastCalibration":"soon","calibration":{"reachedFull":1,"heldSeconds":-5}})");
    EXPECT_EQ(state.found.at("BAT0"), Setting{});
    EXPECT_FALSE(state.found.contains("BAT1"));
    EXPECT_EQ(state.found.at("BAT2").end, 60);
    EXPECT_EQ(state.lastCalibration, 0);
    EXPECT_EQ(state.calibration, CalibrationProgress{});
}

} // namespace
} // namespace quelby::limiter
