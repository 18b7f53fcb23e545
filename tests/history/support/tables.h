// A look at a history's database from outside, beside the store and through a connection of its own.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

#include "history/sqlite/connection.h"

namespace quelby {

struct ReadingRow {
    double watts = 0;
    std::int64_t batteryPct = 0;
    bool isCharging = false;
    double cpuUsage = 0;

    bool operator==(const ReadingRow&) const = default;
};

struct MeanRow {
    double watts = 0;
    double batteryPct = 0;

    bool operator==(const MeanRow&) const = default;
};

// By seconds since 1970.
using Readings = std::map<std::int64_t, ReadingRow>;
using Means = std::map<std::int64_t, MeanRow>;

struct Tables {
    Readings readings;
    Means minutes;
    Means hours;
};

class Database {
public:
    // Fails the test where the file cannot be opened; a missing one is made.
    explicit Database(const std::filesystem::path& file);

    explicit Database(Connection connection) : connection_(std::move(connection)) {}

    // Fails the test where SQLite has something against the script.
    void execute(const std::string& script);

    // The first column of the only row.
    [[nodiscard]] std::int64_t number(const std::string& query);

    [[nodiscard]] Tables tables();

    // All of a table, a line for each row, values as SQL writes them, so that their types show as well.
    [[nodiscard]] std::string dump(const std::string& table);

    // How a table is declared, with what belongs to it: the words that made it, and what SQLite makes of its
    // columns.
    [[nodiscard]] std::string declaration(const std::string& table);
    [[nodiscard]] bool isSound();

private:
    [[nodiscard]] Means means(const std::string& table);
    [[nodiscard]] std::string lines(const std::string& query);

    Connection connection_;
};

} // namespace quelby
