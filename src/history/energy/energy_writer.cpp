#include "history/energy/energy_writer.h"

#include <algorithm>

#include <fmt/format.h>

#include "base/arithmetic.h"
#include "history/energy/energy_tables.h"
#include "history/energy/largest_names.h"
#include "history/energy/session_kind.h"
#include "history/history_file.h"
#include "history/sqlite/transaction.h"

namespace quelby {

namespace {

constexpr double retention = 2592000; // seconds: thirty days
constexpr std::size_t namesInAnHour = 200;
constexpr int sleepsKept = 30;
constexpr int sessionsKept = 30; // of each kind

std::string addition(std::string_view table) {
    return fmt::format("INSERT INTO {} (hour, name, since_unplugged, watt_hours) VALUES (?, ?, ?, ?)\n"
                       "ON CONFLICT DO UPDATE SET watt_hours = watt_hours + excluded.watt_hours",
                       table);
}

bool endUnplugged(PreparedStatements& statements, std::string_view table) {
    return statements.run(
               fmt::format("INSERT INTO {0} (hour, name, since_unplugged, watt_hours)\n"
                           "SELECT hour, name, 0, watt_hours FROM {0} WHERE since_unplugged = 1\n"
                           "ON CONFLICT DO UPDATE SET watt_hours = watt_hours + excluded.watt_hours",
                           table)) &&
           statements.run(fmt::format("DELETE FROM {} WHERE since_unplugged = 1", table));
}

bool addComponents(PreparedStatements& statements, const HourOfEnergy& hour) {
    const auto text = addition(energy_tables::components);
    return std::all_of(hour.components.begin(), hour.components.end(), [&](const auto& component) {
        return statements.run(text, hour.hour, component.first, hour.sinceUnplugged ? 1 : 0,
                              component.second);
    });
}

bool moveToOther(PreparedStatements& statements, std::int64_t hour, std::string_view name) {
    return statements.run("INSERT INTO app_energy (hour, name, since_unplugged, watt_hours)\n"
                          "SELECT hour, ?, since_unplugged, watt_hours FROM app_energy\n"
                          "WHERE hour = ? AND name = ?\n"
                          "ON CONFLICT DO UPDATE SET watt_hours = watt_hours + excluded.watt_hours",
                          otherName, hour, name) &&
           statements.run("DELETE FROM app_energy WHERE hour = ? AND name = ?", hour, name);
}

// The smallest of too many go together. They are told before anything is written, so that many small ones
// cost one row.
bool addApps(PreparedStatements& statements, const HourOfEnergy& hour) {
    EnergyByName known;
    bool done = statements.forEachRow(
        "SELECT name, SUM(watt_hours) FROM app_energy WHERE hour = ? GROUP BY name",
        [&](const Statement& row) { known.emplace(row.text(0), row.number(1)); }, hour.hour);
    const auto small = beyondLargest(namesInAnHour, known, hour.apps);
    const auto text = addition(energy_tables::apps);
    const auto add = [&](std::string_view name, double wattHours) {
        return statements.run(text, hour.hour, name, hour.sinceUnplugged ? 1 : 0, wattHours);
    };
    double others = 0;
    for (const auto& [name, wattHours] : hour.apps) {
        if (small.contains(name)) {
            others += wattHours;
        } else {
            done = done && add(name, wattHours);
        }
    }
    for (const auto name : small) {
        done = done && (!known.contains(name) || moveToOther(statements, hour.hour, name));
    }
    return done && (small.empty() || add(otherName, others));
}

bool keep(PreparedStatements& statements, const Sleep& sleep) {
    return statements.run("INSERT OR REPLACE INTO sleeps\n"
                          "(start, end, seconds, percent_before, percent_after, watt_hours)\n"
                          "VALUES (?, ?, ?, ?, ?, ?)",
                          sleep.start, sleep.end, sleep.seconds, sleep.percentBefore, sleep.percentAfter,
                          sleep.wattHours) &&
           statements.run("DELETE FROM sleeps WHERE start <=\n"
                          "(SELECT start FROM sleeps ORDER BY start DESC LIMIT 1 OFFSET ?)",
                          sleepsKept);
}

bool keep(PreparedStatements& statements, const Session& session) {
    const auto kind = rawValue(session.kind);
    return statements.run(fmt::format("INSERT OR REPLACE INTO sessions ({})\nVALUES (?, ?, ?, ?, ?, ?, ?)",
                                      energy_tables::sessionColumns),
                          kind, session.start, session.end, session.seconds, session.percentFrom,
                          session.percentTo, session.wattHours) &&
           statements.run("DELETE FROM sessions WHERE kind = ? AND start <=\n"
                          "(SELECT start FROM sessions WHERE kind = ? ORDER BY start DESC LIMIT 1 OFFSET ?)",
                          kind, kind, sessionsKept);
}

bool keep(PreparedStatements& statements, const BatteryDay& day) {
    return statements.run("INSERT INTO battery_days (day, full_mah, design_mah, cycles, max_celsius)\n"
                          "VALUES (?, ?, ?, ?, ?)\n"
                          "ON CONFLICT DO UPDATE SET full_mah = excluded.full_mah,\n"
                          "design_mah = excluded.design_mah, cycles = excluded.cycles,\n"
                          "max_celsius = COALESCE(MAX(max_celsius, excluded.max_celsius),\n"
                          "max_celsius, excluded.max_celsius)",
                          day.day, day.fullCapacity, day.designCapacity, day.cycleCount, day.maxTemperature);
}

bool keep(PreparedStatements& statements, const HourOfEnergy& hour) {
    return addApps(statements, hour) && addComponents(statements, hour);
}

template <typename Record>
bool keepEach(PreparedStatements& statements, const std::vector<Record>& records) {
    return std::all_of(records.begin(), records.end(),
                       [&](const Record& record) { return keep(statements, record); });
}

bool keep(PreparedStatements& statements, const EnergyBatch& batch) {
    const bool ended = !batch.unpluggedAnew || (endUnplugged(statements, energy_tables::apps) &&
                                                endUnplugged(statements, energy_tables::components));
    return ended && keepEach(statements, batch.hours) && keepEach(statements, batch.sleeps) &&
           keepEach(statements, batch.sessions) && keepEach(statements, batch.days);
}

bool pruneHours(PreparedStatements& statements, Date now) {
    const auto bound = truncated(now - retention);
    return statements.run("DELETE FROM app_energy WHERE hour < ?", bound) &&
           statements.run("DELETE FROM component_energy WHERE hour < ?", bound);
}

} // namespace

EnergyWriter::EnergyWriter(const std::filesystem::path& applicationSupport)
    : db_(openForRecording(historyFile(applicationSupport)).value_or(Connection{})), statements_(db_.get()) {
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
    return all.hasBegun() && keep(statements_, batch) && pruneHours(statements_, now) && all.commit();
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
