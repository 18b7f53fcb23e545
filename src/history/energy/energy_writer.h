// Keeps where the energy went, in tables of its own beside those of the consumption history, which an older
// program passes over:
//
//   app_energy         watt-hours of each hour by application, kept for 30 days
//   component_energy   the same energy by component
//   sleeps             the last thirty
//   sessions           the last thirty times on battery, of charging, and of calibration, each
//   battery_days       a row for each day of UTC, kept for good
//
// An hour has 200 applications at the most, the largest; the others stand together under "other". What was
// used since the cable was pulled last stands in rows of its own, until it is pulled again.
//
// The file, how durable it is, and who may write to it: see HistoryStore. Nothing reports an error; where
// the file cannot be opened, nothing is kept. One thread only.
#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "base/date.h"
#include "history/energy/energy_records.h"
#include "history/sqlite/connection.h"
#include "history/sqlite/prepared_statements.h"

namespace quelby {

// What is written at once: all of it or nothing.
struct EnergyBatch {
    bool unpluggedAnew =
        false; // what was used since the cable was pulled before becomes like all else, first of all
    std::vector<HourOfEnergy> hours;
    std::vector<Sleep> sleeps;
    std::vector<Session> sessions; // each takes the place of the one of its kind with the same start
    std::vector<BatteryDay> days;  // each takes the day's place; the higher temperature stays
};

class EnergyWriter {
public:
    // The history itself has been opened before: it says how the file is written to.
    explicit EnergyWriter(const std::filesystem::path& applicationSupport);

    [[nodiscard]] bool isOpen() const { return db_ != nullptr; }

    // Whether it was written; what was not may be handed over again. Then removes what is too old.
    [[nodiscard]] bool write(const EnergyBatch& batch, Date now);

    // The time on battery or of charging that ended last, if any is known.
    [[nodiscard]] std::optional<Session> lastSession() const;

private:
    Connection db_; // empty where there is none
    PreparedStatements statements_;
};

} // namespace quelby
