#include "helper/daemon_status.h"

#include <gtest/gtest.h>

#include "record_texts.h"

namespace quelby {
namespace {

DaemonStatus statusWithPhase(std::optional<std::string> phase) {
    auto status = statusOfText;
    status.calibrationPhase = std::move(phase);
    return status;
}

TEST(DaemonStatus, IsDecodedFromItsKeys) {
    EXPECT_EQ(decodeDaemonStatus(statusText), statusOfText);
}

TEST(DaemonStatus, NeedsEachOfItsKeysButThePhase) {
    for (const auto* key :
         {"daemonRunning", "chargingInhibited", "calibrationActive", "batteryPercent", "lastUpdate"}) {
        EXPECT_EQ(decodeDaemonStatus(with(statusText, key, "another")), std::nullopt) << key;
    }
    EXPECT_EQ(decodeDaemonStatus(with(statusText, "calibrationPhase", "another")),
              statusWithPhase(std::nullopt));
}

TEST(DaemonStatus, TellsNoPhaseFromAnEmptyOne) {
    EXPECT_EQ(decodeDaemonStatus(with(statusText, "\"Discharging to 15%\"", "null")),
              statusWithPhase(std::nullopt));
    EXPECT_EQ(decodeDaemonStatus(with(statusText, "Discharging to 15%", "")), statusWithPhase(""));
}

TEST(DaemonStatus, IsRefusedAsAWholeForOneValueOfAnotherType) {
    for (const auto* part : {"true", "42", "1700000003.5"}) {
        for (const auto* instead : {"null", "\"1\"", "[]", "{}"}) {
            EXPECT_EQ(decodeDaemonStatus(with(statusText, part, instead)), std::nullopt) << part << instead;
        }
    }
    for (const auto* phase : {"true", "1", "1.5", "[]", "{}"}) {
        EXPECT_EQ(decodeDaemonStatus(with(statusText, "\"Discharging to 15%\"", phase)), std::nullopt)
            << phase;
    }
    EXPECT_EQ(decodeDaemonStatus(with(statusText, "42", "42.5")), std::nullopt);
    EXPECT_EQ(decodeDaemonStatus(with(statusText, "42", "false")), std::nullopt);
    EXPECT_EQ(decodeDaemonStatus(with(statusText, "Running\":true", "Running\":1")), std::nullopt);
}

TEST(DaemonStatus, IsRefusedWhereItIsHalfWritten) {
    for (std::size_t length = 0; length < statusText.size(); ++length) {
        EXPECT_EQ(decodeDaemonStatus(statusText.substr(0, length)), std::nullopt) << length;
    }
    EXPECT_EQ(decodeDaemonStatus(statusText + "5}"), std::nullopt);
    EXPECT_EQ(decodeDaemonStatus(statusText + std::string(3, '\0')), std::nullopt);
}

} // namespace
} // namespace quelby
