#pragma once

#include <numeric>

#include <gtest/gtest.h>

#include "history/energy/energy_reader.h"
#include "history/energy/energy_writer.h"
#include "history/history_file.h"
#include "history/history_store.h"
#include "history/support/set_clock.h"
#include "history/support/tables.h"
#include "support/temporary_folder.h"

namespace quelby {

constexpr std::int64_t anHour = 3600;

// Tables of energy in a folder of their own, at noon of a day that began at midnight.
class EnergyTest : public testing::Test {
protected:
    void write(const EnergyBatch& batch) { EXPECT_TRUE(writer.write(batch, clock.time)); }

    void add(std::int64_t start, EnergyByName apps, bool sinceUnplugged = false) {
        const double sum = std::accumulate(apps.begin(), apps.end(), 0.0,
                                           [](double total, const auto& app) { return total + app.second; });
        write({.hours = {{.hour = start,
                          .sinceUnplugged = sinceUnplugged,
                          .apps = apps,
                          .components = {{"cpu", sum}}}}});
    }

    [[nodiscard]] double sumOf(EnergyRange range) const {
        double sum = 0;
        for (const auto& app : reader.byApp(range)) {
            sum += app.wattHours;
        }
        return sum;
    }

    TemporaryFolder folder;
    SetClock clock;
    HistoryStore history{folder.path(), clock, HistoryAccess::recording};
    EnergyWriter writer{folder.path()};
    EnergyReader reader{folder.path(), clock};
    std::filesystem::path file = historyFile(folder.path());
};

} // namespace quelby
