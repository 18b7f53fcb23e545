#include "history/energy/energy_writer.h"

#include <algorithm>

#include <fmt/format.h>

#include "base/arithmetic.h"
#include "history/energy/energy_tables.h"
#include "history/energy/session_kind.h"
#include "history/history_file.h"
#include "history/sqlite/statement.h"
#include "history/sqlite/transaction.h"

namespace quelby {

namespace {

using energy_tables::apps;
using energy_tables::components;

constexpr double retention = 2592000; // seconds: thirty days
constexpr int namesInAnHour = 200;
constexpr int sleepsKept = 30;
constexpr int sessionsKept = 30; // of each kind

bool done(Statement& statement) {
    return !statement.step() && statement.outcome() == SQLITE_DONE;
}

bool endUnplugged(sqlite3* connection, std::string_view table) {
    return execute(connection,
                   fmt::format("INSERT INTO {0} (hour, name, since_unplugged, watt_hours)\n"
                               "SELECT hour, name, 0, watt_hours FROM {0} WHERE since_unplugged = 1\n"
                               "ON CONFLICT DO UPDATE SET watt_hours = watt_hours + excluded.watt_hours;\n"
                               "DELETE FROM {0} WHERE since_unplugged = 1;",
                               table));
}

bool add(sqlite3* connection, std::string_view table, const HourOfEnergy& hour, const EnergyByName& energy) {
    Statement addition(connection,
                       fmt::format("INSERT INTO {} (hour, name, since_unplugged, watt_hours)\n"
                                   "VALUES (?, ?, ?, ?)\n"
                                   "ON CONFLICT DO UPDATE SET watt_hours = watt_hours + excluded.watt_hours",
                                   table));
    addition.bind(1, hour.hour);
    addition.bind(3, hour.sinceUnplugged ? 1 : 0);
    for (const auto& [name, wattHours] : energy) {
        addition.bind(2, std::string_view(name));
        addition.bind(4, wattHours);
        if (!done(addition)) {
            return false;
        }
        addition.reset();
    }
    return true;
}

// The smallest of too many go together.
bool limitNames(sqlite3* connection, std::int64_t hour) {
    const auto rest =
        fmt::format("name IN (SELECT name FROM {0} WHERE hour = {1} AND name NOT IN ('{2}', '{3}')\n"
                    "GROUP BY name ORDER BY SUM(watt_hours) DESC, name LIMIT -1 OFFSET {4})",
                    apps, hour, systemName, otherName, namesInAnHour);
    return execute(connection,
                   fmt::format("INSERT INTO {0} (hour, name, since_unplugged, watt_hours)\n"
                               "SELECT hour, '{2}', since_unplugged, SUM(watt_hours) FROM {0}\n"
                               "WHERE hour = {1} AND {3} GROUP BY since_unplugged\n"
                               "ON CONFLICT DO UPDATE SET watt_hours = watt_hours + excluded.watt_hours;\n"
                               "DELETE FROM {0} WHERE hour = {1} AND {3};",
                               apps, hour, otherName, rest));
}

bool add(sqlite3* connection, const HourOfEnergy& hour) {
    return add(connection, apps, hour, hour.apps) && add(connection, components, hour, hour.components) &&
           limitNames(connection, hour.hour);
}

bool keep(sqlite3* connection, const Sleep& sleep) {
    Statement insertion(connection, "INSERT OR REPLACE INTO sleeps\n"
                                    "(start, end, seconds, percent_before, percent_after, watt_hours)\n"
                                    "VALUES (?, ?, ?, ?, ?, ?)");
    insertion.bind(1, sleep.start);
    insertion.bind(2, sleep.end);
    insertion.bind(3, sleep.seconds);
    insertion.bind(4, sleep.percentBefore);
    insertion.bind(5, sleep.percentAfter);
    insertion.bind(6, sleep.wattHours);
    return done(insertion);
}

bool keep(sqlite3* connection, const Session& session) {
    Statement insertion(connection,
                        fmt::format("INSERT OR REPLACE INTO sessions ({})\nVALUES (?, ?, ?, ?, ?, ?, ?)",
                                    energy_tables::sessionColumns));
    insertion.bind(1, rawValue(session.kind));
    insertion.bind(2, session.start);
    insertion.bind(3, session.end);
    insertion.bind(4, session.seconds);
    insertion.bind(5, session.percentFrom);
    insertion.bind(6, session.percentTo);
    insertion.bind(7, session.wattHours);
    return done(insertion);
}

bool keep(sqlite3* connection, const BatteryDay& day) {
    Statement insertion(connection,
                        "INSERT INTO battery_days (day, full_mah, design_mah, cycles, max_celsius)\n"
                        "VALUES (?, ?, ?, ?, ?)\n"
                        "ON CONFLICT DO UPDATE SET full_mah = excluded.full_mah,\n"
                        "design_mah = excluded.design_mah, cycles = excluded.cycles,\n"
                        "max_celsius = COALESCE(MAX(max_celsius, excluded.max_celsius),\n"
                        "max_celsius, excluded.max_celsius)");
    insertion.bind(1, day.day);
    insertion.bind(2, day.fullCapacity);
    insertion.bind(3, day.designCapacity);
    insertion.bind(4, day.cycleCount);
    insertion.bind(5, day.maxTemperature);
    return done(insertion);
}

template <typename Records, typename Keep>
bool keepEach(const Records& records, Keep keep) {
    return std::all_of(records.begin(), records.end(), keep);
}

bool keep(sqlite3* connection, const EnergyBatch& batch) {
    const bool ended =
        !batch.unpluggedAnew || (endUnplugged(connection, apps) && endUnplugged(connection, components));
    return ended && keepEach(batch.hours, [&](const auto& hour) { return add(connection, hour); }) &&
           keepEach(batch.sleeps, [&](const auto& sleep) { return keep(connection, sleep); }) &&
           keepEach(batch.sessions, [&](const auto& session) { return keep(connection, session); }) &&
           (!batch.day || keep(connection, *batch.day));
}

bool prune(sqlite3* connection, Date now) {
    const auto bound = truncated(now - retention);
    return execute(connection,
                   fmt::format("DELETE FROM {0} WHERE hour < {2};\n"
                               "DELETE FROM {1} WHERE hour < {2};\n"
                               "DELETE FROM sleeps WHERE start NOT IN\n"
                               "(SELECT start FROM sleeps ORDER BY start DESC LIMIT {3});\n"
                               "DELETE FROM sessions WHERE (SELECT COUNT(*) FROM sessions AS later\n"
                               "WHERE later.kind = sessions.kind AND later.start > sessions.start) >= {4};",
                               apps, components, bound, sleepsKept, sessionsKept));
}

} // namespace

EnergyWriter::EnergyWriter(const std::filesystem::path& applicationSupport)
    : db_(openForRecording(historyFile(applicationSupport)).value_or(Connection{})) {
    if (db_) {
        execute(db_.get(), "PRAGMA synchronous=NORMAL;");
        execute(db_.get(), energy_tables::schema);
    }
}

bool EnergyWriter::write(const EnergyBatch& batch, Date now) {
    if (!db_) {
        return false;
    }
    Transaction all(db_.get(), "BEGIN IMMEDIATE");
    return all.hasBegun() && keep(db_.get(), batch) && prune(db_.get(), now) && all.commit();
}

std::optional<Session> EnergyWriter::lastSession() const {
    if (!db_) {
        return std::nullopt;
    }
    Statement query(db_.get(), fmt::format("SELECT {} FROM sessions WHERE kind IN ('discharge', 'charge')\n"
                                           "ORDER BY end DESC LIMIT 1",
                                           energy_tables::sessionColumns));
    return query.step() ? energy_tables::sessionIn(query) : std::nullopt;
}

} // namespace quelby
