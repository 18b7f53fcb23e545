#include "cli/output/metrics_text.h"

#include <cmath>

#include <fmt/format.h>

#include "base/version.h"

namespace quelby::cli {

namespace {

constexpr double coulombsPerMilliampereHour = 3.6;
constexpr double joulesPerWattHour = 3600;
constexpr double secondsPerDay = 86400;

// The text as it grows. A family is a name with its help, and then its samples.
class Metrics {
public:
    // The unit is the last word of the name, or nothing where there is none.
    void family(std::string_view name, std::string_view unit, std::string_view help) {
        name_ = name;
        text_ += fmt::format("# TYPE quelby_{} gauge\n", name);
        if (!unit.empty()) {
            text_ += fmt::format("# UNIT quelby_{} {}\n", name, unit);
        }
        text_ += fmt::format("# HELP quelby_{} {}\n", name, help);
    }

    void sample(double value, std::string_view labels = "") {
        if (std::isfinite(value)) {
            text_ += fmt::format("quelby_{}{} {}\n", name_, labels, value);
        }
    }

    void one(std::string_view name, std::string_view unit, std::string_view help, double value) {
        if (std::isfinite(value)) {
            family(name, unit, help);
            sample(value);
        }
    }

    void ratio(std::string_view name, std::string_view help, double percent) {
        one(name, "ratio", help, percent / 100);
    }

    void flag(std::string_view name, std::string_view help, bool value) {
        one(name, "", help, value ? 1 : 0);
    }

    [[nodiscard]] std::string end() { return std::move(text_) + "# EOF\n"; }

private:
    std::string_view name_;
    std::string text_;
};

void addBattery(Metrics& metrics, const PublishedFields& fields) {
    const auto coulombs = [](Int milliampereHours) {
        return static_cast<double>(milliampereHours) * coulombsPerMilliampereHour;
    };
    metrics.ratio("battery_level_ratio", "State of charge.",
                  static_cast<double>(fields.batteryPercent.get()));
    metrics.flag("battery_charging", "Whether the battery says that it is charging.", fields.isCharging);
    metrics.flag("battery_full", "Whether the battery says that it is full.", fields.fullyCharged);
    metrics.ratio("battery_health_ratio", "Full charge relative to that of a new battery.",
                  static_cast<double>(fields.batteryHealth.get()));
    metrics.one("battery_design_charge_coulombs", "coulombs", "Charge of the new battery when full.",
                coulombs(fields.designCapacity));
    metrics.one("battery_full_charge_coulombs", "coulombs", "Charge of the battery when full, at present.",
                coulombs(fields.rawMaxCapacity));
    metrics.one("battery_charge_coulombs", "coulombs", "Charge that is left.",
                coulombs(fields.rawCurrentCapacity));
    metrics.one("battery_cycles", "", "Charge cycles of the battery so far.",
                static_cast<double>(fields.cycleCount.get()));
    metrics.one("battery_power_watts", "watts", "Power at the battery, measured; never negative.",
                fields.realWatts);
    metrics.one("battery_voltage_volts", "volts", "Voltage of the battery.", fields.voltage);
    metrics.one("battery_current_amperes", "amperes", "Current of the battery, negative while it discharges.",
                fields.amperage / 1000);
    metrics.one("battery_temperature_celsius", "celsius",
                "Temperature of the battery; 0 where it tells none.", fields.batteryTemp);
    metrics.one("battery_charge_power_watts", "watts", "Power that goes into the battery.",
                fields.chargePower);
}

void addPower(Metrics& metrics, const PublishedFields& fields) {
    metrics.flag("external_power", "Whether external power is connected.", fields.isPluggedIn);
    metrics.one("power_watts", "watts",
                "Power of the whole computer, measured on battery and else estimated.", fields.totalPower);
    metrics.one("adapter_power_watts", "watts", "Power drawn from the adapter, estimated.", fields.acTotal);
    metrics.family("component_power_watts", "watts", "Estimated share of a component in the power.");
    metrics.sample(fields.cpuPower, R"({component="cpu"})");
    metrics.sample(fields.gpuPower, R"({component="graphics"})");
    metrics.sample(fields.memPower, R"({component="memory"})");
    metrics.sample(fields.diskPower, R"({component="storage"})");
    metrics.sample(fields.netPower, R"({component="network"})");
    metrics.ratio("cpu_usage_ratio", "Load of all processors together.", fields.cpuUsage);
    metrics.ratio("efficiency_ratio", "The dashboard's score of how little power is used.",
                  static_cast<double>(fields.efficiency.get()));
    metrics.family("process_power_watts", "watts", "Estimated power of the busiest processes, by rank.");
    int rank = 0;
    for (const auto& process : fields.topProcesses.get()) {
        metrics.sample(process.estimatedWatts, fmt::format(R"({{rank="{}"}})", ++rank));
    }
}

void addHistory(Metrics& metrics, const PublishedFields& fields) {
    metrics.one("today_energy_joules", "joules", "Energy used since midnight, as far as it was recorded.",
                fields.todayWh * joulesPerWattHour);
    metrics.family("history_power_watts", "watts", "Power over the range of the history that is shown.");
    const auto range = rawValue(fields.historyRange.get());
    const auto add = [&](double value, std::string_view statistic) {
        metrics.sample(value, fmt::format(R"({{range="{}",statistic="{}"}})", range, statistic));
    };
    add(fields.historyAvg, "average");
    add(fields.historyMin, "minimum");
    add(fields.historyMax, "maximum");
}

void addHelper(Metrics& metrics, const PublishedFields& fields) {
    metrics.flag("helper_installed", "Whether the charge-limit helper runs.", fields.daemonInstalled);
    metrics.flag("charge_limit_enabled", "Whether a limit of the charge is wished for.",
                 fields.chargeLimitEnabled);
    metrics.ratio("charge_limit_ratio", "The limit that is wished for.", fields.chargeLimitPercent);
    metrics.flag("charging_inhibited", "Whether the helper holds charging off.", fields.chargingInhibited);
    metrics.flag("calibration_enabled", "Whether calibrations are wished for.", fields.calibrationEnabled);
    metrics.flag("calibration_active", "Whether a calibration is under way.", fields.calibrationActive);
    metrics.one("calibration_interval_seconds", "seconds", "Wished time between two calibrations.",
                static_cast<double>(fields.calibrationIntervalDays.get()) * secondsPerDay);
    if (const auto last = fields.lastCalibrationDate.get()) {
        metrics.one("last_calibration_timestamp_seconds", "seconds", "When the last calibration ended.",
                    *last);
    }
}

} // namespace

std::string metricsText(const PublishedFields& fields) {
    Metrics metrics;
    metrics.family("build_info", "", "The version of Quelby that tells this.");
    metrics.sample(1, fmt::format(R"({{version="{}"}})", version()));
    metrics.flag("battery_present", "Whether this computer has a battery.", fields.hasBattery);
    if (fields.hasBattery) {
        addBattery(metrics, fields);
    }
    addPower(metrics, fields);
    addHistory(metrics, fields);
    addHelper(metrics, fields);
    return metrics.end();
}

} // namespace quelby::cli
