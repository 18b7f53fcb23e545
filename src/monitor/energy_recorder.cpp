#include "monitor/energy_recorder.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <utility>

#include "base/arithmetic.h"
#include "base/cycle_interval.h"
#include "monitor/energy_split.h"

namespace quelby {

namespace {

constexpr double writeInterval = 60; // seconds
constexpr double hour = 3600;
constexpr double day = 86400;
constexpr double hoursOfACycle = std::chrono::duration<double, std::ratio<3600>>(cycleInterval).count();

// Of what could not be written, so that a full disk does not fill the memory.
constexpr std::size_t mostHours = 4;
constexpr std::size_t mostRecords = 30;

template <typename T>
void keepLast(std::vector<T>& list, std::size_t count) {
    if (list.size() > count) {
        list.erase(list.begin(), list.end() - static_cast<std::ptrdiff_t>(count));
    }
}

} // namespace

EnergyRecorder::EnergyRecorder(const std::filesystem::path& applicationSupport, Clock& clock)
    : clock_(clock), writer_(applicationSupport), sessions_(writer_.lastSession()) {}

EnergyRecorder::~EnergyRecorder() {
    try {
        write();
    } catch (const std::bad_alloc&) { // then the last minute is lost
    }
}

void EnergyRecorder::addCycle(const PublishedFields& fields, std::optional<std::string_view> listing) {
    const auto moment = batteryMoment(fields, clock_);
    if (before_ && truncated(before_->time) == truncated(moment.time)) {
        return;
    }
    const auto before = std::exchange(before_, moment); // so that a cycle that fails is not counted twice
    followBattery(fields, before, moment);
    addEnergy(fields, listing);
    noticeDay(fields);
    if (std::abs(moment.time - lastWrite_) >= writeInterval) {
        write();
    }
}

void EnergyRecorder::followBattery(const PublishedFields& fields, const std::optional<BatteryMoment>& before,
                                   const BatteryMoment& moment) {
    const auto sleep = before ? sleepBetween(*before, moment) : std::nullopt;
    const bool unplugged = sessions_.follow({.kind = presentSession(fields),
                                             .calibrating = fields.calibrationActive,
                                             .now = moment.time,
                                             .secondsSince = before ? secondsBetween(*before, moment) : 0,
                                             .percent = fields.batteryPercent,
                                             .wattHours = fields.realWatts * hoursOfACycle,
                                             .wattHoursAsleep = sleep ? sleep->wattHours.value_or(0) : 0});
    if (sleep) {
        batch_.sleeps.push_back(*sleep);
    }
    if (unplugged) {
        batch_.unpluggedAnew = true;
        for (auto& part : batch_.hours) {
            part.sinceUnplugged = false;
        }
    }
}

void EnergyRecorder::addEnergy(const PublishedFields& fields, std::optional<std::string_view> listing) {
    if (!std::isfinite(fields.totalPower.get()) || !std::isfinite(fields.cpuPower.get())) {
        return;
    }
    auto& present = hourOf(clock_.now(), presentSession(fields) == SessionKind::discharge);
    addByApp(present.apps, listing, fields, hoursOfACycle);
    addByComponent(present.components, fields, hoursOfACycle);
}

// Hours are counted from the start of the local day, so that a day is made of whole ones in every time zone.
HourOfEnergy& EnergyRecorder::hourOf(Date now, bool sinceUnplugged) {
    const auto dayStart = clock_.startOfDay();
    const auto start = truncated(dayStart + std::floor((now - dayStart) / hour) * hour);
    const auto known =
        std::find_if(batch_.hours.rbegin(), batch_.hours.rend(), [&](const HourOfEnergy& part) {
            return part.hour == start && part.sinceUnplugged == sinceUnplugged;
        });
    if (known != batch_.hours.rend()) {
        return *known;
    }
    batch_.hours.push_back({.hour = start, .sinceUnplugged = sinceUnplugged});
    return batch_.hours.back();
}

void EnergyRecorder::noticeDay(const PublishedFields& fields) {
    const auto capacity = fullCapacity(fields);
    if (!capacity) {
        return;
    }
    const auto start = truncated(std::floor(clock_.now() / day) * day);
    const double temperature = fields.batteryTemp;
    BatteryDay today{.day = start, .fullCapacity = *capacity, .cycleCount = fields.cycleCount};
    if (fields.designCapacity > 0) {
        today.designCapacity = fields.designCapacity;
    }
    if (day_ && day_->day == start) {
        today.maxTemperature = day_->maxTemperature;
    }
    if (temperature != 0) { // which stands for a battery that tells none
        today.maxTemperature = std::max(today.maxTemperature.value_or(temperature), temperature);
    }
    if (today == day_) {
        return;
    }
    day_ = today;
    if (batch_.days.empty() || batch_.days.back().day != start) {
        batch_.days.push_back(today);
    } else {
        batch_.days.back() = today;
    }
}

void EnergyRecorder::write() {
    const auto now = clock_.now();
    lastWrite_ = now;
    auto changed = sessions_.takeChanged();
    batch_.sessions.insert(batch_.sessions.end(), changed.begin(), changed.end());
    if (!writer_.isOpen() || writer_.write(batch_, now)) {
        batch_ = {};
    } else {
        forgetOldest();
    }
}

void EnergyRecorder::forgetOldest() {
    keepLast(batch_.hours, mostHours);
    keepLast(batch_.sleeps, mostRecords);
    keepLast(batch_.sessions, mostRecords);
    keepLast(batch_.days, mostRecords);
}

} // namespace quelby
