#include "history/history_store.h"

#include <algorithm>
#include <limits>

#include <fmt/format.h>

#include "base/arithmetic.h"
#include "base/cycle_interval.h"
#include "history/history_file.h"
#include "history/sqlite/statement.h"
#include "history/sqlite/transaction.h"

namespace quelby {

namespace {

constexpr double rawRetention = 7200;        // seconds
constexpr double minuteRetention = 172800;   // two days
constexpr double hourRetention = 2592000;    // thirty days
constexpr double aggregationInterval = 60.0; // seconds

constexpr const char* schema = "CREATE TABLE IF NOT EXISTS readings (\n"
                               "    timestamp INTEGER PRIMARY KEY,\n"
                               "    watts REAL NOT NULL,\n"
                               "    battery_pct INTEGER,\n"
                               "    is_charging INTEGER,\n"
                               "    cpu_usage REAL\n"
                               ");\n"
                               "CREATE TABLE IF NOT EXISTS minute_avg (\n"
                               "    timestamp INTEGER PRIMARY KEY,\n"
                               "    watts REAL NOT NULL,\n"
                               "    battery_pct REAL\n"
                               ");\n"
                               "CREATE TABLE IF NOT EXISTS hour_avg (\n"
                               "    timestamp INTEGER PRIMARY KEY,\n"
                               "    watts REAL NOT NULL,\n"
                               "    battery_pct REAL\n"
                               ");";

// Each reading, of some thirty bytes, puts a whole page into the log. A history that is there already keeps its
// pages. The log is copied after so many pages: some ten minutes.
constexpr const char* smallPages = "PRAGMA page_size=512;";
constexpr const char* shortLog = "PRAGMA wal_autocheckpoint=400;";

std::string_view tableOf(TimeRange range) {
    switch (range) {
    case TimeRange::thirtyMinutes:
    case TimeRange::oneHour:
        return "readings";
    case TimeRange::twentyFourHours:
        return "minute_avg";
    case TimeRange::sevenDays:
        return "hour_avg";
    }
    return {};
}

std::string minuteAggregation(std::int64_t minuteBound) {
    return fmt::format("INSERT OR REPLACE INTO minute_avg (timestamp, watts, battery_pct)\n"
                       "SELECT (timestamp / 60) * 60, AVG(watts), AVG(battery_pct)\n"
                       "FROM readings\n"
                       "WHERE timestamp > {}\n"
                       "GROUP BY timestamp / 60",
                       minuteBound);
}

std::string hourAggregation(std::int64_t hourBound) {
    return fmt::format("INSERT OR REPLACE INTO hour_avg (timestamp, watts, battery_pct)\n"
                       "SELECT (timestamp / 3600) * 3600, AVG(watts), AVG(battery_pct)\n"
                       "FROM minute_avg\n"
                       "WHERE timestamp > {}\n"
                       "GROUP BY timestamp / 3600",
                       hourBound);
}

std::string pruning(std::int64_t rawBound, std::int64_t minuteBound, std::int64_t hourBound) {
    return fmt::format("DELETE FROM readings WHERE timestamp < {};\n"
                       "DELETE FROM minute_avg WHERE timestamp < {};\n"
                       "DELETE FROM hour_avg WHERE timestamp < {};",
                       rawBound, minuteBound, hourBound);
}

std::int32_t in32Bits(std::int64_t value) {
    using Range = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, Range::min(), Range::max()));
}

// The first column of the first row, or 0.
double sum(Statement& statement) {
    return statement.step() ? statement.number(0) : 0.0;
}

} // namespace

HistoryStore::HistoryStore(const std::filesystem::path& applicationSupport, Clock& clock,
                           HistoryAccess access)
    : clock_(clock)
    , access_(access)
    , file_(historyFile(applicationSupport))
    , db_(access == HistoryAccess::recording ? openForRecording(file_) : Connection{}) {
    if (access_ == HistoryAccess::recording && db_) {
        execute(db_->get(), smallPages);
        execute(db_->get(), "PRAGMA journal_mode=WAL;");
        execute(db_->get(), "PRAGMA synchronous=NORMAL;");
        execute(db_->get(), shortLog);
        createTables();
    }
}

Result<void> HistoryStore::opened() const {
    const auto forget = [](const Connection& /*connection*/) {};
    return access_ == HistoryAccess::recording ? db_.map(forget) : openForReading(file_).map(forget);
}

HistoryStore::Asked HistoryStore::ask() const {
    if (access_ == HistoryAccess::recording) {
        return {{}, db_ ? db_->get() : nullptr};
    }
    auto opened = openForReading(file_).value_or(Connection{});
    auto* const connection = opened.get();
    return {std::move(opened), connection};
}

void HistoryStore::createTables() {
    execute(db_->get(), schema);
}

void HistoryStore::addReading(double watts, std::int64_t batteryPct, bool isCharging, double cpuUsage) {
    if (!db_ || access_ != HistoryAccess::recording) {
        return;
    }
    const auto timestamp = truncated(clock_.now());
    {
        Statement insertion(db_->get(),
                            "INSERT OR REPLACE INTO readings (timestamp, watts, battery_pct, is_charging, "
                            "cpu_usage) VALUES (?, ?, ?, ?, ?)");
        insertion.bind(1, timestamp);
        insertion.bind(2, watts);
        insertion.bind(3, in32Bits(batteryPct));
        insertion.bind(4, isCharging ? 1 : 0);
        insertion.bind(5, cpuUsage);
        static_cast<void>(insertion.step());
    }
    aggregateIfNeeded();
}

void HistoryStore::aggregateIfNeeded() {
    const double now = clock_.now();
    if (now - lastAggregation_ < aggregationInterval) {
        return;
    }
    lastAggregation_ = now;
    if (!db_) {
        return;
    }
    const auto minuteBound = truncated(now - minuteRetention);
    const auto hourBound = truncated(now - hourRetention);
    const auto rawBound = truncated(now - rawRetention);
    Transaction run(db_->get(), "BEGIN");
    execute(db_->get(), minuteAggregation(minuteBound).c_str());
    execute(db_->get(), hourAggregation(hourBound).c_str());
    execute(db_->get(), pruning(rawBound, minuteBound, hourBound).c_str());
    static_cast<void>(run.commit()); // or else it is taken back
}

HistoryResult HistoryStore::loadData(TimeRange range) {
    const auto history = ask();
    if (history.connection == nullptr) {
        return {};
    }
    const auto cutoff = truncated(clock_.now() - seconds(range));
    Statement query(history.connection,
                    fmt::format("SELECT timestamp, watts FROM {} WHERE timestamp > ? ORDER BY timestamp",
                                tableOf(range)));
    query.bind(1, cutoff);
    std::vector<HistoryDataPoint> points;
    while (query.step()) {
        points.push_back({query.integer(0), query.number(1)});
    }
    return withStatistics(thinned(std::move(points)));
}

double HistoryStore::todayWh() {
    const auto history = ask();
    if (history.connection == nullptr) {
        return 0.0;
    }
    const auto dayStart = truncated(clock_.startOfDay());
    Statement raw(history.connection,
                  fmt::format("SELECT SUM(watts * {:.1f} / 3600.0) FROM readings WHERE timestamp > ?",
                              std::chrono::duration<double>(cycleInterval).count()));
    raw.bind(1, dayStart);
    double total = sum(raw);
    const auto rawStart = truncated(clock_.now() - rawRetention);
    if (dayStart < rawStart) {
        Statement minutes(
            history.connection,
            "SELECT SUM(watts * 60.0 / 3600.0) FROM minute_avg WHERE timestamp >= ? AND timestamp < ?");
        minutes.bind(1, dayStart);
        minutes.bind(2, rawStart);
        total += sum(minutes);
    }
    return total;
}

} // namespace quelby
