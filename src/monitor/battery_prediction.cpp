#include "monitor/battery_prediction.h"

#include <cmath>

#include <fmt/format.h>

#include "base/arithmetic.h"

namespace quelby {

namespace {

constexpr std::size_t fewestSamples = 3;

std::string hoursAndMinutes(double minutes) {
    const auto whole = truncated(minutes);
    return fmt::format("~{}h {}m", whole / 60, whole % 60);
}

std::string timeToFull(Int percent, double rate) {
    if (percent >= 100) {
        return "fully charged";
    }
    const double minutes = static_cast<double>(difference(100, percent)) * 60.0 / rate;
    return rate > 0 && minutes > 0 ? hoursAndMinutes(minutes) + " to full" : "charging...";
}

std::string timeToEmpty(Int percent, double rate) {
    const double minutes = static_cast<double>(percent) * 60.0 / std::fabs(rate);
    return rate < 0 && minutes > 0 ? hoursAndMinutes(minutes) + " remaining" : "very low";
}

Int changeOver(const std::deque<BatterySample>& samples) {
    return difference(samples.back().percent, samples.front().percent);
}

// In % per hour.
double rateOver(const std::deque<BatterySample>& samples) {
    const double elapsed = samples.back().time - samples.front().time;
    return static_cast<double>(changeOver(samples)) * 3600.0 / (elapsed > 1.0 ? elapsed : 1.0);
}

void showSystemEstimate(PublishedFields& fields) {
    const auto& estimate = fields.timeRemaining.get();
    fields.predictedTime = estimate == "--:--" ? "collecting data..." : fmt::format("~{} (system)", estimate);
    fields.batteryRateStr = "";
}

} // namespace

void sampleBattery(BatteryRecord& record, Date now, Int percent) {
    if (now - record.lastSampleTime < sampleInterval) {
        return;
    }
    record.batterySamples.push_back({now, percent});
    record.lastSampleTime = now;
    while (record.batterySamples.size() > maxSamples) {
        record.batterySamples.pop_front();
    }
}

void predictBattery(const BatteryRecord& record, PublishedFields& fields) {
    const auto& samples = record.batterySamples;
    if (samples.size() < fewestSamples) {
        showSystemEstimate(fields);
        return;
    }
    const auto change = changeOver(samples);
    const double rate = rateOver(samples);
    if (change == 0) {
        fields.predictedTime = "stable";
        fields.batteryRateStr = "0%/hr";
    } else if (change > 0) {
        fields.batteryRateStr = fmt::format("+{:.1f}%/hr", rate);
        fields.predictedTime = timeToFull(fields.batteryPercent, rate);
    } else {
        fields.batteryRateStr = fmt::format("{:.1f}%/hr", rate);
        fields.predictedTime = timeToEmpty(fields.batteryPercent, rate);
    }
}

std::optional<double> minutesToLimit(const BatteryRecord& record, const PublishedFields& fields) {
    const bool willStop = fields.chargeLimitEnabled && fields.daemonInstalled && fields.isCharging;
    if (!willStop || record.batterySamples.size() < fewestSamples) {
        return std::nullopt;
    }
    const double missing = fields.chargeLimitPercent - static_cast<double>(fields.batteryPercent.get());
    const double rate = rateOver(record.batterySamples);
    return rate > 0 && missing > 0 ? std::optional(missing * 60.0 / rate) : std::nullopt;
}

} // namespace quelby
