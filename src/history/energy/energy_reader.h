// Asks where the energy went, beside a recorder or without one. Neither the history nor anything else is
// changed.
#pragma once

#include <filesystem>
#include <vector>

#include "base/problem.h"
#include "history/energy/energy_range.h"
#include "history/energy/energy_records.h"
#include "history/sqlite/connection.h"
#include "platform/clock.h"

namespace quelby {

// The hours of each day together. `startOfDay` gives the start of the day that a moment belongs to.
[[nodiscard]] std::vector<TimedEnergy> byDay(const std::vector<TimedEnergy>& hours,
                                             Date (*startOfDay)(Date moment));

// What is known at one moment.
struct EnergyReport {
    EnergyRange range = EnergyRange::today;
    std::vector<NamedEnergy> apps; // the largest first
    std::vector<Sleep> sleeps;     // latest first
    std::vector<Session> sessions; // latest first
    std::vector<BatteryDay> days;  // oldest first
};

// The history is opened anew for each answer, so what is recorded later is found. Where there is none, or
// where no program has kept such tables in it yet, answers are empty.
//
// Energy is kept by hours: a range begins with the first hour that reaches into it, and ends now. That since
// the cable was pulled is exact; plugged in, it is that of the last time on battery.
class EnergyReader {
public:
    // The clock outlives the reader.
    EnergyReader(const std::filesystem::path& applicationSupport, Clock& clock);

    // The problem names the file and says why it cannot be opened.
    [[nodiscard]] Result<void> opened() const;

    // The largest first.
    [[nodiscard]] std::vector<NamedEnergy> byApp(EnergyRange range) const;
    [[nodiscard]] std::vector<NamedEnergy> byComponent(EnergyRange range) const;

    // Oldest first; those in which nothing was used are left out.
    [[nodiscard]] std::vector<TimedEnergy> byHour(EnergyRange range) const;

    // Latest first.
    [[nodiscard]] std::vector<Sleep> sleeps() const;
    [[nodiscard]] std::vector<Session> sessions() const;

    // Oldest first.
    [[nodiscard]] std::vector<BatteryDay> batteryDays() const;

    [[nodiscard]] EnergyReport report(EnergyRange range) const;

private:
    [[nodiscard]] Connection open() const;
    [[nodiscard]] std::string within(EnergyRange range) const;
    [[nodiscard]] std::vector<NamedEnergy> byName(const char* table, EnergyRange range) const;

    std::filesystem::path file_;
    Clock& clock_;
};

} // namespace quelby
