// The tables of EnergyWriter, as it and EnergyReader see them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "history/energy/energy_records.h"
#include "history/sqlite/statement.h"

namespace quelby::energy_tables {

inline constexpr const char* apps = "app_energy";
inline constexpr const char* components = "component_energy";

// Makes those that are missing.
inline constexpr const char* schema = "CREATE TABLE IF NOT EXISTS app_energy (\n"
                                      "    hour INTEGER NOT NULL,\n"
                                      "    name TEXT NOT NULL,\n"
                                      "    since_unplugged INTEGER NOT NULL,\n"
                                      "    watt_hours REAL NOT NULL,\n"
                                      "    PRIMARY KEY (hour, name, since_unplugged)\n"
                                      ") WITHOUT ROWID;\n"
                                      "CREATE TABLE IF NOT EXISTS component_energy (\n"
                                      "    hour INTEGER NOT NULL,\n"
                                      "    name TEXT NOT NULL,\n"
                                      "    since_unplugged INTEGER NOT NULL,\n"
                                      "    watt_hours REAL NOT NULL,\n"
                                      "    PRIMARY KEY (hour, name, since_unplugged)\n"
                                      ") WITHOUT ROWID;\n"
                                      "CREATE TABLE IF NOT EXISTS sleeps (\n"
                                      "    start INTEGER PRIMARY KEY,\n"
                                      "    end INTEGER NOT NULL,\n"
                                      "    seconds INTEGER NOT NULL,\n"
                                      "    percent_before REAL NOT NULL,\n"
                                      "    percent_after REAL NOT NULL,\n"
                                      "    watt_hours REAL\n"
                                      ");\n"
                                      "CREATE TABLE IF NOT EXISTS sessions (\n"
                                      "    kind TEXT NOT NULL,\n"
                                      "    start INTEGER NOT NULL,\n"
                                      "    end INTEGER NOT NULL,\n"
                                      "    seconds INTEGER NOT NULL,\n"
                                      "    percent_from INTEGER NOT NULL,\n"
                                      "    percent_to INTEGER NOT NULL,\n"
                                      "    watt_hours REAL NOT NULL,\n"
                                      "    PRIMARY KEY (kind, start)\n"
                                      ") WITHOUT ROWID;\n"
                                      "CREATE TABLE IF NOT EXISTS battery_days (\n"
                                      "    day INTEGER PRIMARY KEY,\n"
                                      "    full_mah INTEGER NOT NULL,\n"
                                      "    design_mah INTEGER,\n"
                                      "    cycles INTEGER NOT NULL,\n"
                                      "    max_celsius REAL\n"
                                      ");";

// The columns of a session in the order in which sessionIn() reads them.
inline constexpr const char* sessionColumns =
    "kind, start, end, seconds, percent_from, percent_to, watt_hours";

// Of the present row. Nothing where a newer program wrote a kind that this one does not know.
[[nodiscard]] std::optional<Session> sessionIn(const Statement& row);

} // namespace quelby::energy_tables
