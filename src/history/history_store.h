// The consumption history, in an SQLite database of the user's own.
//
//   readings     a row for each cycle (3 seconds), kept for 2 hours
//   minute_avg   the mean of each minute, kept for 48 hours
//   hour_avg     the mean of each hour (of its minutes' means), kept for 30 days
//
// Each row's key is its time in whole seconds since 1970-01-01 00:00 UTC: of the reading, of the minute's or
// of the hour's start. So a second reading within one second replaces the first.
//
// Minutes and hours are computed anew from all rows that are still there, once a minute at the most and
// driven by readings only; then what is too old is deleted. The oldest minute and the oldest hour are
// therefore in the end the mean of what was left of them. That is accepted. A reader sees
// such a run whole or not at all.
//
// How durable, how costly: the database is in write-ahead mode, and the log is flushed to the disk only when
// it is copied into the database, every four hundred pages (about five times an hour), not with each
// reading. A recorder that is killed loses at most the reading in flight. A machine that loses its power may
// lose the readings since the last copy, some ten minutes, but never the database. Pages are as small as
// SQLite has them, because each reading writes one: an hour of recording writes a megabyte.
//
// Who only reads opens the history anew for each answer. So a history that a recorder begins later is found,
// and SQLite is never told that a file is at rest which somebody has begun to write to.
//
// A store that cannot be opened is there nevertheless: it says why, records nothing, and gives empty answers.
// Nothing after the opening reports an error. One thread only.
#pragma once

#include <filesystem>

#include "base/problem.h"
#include "history/history_curve.h"
#include "history/sqlite/connection.h"
#include "history/time_range.h"
#include "platform/clock.h"

namespace quelby {

enum class HistoryAccess {
    readOnly,  // reads beside a recorder, and records nothing
    recording, // one process at a time; see RecorderLock
};

class HistoryStore {
public:
    // The history lies in `Quelby/history.db` below the application-support folder. The clock outlives the
    // store.
    HistoryStore(const std::filesystem::path& applicationSupport, Clock& clock, HistoryAccess access);

    // The problem names the file and says why it cannot be opened; a reader's may pass with time.
    [[nodiscard]] Result<void> opened() const;

    // What the whole system draws, in W; the battery's state of charge, in % of full; the load of the whole
    // machine, in %.
    void addReading(double watts, std::int64_t batteryPct, bool isCharging, double cpuUsage);

    // The curve of the range up to now, thinned for a chart.
    [[nodiscard]] HistoryResult loadData(TimeRange range);

    // Watt-hours since the start of the local day: each raw reading counts for 3 seconds, and each minute
    // that is older than the raw readings reach for 60. Readings that are past their 2 hours and not yet
    // deleted count twice.
    [[nodiscard]] double todayWh();

private:
    // A connection to ask: the recorder's own, or a reader's for one answer. None where there is no history.
    struct Asked {
        Connection ofTheAnswer;
        sqlite3* connection = nullptr;
    };

    [[nodiscard]] Asked ask() const;
    void createTables();
    void aggregateIfNeeded();

    Clock& clock_;
    HistoryAccess access_;
    std::filesystem::path file_;
    Result<Connection> db_; // the recorder's, or why there is none; empty for a reader
    Date lastAggregation_ = 0;
};

} // namespace quelby
