#include "cli/commands/commands.h"

#include <algorithm>

#include "cli/commands/cycle_run.h"
#include "cli/output/battery_records_output.h"
#include "cli/output/energy_output.h"
#include "cli/terminal/device/terminal_screen.h"
#include "console/standard_output.h"
#include "history/energy/energy_reader.h"
#include "monitor/battery_moment.h"
#include "monitor/battery_reading.h"
#include "platform/local_day.h"

namespace quelby::cli {

namespace {

// What the battery holds now, to compare with.
std::optional<double> fullCharge(const Platform& platform) {
    PublishedFields fields;
    publishBatteryReading(platform.battery->readBattery(), fields);
    return fullChargeWattHours(fields);
}

void addRows(EnergyOutput& output, const EnergyReader& reader, const EnergyCommand& command) {
    switch (command.by) {
    case EnergyGrouping::app:
        output.named = reader.byApp(command.range);
        break;
    case EnergyGrouping::component:
        output.named = reader.byComponent(command.range);
        break;
    case EnergyGrouping::hour:
        output.timed = reader.byHour(command.range);
        break;
    case EnergyGrouping::day:
        output.timed = byDay(reader.byHour(command.range), startOfLocalDay);
        break;
    }
}

int widthOfOutput() {
    return std::clamp(outputColumns(), 40, 120);
}

// Prints what the reader knows of the end of a recording, or of now.
template <typename Ask, typename Write>
Result<void> tell(const Machine& machine, const Platform& platform, const Ask& ask, const Write& write) {
    playToTheEnd(machine, platform);
    const EnergyReader reader(platform.folders->applicationSupport(), *platform.clock);
    if (auto opened = reader.opened(); !opened) {
        return opened;
    }
    return writeToStandardOutput(write(ask(reader)));
}

} // namespace

Result<void> runEnergy(Machine& machine, const EnergyCommand& command) {
    const auto platform = machine.platform();
    const auto ask = [&](const EnergyReader& reader) {
        EnergyOutput output{.range = command.range, .by = command.by, .fullCharge = fullCharge(platform)};
        addRows(output, reader, command);
        return output;
    };
    return tell(machine, platform, ask, [&](const EnergyOutput& output) {
        return energyInForm(output, command.form, widthOfOutput());
    });
}

Result<void> runSleeps(Machine& machine, const SleepsCommand& command) {
    return tell(
        machine, machine.platform(), [](const EnergyReader& reader) { return reader.sleeps(); },
        [&](const std::vector<Sleep>& sleeps) { return sleepsInForm(sleeps, command.form); });
}

Result<void> runSessions(Machine& machine, const SessionsCommand& command) {
    return tell(
        machine, machine.platform(), [](const EnergyReader& reader) { return reader.sessions(); },
        [&](const std::vector<Session>& sessions) { return sessionsInForm(sessions, command.form); });
}

Result<void> runHealth(Machine& machine, const HealthCommand& command) {
    return tell(
        machine, machine.platform(), [](const EnergyReader& reader) { return reader.batteryDays(); },
        [&](const std::vector<BatteryDay>& days) { return healthInForm(days, command.form); });
}

} // namespace quelby::cli
