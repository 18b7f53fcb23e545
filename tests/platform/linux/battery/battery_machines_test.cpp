// Recorded machines, each with the outcome that it must give and what else is accepted. In the file an
// attribute that could not be read is null, and so is a figure that is not known.
#include "platform/linux/battery/sysfs_battery_source.h"

#include <charconv>
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

template <typename Value>
Json jsonOf(const std::optional<Value>& value) {
    return value ? Json(*value) : Json();
}

Json jsonOf(const PublishedBattery& battery) {
    return {{"hasBattery", true},
            {"designCapacity", jsonOf(battery.designCapacity)},
            {"rawMaxCapacity", jsonOf(battery.rawMaxCapacity)},
            {"rawCurrentCapacity", jsonOf(battery.rawCurrentCapacity)},
            {"cycleCount", jsonOf(battery.cycleCount)},
            {"batteryPercent", jsonOf(battery.percent)},
            {"isCharging", battery.isCharging},
            {"isPluggedIn", battery.isPluggedIn},
            {"fullyCharged", battery.fullyCharged},
            {"voltage", jsonOf(battery.millivolts)},
            {"amperage", jsonOf(battery.milliamperes)},
            {"realWatts", jsonOf(battery.watts)},
            {"batteryTemp", jsonOf(battery.centidegrees)},
            {"timeRemaining", battery.timeRemaining}};
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
    if (got == expected || tolerance.value("any", false)) {
        return true;
    }
    if (tolerance.contains("anyOf")) {
        return std::find(tolerance["anyOf"].begin(), tolerance["anyOf"].end(), got) !=
               tolerance["anyOf"].end();
    }
    if (tolerance.contains("minMinutes")) {
        return isTimeAccepted(got, tolerance);
    }
    if (got.is_null()) {
        return tolerance.value("null", false);
    }
    return tolerance.contains("min") && got >= tolerance["min"] && got <= tolerance["max"];
}

void expectOutcome(const Json& machine, const BatteryReading& reading) {
    const auto& expect = machine.at("expect");
    if (!expect.at("hasBattery")) {
        EXPECT_EQ(reading, BatteryReading(NoBattery{}));
        return;
    }
    const auto* table = std::get_if<PropertyTable>(&reading);
    ASSERT_NE(table, nullptr);
    const auto got = jsonOf(publishedFrom(*table));
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
