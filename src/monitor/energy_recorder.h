// Adds up where the energy goes, cycle by cycle, and has it kept once a minute, and when it ends.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "history/energy/energy_writer.h"
#include "monitor/battery_moment.h"
#include "monitor/published_fields.h"
#include "monitor/session_watch.h"

namespace quelby {

// Beside the one recorder of the history, and never without it.
class EnergyRecorder {
public:
    // The clock outlives the recorder.
    EnergyRecorder(const std::filesystem::path& applicationSupport, Clock& clock);
    EnergyRecorder(const EnergyRecorder&) = delete;
    EnergyRecorder& operator=(const EnergyRecorder&) = delete;
    EnergyRecorder(EnergyRecorder&&) = delete;
    EnergyRecorder& operator=(EnergyRecorder&&) = delete;
    ~EnergyRecorder();

    // One cycle with its figures and its listing of applications, or of processes. A cycle counts for three
    // seconds, as the history counts it for the energy of today, and one within the same second as another
    // for nothing.
    void addCycle(const PublishedFields& fields, std::optional<std::string_view> listing);

    // Keeps what has been added up so far.
    void write();

private:
    void followBattery(const PublishedFields& fields, const std::optional<BatteryMoment>& before,
                       const BatteryMoment& moment);
    void addEnergy(const PublishedFields& fields, std::optional<std::string_view> listing);
    void noticeDay(const PublishedFields& fields);
    [[nodiscard]] HourOfEnergy& hourOf(Date now, bool sinceUnplugged);
    void forgetOldest();

    Clock& clock_;
    EnergyWriter writer_;
    SessionWatch sessions_;
    std::optional<BatteryMoment> before_;
    EnergyBatch batch_;
    std::optional<BatteryDay> day_; // as it was told last
    Date lastWrite_ = 0;
};

} // namespace quelby
