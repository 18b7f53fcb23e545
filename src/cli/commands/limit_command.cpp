#include "cli/commands/commands.h"

#include <ctime>

#include <fmt/chrono.h>

#include "base/arithmetic.h"
#include "base/utf8.h"
#include "cli/commands/cycle_run.h"
#include "console/standard_output.h"
#include "monitor/preference_keys.h"
#include "ui/presentation/cards/dialogs.h"

namespace quelby::cli {

namespace {

std::string_view onOrOff(bool enabled) {
    return enabled ? "on" : "off";
}

std::string helperText(const PowerMonitor& monitor) {
    return monitor.daemonInstalled ? "" : ", but the helper is not installed";
}

std::string limitText(const PowerMonitor& monitor) {
    const auto& status = monitor.chargeLimitStatus.get();
    return fmt::format("charge limit {}, {}%{}{}{}\n", onOrOff(monitor.chargeLimitEnabled),
                       truncated(monitor.chargeLimitPercent), status.empty() ? "" : ": ", printable(status),
                       monitor.chargeLimitEnabled ? helperText(monitor) : "");
}

std::string lastCalibrationText(const PowerMonitor& monitor) {
    const auto& date = monitor.lastCalibrationDate.get();
    if (!date) {
        return "never done";
    }
    const std::time_t seconds = truncated(*date);
    std::tm day{};
    return localtime_r(&seconds, &day) == nullptr ? "done" : fmt::format("last done {:%Y-%m-%d}", day);
}

std::string calibrationText(const PowerMonitor& monitor) {
    return fmt::format("calibration {}, every {} days, {}{}\n", onOrOff(monitor.calibrationEnabled),
                       monitor.calibrationIntervalDays.get(), lastCalibrationText(monitor),
                       monitor.calibrationEnabled ? helperText(monitor) : "");
}

using Change = std::function<Result<void>(PowerMonitor& monitor)>;

Result<void> leaveAsItIs(PowerMonitor& /*monitor*/) {
    return {};
}

using Describe = std::string (*)(const PowerMonitor& monitor);

Result<void> changeAndPrint(Machine& machine, const Change& change, Describe describe) {
    return runCycles(machine, machine.platform(), untilTheEnd(machine, [&](PowerMonitor& monitor) {
                         return change(monitor).and_then(
                             [&] { return writeToStandardOutput(describe(monitor)); });
                     }));
}

// The tip comes only once, so it is shown where it is raised. A limit that could not be switched on leaves it
// to the next time.
Result<void> switchLimit(PowerMonitor& monitor, Preferences& preferences, bool enabled) {
    auto told = monitor.toggleChargeLimit(enabled);
    if (!monitor.shouldShowChargingTip) {
        return told;
    }
    if (told) {
        writeToStandardError(fmt::format("{}\n", chargingTip(systemWords()).message));
    } else {
        preferences.remove(preference_keys::hasShownChargingTip);
    }
    return told;
}

} // namespace

Result<void> runLimit(Machine& machine, const LimitCommand& command) {
    Change change = leaveAsItIs;
    if (command.enable) {
        change = [&](PowerMonitor& monitor) {
            return switchLimit(monitor, *machine.platform().preferences, *command.enable);
        };
    } else if (command.percent) {
        change = [&](PowerMonitor& monitor) {
            return monitor.setChargeLimit(static_cast<double>(*command.percent));
        };
    }
    return changeAndPrint(machine, change, limitText);
}

Result<void> runCalibration(Machine& machine, const CalibrationCommand& command) {
    Change change = leaveAsItIs;
    if (command.enable) {
        change = [&](PowerMonitor& monitor) {
            return monitor.updateCalibrationSettings(*command.enable, monitor.calibrationIntervalDays);
        };
    } else if (command.days) {
        change = [&](PowerMonitor& monitor) {
            return monitor.updateCalibrationSettings(true, *command.days);
        };
    }
    return changeAndPrint(machine, change, calibrationText);
}

} // namespace quelby::cli
