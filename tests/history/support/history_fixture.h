#pragma once

#include <gtest/gtest.h>

#include "history/history_file.h"
#include "history/history_store.h"
#include "set_clock.h"
#include "support/temporary_folder.h"
#include "tables.h"

namespace quelby {

// A recording store in a folder of its own.
class HistoryTest : public testing::Test {
protected:
    // The clock then stands at that time.
    void recordAt(double time, double watts = 10, std::int64_t batteryPct = 50) {
        clock.time = time;
        store->addReading(watts, batteryPct, false, 25.0);
    }

    void recordEvery(double step, double from, double to, double watts = 10) {
        for (double time = from; time < to; time += step) {
            recordAt(time, watts);
        }
    }

    void openAgain() {
        store.reset();
        store.emplace(folder.path(), clock, HistoryAccess::recording);
    }

    [[nodiscard]] Tables tables() const { return Database(file).tables(); }

    TemporaryFolder folder;
    SetClock clock;
    std::filesystem::path file = historyFile(folder.path());
    std::optional<HistoryStore> store{std::in_place, folder.path(), clock, HistoryAccess::recording};
};

} // namespace quelby
