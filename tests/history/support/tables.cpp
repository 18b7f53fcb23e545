#include "tables.h"

#include <gtest/gtest.h>

#include "history/sqlite/statement.h"

namespace quelby {

namespace {

constexpr int patienceMilliseconds = 10'000; // a recorder at work may hold its lock for a moment

} // namespace

Database::Database(const std::filesystem::path& file) {
    sqlite3* handle = nullptr;
    EXPECT_EQ(sqlite3_open(file.c_str(), &handle), SQLITE_OK) << file;
    connection_.reset(handle);
    sqlite3_busy_timeout(handle, patienceMilliseconds);
}

void Database::execute(const std::string& script) {
    EXPECT_EQ(sqlite3_exec(connection_.get(), script.c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
        << script << ": " << sqlite3_errmsg(connection_.get());
}

std::int64_t Database::number(const std::string& query) {
    Statement statement(connection_.get(), query);
    if (!statement.step()) {
        ADD_FAILURE() << query << ": " << sqlite3_errmsg(connection_.get());
        return 0;
    }
    return statement.integer(0);
}

Tables Database::tables() {
    Readings readings;
    Statement rows(connection_.get(),
                   "SELECT timestamp, watts, battery_pct, is_charging, cpu_usage FROM readings");
    while (rows.step()) {
        readings[rows.integer(0)] = {rows.number(1), rows.integer(2), rows.integer(3) != 0, rows.number(4)};
    }
    EXPECT_EQ(rows.outcome(), SQLITE_DONE);
    return {std::move(readings), means("minute_avg"), means("hour_avg")};
}

std::string Database::dump(const std::string& table) {
    const auto row = lines("SELECT group_concat('quote(\"' || name || '\")', ' || '','' || ')\n"
                           "FROM pragma_table_info('" +
                           table + "')");
    return lines("SELECT " + row + " FROM " + table + " ORDER BY 1");
}

std::string Database::declaration(const std::string& table) {
    return lines("SELECT type || ' ' || name || ': ' || ifnull(sql, '') FROM sqlite_schema\n"
                 "WHERE tbl_name = '" +
                 table + "' ORDER BY name") +
           lines("SELECT cid || ' ' || name || ' ' || type || ' ' || \"notnull\" || ' ' || pk || ' ' ||\n"
                 "quote(dflt_value) FROM pragma_table_info('" +
                 table + "')");
}

std::string Database::lines(const std::string& query) {
    std::string lines;
    Statement rows(connection_.get(), query);
    while (rows.step()) {
        lines += rows.text(0) + '\n';
    }
    EXPECT_EQ(rows.outcome(), SQLITE_DONE) << query;
    return lines;
}

bool Database::isSound() {
    return number("SELECT COUNT(*) FROM pragma_integrity_check WHERE integrity_check <> 'ok'") == 0;
}

Means Database::means(const std::string& table) {
    Means means;
    Statement rows(connection_.get(), "SELECT timestamp, watts, battery_pct FROM " + table);
    while (rows.step()) {
        means[rows.integer(0)] = {rows.number(1), rows.number(2)};
    }
    EXPECT_EQ(rows.outcome(), SQLITE_DONE);
    return means;
}

} // namespace quelby
