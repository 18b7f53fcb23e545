#include "cli/limit_command.h"

#include <ctime>

#include <fmt/chrono.h>

#include "base/arithmetic.h"
#include "base/utf8.h"
#include "cli/cycle_run.h"
#include "console/standard_output.h"
#include "helper/daemon_config.h"

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

// Writing is silent, so what was written is read again.
Result<void> handedOver(const Platform& platform, const PowerMonitor& monitor) {
    const auto text = platform.helperFolder.config();
    const auto config = text ? decodeDaemonConfig(*text) : std::nullopt;
    const bool same = config && config->chargeLimitEnabled == monitor.chargeLimitEnabled &&
                      config->chargeLimitPercent == truncated(monitor.chargeLimitPercent) &&
                      config->calibrationEnabled == monitor.calibrationEnabled &&
                      config->calibrationIntervalDays == monitor.calibrationIntervalDays;
    if (same) {
        return {};
    }
    return problem(
        fmt::format("cannot write the helper's settings to \"{}\"", platform.folders.helper().string()));
}

using Change = std::function<void(PowerMonitor& monitor)>;
using Describe = std::string (*)(const PowerMonitor& monitor);

Result<void> changeAndPrint(Machine& machine, const Change& change, Describe describe) {
    const auto platform = machine.platform();
    return runCycles(machine, platform, untilTheEnd(machine, [&](PowerMonitor& monitor) -> Result<void> {
                         if (change) {
                             change(monitor);
                             if (auto done = handedOver(platform, monitor); !done) {
                                 return done;
                             }
                         }
                         return writeToStandardOutput(describe(monitor));
                     }));
}

} // namespace

Result<void> runLimit(Machine& machine, const LimitCommand& command) {
    Change change;
    if (command.enable) {
        change = [&](PowerMonitor& monitor) { monitor.toggleChargeLimit(*command.enable); };
    } else if (command.percent) {
        change = [&](PowerMonitor& monitor) {
            monitor.setChargeLimit(static_cast<double>(*command.percent));
        };
    }
    return changeAndPrint(machine, change, limitText);
}

Result<void> runCalibration(Machine& machine, const CalibrationCommand& command) {
    Change change;
    if (command.enable) {
        change = [&](PowerMonitor& monitor) {
            monitor.updateCalibrationSettings(*command.enable, monitor.calibrationIntervalDays);
        };
    } else if (command.days) {
        change = [&](PowerMonitor& monitor) { monitor.updateCalibrationSettings(true, *command.days); };
    }
    return changeAndPrint(machine, change, calibrationText);
}

} // namespace quelby::cli
