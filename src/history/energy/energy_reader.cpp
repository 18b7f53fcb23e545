#include "history/energy/energy_reader.h"

#include <fmt/format.h>

#include "base/arithmetic.h"
#include "history/energy/energy_tables.h"
#include "history/history_file.h"
#include "history/sqlite/statement.h"

namespace quelby {

namespace {

constexpr double secondsInADay = 86400;
constexpr double secondsInAnHour = 3600;

// Calls read(row) for each row of the answer. Nothing is asked where there is no history.
template <typename Read>
void forEachRow(const Connection& connection, const std::string& query, Read read) {
    if (!connection) {
        return;
    }
    Statement rows(connection.get(), query);
    while (rows.step()) {
        read(rows);
    }
}

template <typename T>
std::optional<T> unlessNull(const Statement& row, int column, T value) {
    return row.isNull(column) ? std::nullopt : std::optional(value);
}

} // namespace

std::vector<TimedEnergy> byDay(const std::vector<TimedEnergy>& hours, Date (*startOfDay)(Date moment)) {
    std::vector<TimedEnergy> days;
    for (const auto& part : hours) {
        const auto start = truncated(startOfDay(static_cast<double>(part.start)));
        if (days.empty() || days.back().start != start) {
            days.push_back({start, 0});
        }
        days.back().wattHours += part.wattHours;
    }
    return days;
}

EnergyReader::EnergyReader(const std::filesystem::path& applicationSupport, Clock& clock)
    : file_(historyFile(applicationSupport)), clock_(clock) {}

Result<void> EnergyReader::opened() const {
    return openForReading(file_).map([](const Connection& /*connection*/) {});
}

Connection EnergyReader::open() const {
    return openForReading(file_).value_or(Connection{});
}

std::string EnergyReader::within(EnergyRange range) const {
    const auto reachingBack = [&](double seconds) {
        return fmt::format("hour > {}", truncated(clock_.now() - seconds - secondsInAnHour));
    };
    switch (range) {
    case EnergyRange::today:
        return fmt::format("hour >= {}", truncated(clock_.startOfDay()));
    case EnergyRange::twentyFourHours:
        return reachingBack(secondsInADay);
    case EnergyRange::sevenDays:
        return reachingBack(7 * secondsInADay);
    case EnergyRange::thirtyDays:
        return reachingBack(30 * secondsInADay);
    case EnergyRange::sinceUnplugged:
        return "since_unplugged = 1";
    }
    return {};
}

std::vector<NamedEnergy> EnergyReader::byName(const char* table, EnergyRange range) const {
    std::vector<NamedEnergy> energy;
    forEachRow(open(),
               fmt::format("SELECT name, SUM(watt_hours) FROM {} WHERE {}\n"
                           "GROUP BY name ORDER BY SUM(watt_hours) DESC, name",
                           table, within(range)),
               [&](const Statement& row) {
                   energy.push_back({row.text(0), row.number(1)});
               });
    return energy;
}

std::vector<NamedEnergy> EnergyReader::byApp(EnergyRange range) const {
    return byName(energy_tables::apps, range);
}

std::vector<NamedEnergy> EnergyReader::byComponent(EnergyRange range) const {
    return byName(energy_tables::components, range);
}

std::vector<TimedEnergy> EnergyReader::byHour(EnergyRange range) const {
    std::vector<TimedEnergy> energy;
    forEachRow(open(),
               fmt::format("SELECT hour, SUM(watt_hours) FROM {} WHERE {} GROUP BY hour ORDER BY hour",
                           energy_tables::components, within(range)),
               [&](const Statement& row) {
                   energy.push_back({row.integer(0), row.number(1)});
               });
    return energy;
}

std::vector<Sleep> EnergyReader::sleeps() const {
    std::vector<Sleep> sleeps;
    forEachRow(open(),
               "SELECT start, end, seconds, percent_before, percent_after, watt_hours FROM sleeps\n"
               "ORDER BY start DESC",
               [&](const Statement& row) {
                   sleeps.push_back({.start = row.integer(0),
                                     .end = row.integer(1),
                                     .seconds = row.integer(2),
                                     .percentBefore = row.number(3),
                                     .percentAfter = row.number(4),
                                     .wattHours = unlessNull(row, 5, row.number(5))});
               });
    return sleeps;
}

std::vector<Session> EnergyReader::sessions() const {
    std::vector<Session> sessions;
    forEachRow(
        open(),
        fmt::format("SELECT {} FROM sessions ORDER BY start DESC, kind", energy_tables::sessionColumns),
        [&](const Statement& row) {
            if (const auto session = energy_tables::sessionIn(row)) {
                sessions.push_back(*session);
            }
        });
    return sessions;
}

std::vector<BatteryDay> EnergyReader::batteryDays() const {
    std::vector<BatteryDay> days;
    forEachRow(open(), "SELECT day, full_mah, design_mah, cycles, max_celsius FROM battery_days ORDER BY day",
               [&](const Statement& row) {
                   days.push_back({.day = row.integer(0),
                                   .fullCapacity = row.integer(1),
                                   .designCapacity = unlessNull(row, 2, row.integer(2)),
                                   .cycleCount = row.integer(3),
                                   .maxTemperature = unlessNull(row, 4, row.number(4))});
               });
    return days;
}

EnergyReport EnergyReader::report(EnergyRange range) const {
    return {.range = range,
            .apps = byApp(range),
            .sleeps = sleeps(),
            .sessions = sessions(),
            .days = batteryDays()};
}

} // namespace quelby
