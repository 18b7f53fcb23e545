// Recorded machines, each with the outcome that it must give and what else is accepted. In the file an
// attribute that could not be read is null, and so is a figure that is not known, which is published as 0.
#include "platform/linux/battery/sysfs_battery_source.h"

#include <charconv>
#include <cmath>
#include <fstream>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "platform/linux/battery/fake_sysfs.h"
#include "platform/linux/battery/published_battery.h"

namespace quelby {
namespace {

using fake::Layout;
using fake::Unreadable;
using Json = nlohmann::json;

Json recordedMachines() {
    std::ifstream file(QUELBY_SOURCE_DIR "/tests/data/battery-machines.json");
    return Json::parse(file);
}

// In the units of the file.
Json jsonOf(const PublishedFields& fields) {
    return {{"hasBattery", fields.hasBattery.get()},
            {"designCapacity", fields.designCapacity.get()},
            {"rawMaxCapacity", fields.rawMaxCapacity.get()},
            {"rawCurrentCapacity", fields.rawCurrentCapacity.get()},
            {"cycleCount", fields.cycleCount.get()},
            {"batteryPercent", fields.batteryPercent.get()},
            {"isCharging", fields.isCharging.get()},
            {"isPluggedIn", fields.isPluggedIn.get()},
            {"fullyCharged", fields.fullyCharged.get()},
            {"voltage", std::lround(fields.voltage * 1000)},
            {"amperage", fields.amperage.get()},
            {"realWatts", fields.realWatts.get()},
            {"batteryTemp", std::lround(fields.batteryTemp * 100)},
            {"timeRemaining", fields.timeRemaining.get()}};
}

int minutesOf(const std::string& time) {
    int hours = 0;
    int minutes = 0;
    const auto* const end = time.data() + time.size();
    const auto [colon, error] = std::from_chars(time.data(), end, hours);
    std::from_chars(colon + 1, end, minutes);
    return error == std::errc{} ? hours * 60 + minutes : -1;
}

bool isTimeAccepted(const std::string& time, const Json& tolerance) {
    if (time == "--:--") {
        return tolerance.value("dashes", false);
    }
    return minutesOf(time) >= tolerance.at("minMinutes") && minutesOf(time) <= tolerance.at("maxMinutes");
}

bool isAccepted(const Json& got, const Json& expected, const Json& tolerance) {
    const bool unknownAsExpected = expected.is_null() && got == 0;
    if (got == expected || unknownAsExpected || tolerance.value("any", false)) {
        return true;
    }
    if (tolerance.contains("anyOf")) {
        return std::find(tolerance["anyOf"].begin(), tolerance["anyOf"].end(), got) !=
               tolerance["anyOf"].end();
    }
    if (tolerance.contains("minMinutes")) {
        return isTimeAccepted(got, tolerance);
    }
    return tolerance.contains("min") && got >= tolerance["min"] && got <= tolerance["max"];
}

void expectOutcome(const Json& machine, const BatteryReading& reading) {
    const auto& expect = machine.at("expect");
    if (!expect.at("hasBattery")) {
        EXPECT_EQ(reading, BatteryReading(NoBattery{}));
        return;
    }
    ASSERT_TRUE(std::holds_alternative<PropertyTable>(reading));
    const auto got = jsonOf(PublishedBattery(reading));
    for (const auto& [field, expected] : expect.items()) {
        const auto tolerance = machine.at("tolerance").value(field, Json::object());
        EXPECT_TRUE(isAccepted(got.at(field), expected, tolerance))
            << field << " is " << got.at(field) << ", expected " << expected << ", accepted " << tolerance;
    }
}

class RecordedMachines : public testing::TestWithParam<std::tuple<Unreadable, Layout>> {};

TEST_P(RecordedMachines, GiveTheirOutcome) {
    const auto machines = recordedMachines();
    ASSERT_EQ(machines.size(), 29);
    for (const auto& machine : machines) {
        SCOPED_TRACE(machine.at("name"));
        fake::Sysfs sysfs(std::get<Unreadable>(GetParam()), std::get<Layout>(GetParam()));
        for (const auto& [supply, attributes] : machine.at("supplies").items()) {
            fake::Attributes files;
            for (const auto& [attribute, text] : attributes.items()) {
                files[attribute] = text.is_null() ? std::nullopt : std::optional<std::string>(text);
            }
            sysfs.plug(supply, files);
        }
        expectOutcome(machine, SysfsBatterySource(sysfs.root()).readBattery());
    }
}

std::string formName(const testing::TestParamInfo<std::tuple<Unreadable, Layout>>& form) {
    constexpr std::array unreadable{"FailsToRead", "IsFolder", "IsMissing", "IsEmpty"};
    constexpr std::array layout{"Folders", "Links"};
    const auto [how, where] = form.param;
    return std::string(unreadable.at(static_cast<std::size_t>(how))) + "In" +
           layout.at(static_cast<std::size_t>(where));
}

INSTANTIATE_TEST_SUITE_P(InEveryForm, RecordedMachines,
                         testing::Combine(testing::Values(Unreadable::FailsToRead, Unreadable::IsFolder,
                                                          Unreadable::IsMissing, Unreadable::IsEmpty),
                                          testing::Values(Layout::Folders, Layout::Links)),
                         formName);

} // namespace
} // namespace quelby
